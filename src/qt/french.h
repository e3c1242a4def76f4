#pragma once

class QApplication;

namespace qt {

/// Makes the toolkit's own texts French, and its numbers and dates those of France, whatever the machine's.
void speakFrench(QApplication& application);

}  // namespace qt
