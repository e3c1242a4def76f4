#pragma once

#include <QDialog>

#include "ports/font_dialog.h"

class QCheckBox;
class QComboBox;
class QLabel;

namespace qt {

/// Family, size, style, effects and colour of a font, with a sample.
class FontBox final : public QDialog {
public:
    FontBox(const ports::FontChoice& current, QWidget* parent);

    ports::FontChoice choice() const;
    /// Puts a choice into the fields.
    void show(const ports::FontChoice& choice);
    using QDialog::show;

private:
    void build();
    void showSample();

    QComboBox* name_;
    QComboBox* size_;
    QCheckBox* bold_;
    QCheckBox* italic_;
    QCheckBox* underline_;
    QCheckBox* strike_;
    QComboBox* color_;
    QLabel* sample_;
};

class RealFontDialog final : public ports::FontDialog {
public:
    std::optional<ports::FontChoice> choose(const ports::FontChoice& current) override;
};

}  // namespace qt
