#pragma once

#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <array>
#include <vector>

#include "forms/controls.h"
#include "qt/binder.h"

namespace qt {

/// The least height of a text of several lines in an exam window: two lines and its frame.
inline constexpr int kMemoHeight = 44;

/// Captions beside their fields, on the grid.
QFormLayout* newFields(QWidget* parent);

/// The strip on top of an exam window: the patient, the exam's number and date, the dating.
class ExamStrip {
public:
    /// A strip with fields to write in stands on the window's own ground, so that they stand out.
    enum class Ground { Raised, Window };
    explicit ExamStrip(Binder& bind, Ground ground = Ground::Raised);

    void identity(forms::Label& surname, forms::Label& firstName, forms::Label& number);
    /// A caption and its value behind what already stands on the line.
    void value(const QString& caption, QWidget* value);
    void value(const QString& caption, forms::Label& shown);
    /// A widget that needs no caption.
    void add(QWidget* widget);
    void nextLine();
    QWidget* widget() const { return strip_; }

private:
    Binder& bind_;
    QFrame* strip_;
    QVBoxLayout* lines_;
    QHBoxLayout* line_;
};

/// Makes a field as wide as so many digits, and no wider.
void setCharacters(QLineEdit* field, int characters);

/// A field of one line, so many digits wide. Enter walks on from it.
QLineEdit* narrowLine(Binder& bind, forms::TextBox& box, const QString& caption, int characters);

/// The title of the page in view, across the fields; a page may paint it.
QLabel* pageTitle(Binder& bind, forms::Label& title);

/// A frame of a page as a section, with room around its fields for a colour.
Section* pageSection(Binder& bind, forms::Frame& frame);

/// The buttons that step among the exams of a dossier: first, previous, next, last.
QLayout* steppingRow(Binder& bind, const std::array<forms::Button*, 4>& buttons);

/// The actions at the foot of a window; the last one stands apart at the right.
QLayout* actionRow(Binder& bind, const std::vector<forms::Button*>& actions);

/// The panel whose buttons bring one embryo or fetus in view.
QWidget* multiplePanel(Binder& bind, forms::Frame& frame, const std::vector<forms::Button*>& buttons);

}  // namespace qt
