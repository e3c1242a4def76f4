#include "gyneco/pages.h"

namespace gyneco {
namespace {

const QString kPelvicTitle = QStringLiteral("Echographie Pelvienne");
constexpr forms::Color kMonitoringColor = forms::fromBlueGreenRed(0xFFFFC0);

}  // namespace

Pages::Pages(forms::Form& form)
    : Label1(form, "Label1", kPelvicTitle),
      Frame2(form, "Frame2", "Examen"),
      Frame3(form, "Frame3", "Utérus"),
      Frame4(form, "Frame4", "Annexes"),
      Frame5(form, "Frame5", "Douglas"),
      Frame6(form, "Frame6", "Masse"),
      Frame7(form, "Frame7", "Conclusion"),
      Frame8(form, "Frame8", "Ovulation") {
    Frame8.hide();
}

void Pages::namePelvic() {
    Label1.setText(kPelvicTitle);
    Label1.setBack({});
}

void Pages::nameMonitoring() {
    Label1.setText(QStringLiteral("Monitorage de l'ovulation"));
    Label1.setBack(kMonitoringColor);
}

void Pages::paintCommonFrame() {
    Frame2.setBack(Label1.back());
}

void Pages::setPelvicVisible(bool visible) {
    for (forms::Frame* frame : {&Frame3, &Frame4, &Frame5, &Frame6, &Frame7}) {
        frame->setVisible(visible);
    }
}

}  // namespace gyneco
