#pragma once

#include <QString>

#include "base/errors.h"

namespace biometry {

/// What an operation on the texts of a window tells that window to do. Nothing is thrown: each window has its own way
/// with a failure, and one without any asks for `orThrow`.
class Outcome {
public:
    enum class Kind {
        Leave,   ///< the field keeps its text
        Write,   ///< `text` goes into the field
        Refuse,  ///< nothing is written; `text` is the message to show
        Fail,    ///< the arithmetic failed with `error`; nothing is written
    };

    static Outcome leave() { return {Kind::Leave, {}, {}}; }
    static Outcome write(const QString& text) { return {Kind::Write, text, {}}; }
    static Outcome refuse(QStringView message) { return {Kind::Refuse, message.toString(), {}}; }
    static Outcome fail(base::ErrorNumber error) { return {Kind::Fail, {}, error}; }

    Kind kind() const { return kind_; }
    bool writes() const { return kind_ == Kind::Write; }
    bool fails() const { return kind_ == Kind::Fail; }

    /// The text to write or the message to show; empty for the other kinds.
    const QString& text() const { return text_; }

    /// The number of a failure. Means nothing for the other kinds.
    base::ErrorNumber error() const { return error_; }

    /// The outcome itself, if it is no failure. Throws the failure as a RuntimeError.
    const Outcome& orThrow() const {
        if (fails()) {
            throw base::RuntimeError(error_);
        }
        return *this;
    }

private:
    Outcome(Kind kind, const QString& text, base::ErrorNumber error) : kind_(kind), text_(text), error_(error) {}

    Kind kind_;
    QString text_;
    base::ErrorNumber error_;
};

}  // namespace biometry
