#pragma once

#include "qt/layouts/exam_parts.h"

namespace qt {

/// The strip on top of the gynaecology windows, which hold its controls under the same names.
template <class Window>
QWidget* gynaecologyStrip(Binder& bind, Window& shown) {
    ExamStrip strip(bind, ExamStrip::Ground::Window);
    strip.identity(shown.LblNom, shown.LblPrenom, shown.LblNumInt);
    const QString number = QStringLiteral("Echographie N°");
    const QString date = QStringLiteral("Date de l'Examen");
    strip.value(number, narrowLine(bind, shown.TxtNumEcho, number, 3));
    strip.value(date, narrowLine(bind, shown.TxtDate, date, 10));
    strip.value(QStringLiteral("Appareil"), shown.LblMachine);
    strip.value(QStringLiteral("en service"), shown.LblDateCirc);
    return strip.widget();
}

}  // namespace qt
