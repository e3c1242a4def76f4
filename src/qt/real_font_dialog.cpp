#include "qt/real_font_dialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDoubleValidator>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPixmap>
#include <utility>

#include "qt/key_filter.h"
#include "qt/layouts/parts.h"

namespace qt {
namespace {

constexpr double kLeastSize = 1;
constexpr double kMostSize = 400;

const std::pair<QStringView, QRgb> kColors[] = {
    {u"Noir", 0x000000},   {u"Bordeaux", 0x800000}, {u"Vert", 0x008000},        {u"Olive", 0x808000},
    {u"Marine", 0x000080}, {u"Pourpre", 0x800080},  {u"Bleu-vert", 0x008080},   {u"Gris", 0x808080},
    {u"Argent", 0xc0c0c0}, {u"Rouge", 0xff0000},    {u"Citron vert", 0x00ff00}, {u"Jaune", 0xffff00},
    {u"Bleu", 0x0000ff},   {u"Fuchsia", 0xff00ff},  {u"Cyan", 0x00ffff},        {u"Blanc", 0xffffff},
};

void addColor(QComboBox* box, const QString& name, const QColor& color) {
    QPixmap patch(16, 16);
    patch.fill(color);
    box->addItem(QIcon(patch), name, color);
}

QComboBox* newColors() {
    auto* box = new QuietComboBox;
    for (const auto& [name, rgb] : kColors) {
        addColor(box, name.toString(), QColor::fromRgb(rgb));
    }
    return box;
}

QComboBox* newSizes() {
    auto* box = new QuietComboBox;
    box->setEditable(true);
    for (const int size : {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72}) {
        box->addItem(QString::number(size));
    }
    auto* sizes = new QDoubleValidator(kLeastSize, kMostSize, 1, box);
    sizes->setNotation(QDoubleValidator::StandardNotation);
    box->setValidator(sizes);
    return box;
}

QComboBox* newNames() {
    auto* box = new QuietComboBox;
    box->addItem(QStringLiteral("Arial"));
    for (const QString& family : QFontDatabase::families()) {
        if (!QFontDatabase::isPrivateFamily(family) && box->findText(family) < 0) {
            box->addItem(family);
        }
    }
    return box;
}

// Chooses an entry, which is added if it isn't there.
void choose(QComboBox* box, const QString& text) {
    if (box->findText(text) < 0) {
        box->addItem(text);
    }
    box->setCurrentIndex(box->findText(text));
}

}  // namespace

FontBox::FontBox(const ports::FontChoice& current, QWidget* parent)
    : QDialog(parent),
      name_(newNames()),
      size_(newSizes()),
      bold_(new QCheckBox(QStringLiteral("&Gras"))),
      italic_(new QCheckBox(QStringLiteral("&Italique"))),
      underline_(new QCheckBox(QStringLiteral("&Souligné"))),
      strike_(new QCheckBox(QStringLiteral("&Barré"))),
      color_(newColors()),
      sample_(new QLabel(QStringLiteral("Compte rendu d'échographie"))) {
    setObjectName(QStringLiteral("font"));
    setWindowTitle(QStringLiteral("Police"));
    build();
    show(current);
}

void FontBox::build() {
    auto* all = newColumn(this, 2);
    auto* fields = new QGridLayout;
    fields->addWidget(newCaption(QStringLiteral("&Police"), name_), 0, 0);
    fields->addWidget(name_, 0, 1, 1, 2);
    fields->addWidget(newCaption(QStringLiteral("&Taille"), size_), 1, 0);
    fields->addWidget(size_, 1, 1, 1, 2);
    fields->addWidget(bold_, 2, 1);
    fields->addWidget(italic_, 2, 2);
    fields->addWidget(underline_, 3, 1);
    fields->addWidget(strike_, 3, 2);
    fields->addWidget(newCaption(QStringLiteral("&Couleur"), color_), 4, 0);
    fields->addWidget(color_, 4, 1, 1, 2);
    all->addLayout(fields);
    sample_->setFrameShape(QFrame::StyledPanel);
    sample_->setAlignment(Qt::AlignCenter);
    sample_->setMinimumSize(360, 72);
    sample_->setAutoFillBackground(true);
    all->addWidget(sample_);
    auto* remark = new QLabel(QStringLiteral("Le texte garde sa police ; le reste lui est appliqué."));
    remark->setWordWrap(true);
    all->addWidget(remark);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    all->addWidget(buttons);
    for (QComboBox* box : {name_, size_, color_}) {
        connect(box, &QComboBox::currentTextChanged, this, [this] { showSample(); });
    }
    for (QCheckBox* box : {bold_, italic_, underline_, strike_}) {
        connect(box, &QCheckBox::toggled, this, [this] { showSample(); });
    }
}

void FontBox::show(const ports::FontChoice& choice) {
    choose(name_, choice.name);
    size_->setCurrentText(QLocale().toString(choice.size, 'g', 4));
    bold_->setChecked(choice.bold);
    italic_->setChecked(choice.italic);
    underline_->setChecked(choice.underline);
    strike_->setChecked(choice.strike);
    if (color_->findData(choice.color) < 0) {
        addColor(color_, choice.color.name(), choice.color);
    }
    color_->setCurrentIndex(color_->findData(choice.color));
    showSample();
}

ports::FontChoice FontBox::choice() const {
    const double size = QLocale().toDouble(size_->currentText());
    return {name_->currentText(),
            qBound(kLeastSize, size, kMostSize),
            bold_->isChecked(),
            italic_->isChecked(),
            underline_->isChecked(),
            strike_->isChecked(),
            color_->currentData().value<QColor>()};
}

void FontBox::showSample() {
    const ports::FontChoice now = choice();
    QFont font(now.name);
    font.setPointSizeF(qMin(now.size, 36.0));
    font.setBold(now.bold);
    font.setItalic(now.italic);
    font.setUnderline(now.underline);
    font.setStrikeOut(now.strike);
    sample_->setFont(font);
    QPalette paper = palette();
    paper.setColor(QPalette::Window, Qt::white);
    paper.setColor(QPalette::WindowText, now.color);
    sample_->setPalette(paper);
}

std::optional<ports::FontChoice> RealFontDialog::choose(const ports::FontChoice& current) {
    FontBox box(current, QApplication::activeWindow());
    return box.exec() == QDialog::Accepted ? std::optional(box.choice()) : std::nullopt;
}

}  // namespace qt
