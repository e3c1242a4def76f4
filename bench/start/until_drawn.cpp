// Linked into a program, ends it once its main menu is drawn and nothing more waits to be done.

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <cstdlib>

namespace {

constexpr int kPatience = 20000;  // milliseconds

class UntilDrawn final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->isWidgetType() && watched->objectName() == u"Form1"_qs) {
            QTimer::singleShot(0, [] { std::_Exit(EXIT_SUCCESS); });
        }
        return false;
    }
};

void watch() {
    QCoreApplication::instance()->installEventFilter(new UntilDrawn(QCoreApplication::instance()));
    QTimer::singleShot(kPatience, [] { std::_Exit(EXIT_FAILURE); });
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)
