#pragma once

#include <QString>

#include "base/errors.h"

namespace ports {

enum class Icon { None, Information, Question, Exclamation, Critical };

/// The answer that Enter gives to a question.
enum class DefaultAnswer { Usual, Yes, No };

/// How a question is asked, where it isn't the usual way.
struct Asking {
    /// Empty is "Attention".
    QString title{};
    /// The usual one is Yes, but No where the icon is a critical one.
    DefaultAnswer defaultAnswer = DefaultAnswer::Usual;
};

/// The modal boxes through which the program speaks to the person at the screen.
class Boxes {
public:
    virtual ~Boxes() = default;

    /// Shows a message with one button and returns when it was read.
    virtual void message(const QString& text, Icon icon = Icon::None) = 0;
    /// Asks with Yes and No; true for Yes alone.
    virtual bool ask(const QString& text, Icon icon = Icon::None, const Asking& asking = {}) = 0;
    /// The default report of an error that ended a handler.
    virtual void report(const base::RuntimeError& error) = 0;
};

/// The title of messages and reports, and that of questions.
inline const QString kMessageTitle = QStringLiteral("VERANOX");
inline const QString kQuestionTitle = QStringLiteral("Attention");

/// The text of the default report: the number, an empty line, what went wrong.
QString reportText(const base::RuntimeError& error);

}  // namespace ports
