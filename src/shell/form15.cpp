#include "shell/form15.h"

#include "forms/desk.h"

namespace shell {

Form15::Form15(forms::Desk& desk) : Form(desk, kName.toString(), {}) {
    Command1.onClick = [this] { unload(); };
}

// Whichever way it goes, a window must be left.
void Form15::unloading() {
    desk().show(QStringLiteral("Form1"));
}

}  // namespace shell
