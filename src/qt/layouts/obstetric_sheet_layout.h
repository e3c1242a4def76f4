#pragma once

#include <functional>
#include <set>
#include <span>

#include "exams/obstetric_sheet.h"
#include "qt/layouts/exam_parts.h"

namespace qt {

/// The writing and the correction windows of both obstetric families: the strip on top, the fields in two scrolling
/// columns, the offers beside them, the actions. What stands in the columns is each family's own.
class ObstetricSheetLayout {
public:
    /// What the strip shows beyond what all windows show; null is what the window doesn't have.
    struct Strip {
        forms::TextBox* kind = nullptr;
        forms::Label* number = nullptr;
        forms::Button* ultrasound = nullptr;
        forms::TextControl* age = nullptr;
        QString mode = {};
        /// Stands above the strip, where the title of the window doesn't say it.
        QString heading = {};
    };

    /// `rows` name the fields; those of `longTexts` take several lines.
    ObstetricSheetLayout(exams::ObstetricSheet& sheet, std::span<const responses::ExamField> rows,
                         std::set<int> longTexts, FormWindow& window);

    Binder& bind() { return bind_; }
    exams::ObstetricSheet& sheet() { return sheet_; }

    /// What the sheet is made of: two columns, and what stands under both, if anything. Each is made when its turn
    /// comes, so that Tab follows the eye.
    struct Sheet {
        std::function<QLayout*()> left;
        std::function<QLayout*()> right;
        std::function<QWidget*()> foot = {};
    };

    void build(const Strip& strip, const Sheet& sheet, const std::vector<forms::Button*>& actions,
               QMenuBar* menu = nullptr);

    QString caption(int index) const;
    /// The widget of a field, from which Enter walks on.
    QWidget* field(int index);
    QLineEdit* narrow(forms::TextBox& box, const QString& name, int characters);
    void addRows(QFormLayout* rows, std::initializer_list<int> indexes);
    QWidget* multiplePanel();
    /// Gives a button whose caption marks no letter one all the same.
    void pressWithAlt(Qt::Key letter, const forms::Button& button);
    /// Controls that no step reads: they have no place of their own on the sheet.
    void putAside(std::initializer_list<forms::TextControl*> controls);

private:
    QWidget* strip(const Strip& parts);
    QWidget* dating(const Strip& parts, ExamStrip& strip);
    QWidget* columns(const Sheet& parts);

    exams::ObstetricSheet& sheet_;
    std::span<const responses::ExamField> rows_;
    std::set<int> longTexts_;
    FormWindow& window_;
    Binder bind_;
};

}  // namespace qt
