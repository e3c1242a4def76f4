#pragma once

#include <QString>

#include "forms/controls.h"
#include "forms/rich_text.h"
#include "qt/form_window.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QMenuBar;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QSlider;
class QToolButton;

namespace qt {

class PageView;
class CalendarView;
class DrawingView;
class PictureView;
class Section;

/// Turns the controls of a form into real widgets of its window. What a layout makes of them beyond that (place, size,
/// font) is the layout's own.
class Binder {
public:
    explicit Binder(FormWindow& window) : window_(window) {}

    FormWindow& window() const { return window_; }

    QLabel* label(forms::Label& control);
    /// The same on one line, cut short where there is no room for all of it.
    QLabel* elidedLabel(forms::Label& control);
    /// A text box of one line, or of several; `caption` is what a screen reader calls it.
    QLineEdit* line(forms::TextBox& control, const QString& caption);
    QPlainTextEdit* memo(forms::TextBox& control, const QString& caption);
    QListView* list(forms::ListBox& control, const QString& caption);
    CalendarView* calendar(forms::Calendar& control, const QString& caption);
    QComboBox* combo(forms::ComboBox& control, const QString& caption);
    QPushButton* button(forms::Button& control);
    QRadioButton* option(forms::Option& control);
    QCheckBox* check(forms::Check& control);
    QToolButton* tool(forms::ToolButton& control);
    /// A scroll bar, as a slider; `caption` is what a screen reader calls it.
    QSlider* slider(forms::ScrollBar& control, const QString& caption);
    /// A picture. It takes the focus if its control listens to clicks.
    PictureView* picture(forms::Image& control, const QString& caption);
    /// A rich text, seen as a page.
    PageView* page(forms::RichText& control, const QString& caption);
    /// A frame as a section: its caption as a title above what it holds.
    Section* section(forms::Frame& control);
    /// The menu bar of the window, from all its menus: those that no other holds stand on the bar.
    QMenuBar* menuBar();
    /// A place for one of the program's line drawings.
    DrawingView* drawing(forms::Image& control, const QString& caption);
    /// A frame without a caption, or a picture, as the plain widget that the layout gives it.
    QWidget* plain(forms::Control& control, QWidget* widget);

private:
    QLabel* bindLabel(forms::Label& control, QLabel* label);
    void addEntry(QWidget* parent, forms::Menu& control);

    template <class Edit>
    void bindKeys(forms::TextBox& control, Edit* edit);
    template <class Edit>
    void bindText(forms::TextBox& control, Edit* edit);
    template <class Edit>
    void followCaret(forms::TextBox& control, Edit* edit);
    void bindRows(forms::ListBox& control, QListView* view);
    void bindPresses(forms::ListBox& control, QListView* view);

    FormWindow& window_;
};

}  // namespace qt
