#pragma once

#include <QLabel>

namespace qt {

/// A label of one line that gives way where there is no room for all of it: its text is cut short with dots, and whole
/// in its tip.
class ElidedLabel final : public QLabel {
public:
    /// The beginning of the text, or all of one as short as a date or an age.
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    bool isCut() const;
};

}  // namespace qt
