#include "shell/form0.h"

#include "forms/desk.h"
#include "shell/form1.h"
#include "shell/form15.h"

namespace shell {

Form0::Form0(forms::Desk& desk) : Form(desk, kName.toString(), QStringLiteral("VERANOX")) {}

void Form0::load() {
    desk().at<Form1>();
    if (!desk().peek<Form15>()) {
        desk().show(Form1::kName.toString());
    }
    unload();
}

}  // namespace shell
