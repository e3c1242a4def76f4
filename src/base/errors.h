#pragma once

#include <QString>
#include <exception>

namespace base {

/// The numbers under which the program reports what went wrong. A number says what happened, whatever the step.
enum class ErrorNumber : int {
    InvalidCall = 5,
    Overflow = 6,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    DeviceError = 57,
    DiskFull = 61,
    PermissionDenied = 70,
    PathNotFound = 76,
    ObjectNotSet = 91,
    InvalidNull = 94,
    InvalidPicture = 481,
    UpdateWithoutEdit = 3020,
    NoCurrentRecord = 3021,
    DuplicateKey = 3022,
    DatabaseNotFound = 3024,
    ReadOnly = 3027,
    DatabaseNotOpenable = 3051,
    UnknownParameter = 3061,
    QuerySyntax = 3075,
    UnknownTable = 3078,
    RecordDeleted = 3167,
    RecordLocked = 3260,
    UnknownField = 3265,
    RequiredValue = 3314,
    EmptyText = 3315,
    UnknownFormat = 3343,
    ObjectClosed = 3420,
    JpegSave = 26001,
};

/// The French text of an error number, as a person reads it. Ends with a full stop.
QString errorText(ErrorNumber number);

/// The same, with what it is about in brackets: "Champ introuvable (NOM)."
QString errorText(ErrorNumber number, const QString& subject);

/// A failure that ends the handler in which it happens, unless a step says that it is caught. Holds a number and a
/// French text for the person at the screen.
class RuntimeError final : public std::exception {
public:
    /// An error with the usual text of its number.
    explicit RuntimeError(ErrorNumber number);
    /// An error with a text of its own, for what the usual one cannot say (a path, a field).
    RuntimeError(ErrorNumber number, QString text);

    ErrorNumber number() const { return number_; }
    const QString& text() const { return text_; }
    const char* what() const noexcept override { return utf8_.constData(); }

private:
    ErrorNumber number_;
    QString text_;
    QByteArray utf8_;
};

}  // namespace base
