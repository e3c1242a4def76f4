#pragma once

#include "qt/binder.h"
#include "responses/offer_panel.h"

namespace qt {

/// The panel beside the fields of an exam window: the phrases, the numbers, the calendar, the free entry and the button
/// that empties the field; `second` is one more free entry of the window. The mouse leaves the focus in the field;
/// Alt+L and Alt+N lead to the lists, Escape back; Ctrl+1 to Ctrl+9 take one of the first phrases from anywhere.
QWidget* newOfferPanel(Binder& bind, const responses::PanelControls& controls, forms::TextBox* second = nullptr);

}  // namespace qt
