#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <vector>

namespace port {

/// Gives the input back to the window behind when the one in front has gone, as a desktop does: the platform without a
/// screen gives it to none.
class FrontWindows final : public QObject {
public:
    FrontWindows();

    /// Puts the window in front that was there last, if none has the input. Whether it did.
    bool giveBackInput();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::vector<QPointer<QWidget>> order_;  // the last one is in front
};

}  // namespace port
