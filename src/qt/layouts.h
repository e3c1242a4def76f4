#pragma once

#include <QString>
#include <functional>

namespace forms {
class Form;
}

namespace qt {

class FormWindow;

/// Lays the controls of a form out on its window.
using Layout = std::function<void(forms::Form&, FormWindow&)>;

/// The layout of the window of this name; empty if it has none.
Layout layoutOf(const QString& form);

}  // namespace qt
