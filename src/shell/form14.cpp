#include "shell/form14.h"

namespace shell {

Form14::Form14(forms::Desk& desk) : Form(desk, kName.toString(), QStringLiteral("VERANOX")) {
    Command1.onClick = [this] { unload(); };
}

}  // namespace shell
