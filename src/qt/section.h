#pragma once

#include <QLabel>
#include <QWidget>

namespace qt {

/// A title with a thin line behind it, and what stands under it.
class Section final : public QWidget {
public:
    explicit Section(const QString& title, QWidget* parent = nullptr);

    void setTitle(const QString& title);
    /// Where the widgets of the section go. Give it a layout.
    QWidget* body() const { return body_; }

private:
    QLabel* title_;
    QWidget* body_;
};

}  // namespace qt
