#include "qt/layouts/sheet_layouts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "qt/binder.h"
#include "qt/key_filter.h"
#include "qt/layouts/parts.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

/// The fields of a patient's sheet in three columns of sections; they are made in the order in which Tab walks them.
/// Enter goes on to the next field, as Tab does.
class SheetLayout {
public:
    SheetLayout(dossier::PatientSheet& sheet, FormWindow& window) : sheet_(sheet), window_(window), bind_(window) {}

    Binder& bind() { return bind_; }

    QLayout* fields() {
        auto* columns = newRow();
        columns->setSpacing(4 * kGrid);
        columns->addLayout(column({identity(), address()}), 1);
        columns->addLayout(column({insurance()}), 1);
        columns->addLayout(column({doctors(), situation(), free()}), 1);
        return columns;
    }

    /// The last field leads to saving; wiping the sheet stands apart from it.
    QLayout* actions(forms::Button& save, forms::Button& cancel, forms::Button& wipe) {
        auto* row = newRow();
        row->addWidget(bind_.button(save));
        row->addWidget(bind_.button(cancel));
        row->addStretch(1);
        row->addWidget(bind_.button(wipe));
        return row;
    }

private:
    static QLayout* column(std::initializer_list<QWidget*> sections) {
        auto* column = newColumn();
        column->setSpacing(2 * kGrid);
        for (QWidget* section : sections) {
            column->addWidget(section);
        }
        column->addStretch(1);
        return column;
    }

    void begin(const QString& title) {
        section_ = new Section(title);
        grid_ = new QGridLayout(section_->body());
        grid_->setContentsMargins(0, 0, 0, 0);
        grid_->setHorizontalSpacing(kGrid);
        grid_->setVerticalSpacing(kGrid / 2);
        grid_->setColumnMinimumWidth(0, kCaptionWidth);
        grid_->setColumnStretch(1, 1);
    }

    void add(const QString& caption, QWidget* field) {
        const int row = grid_->rowCount();
        grid_->addWidget(newCaption(caption, field), row, 0);
        field->setMinimumWidth(kFieldWidth);
        grid_->addWidget(field, row, 1);
    }

    void text(forms::TextBox& control) {
        const QString caption = sheet_.captionOf(control);
        auto* edit = bind_.line(control, caption);
        walkOnAtEnter(edit);
        add(caption, edit);
    }

    void date(forms::TextBox& control) {
        text(control);
        static_cast<QLineEdit*>(window_.widgetOf(control))->setPlaceholderText(QStringLiteral("JJ/MM/AAAA"));
    }

    void combo(forms::ComboBox& control) {
        const QString caption = sheet_.captionOf(control);
        auto* box = bind_.combo(control, caption);
        walkOnAtEnter(box);
        walkOnAtEnter(box->lineEdit());
        add(caption, box);
    }

    void sex() {
        auto* options = bind_.plain(sheet_.Frame2, new QWidget);
        options->setAccessibleName(sheet_.Frame2.text());
        auto* row = newRow(options);
        for (forms::Option* control : {&sheet_.OptFem, &sheet_.OptMasc}) {
            auto* option = bind_.option(*control);
            walkOnAtEnter(option);
            row->addWidget(option);
        }
        row->addStretch(1);
        add(sheet_.Frame2.text(), options);
    }

    void alsace() {
        auto* check = bind_.check(sheet_.TxtAlsacemoselle);
        walkOnAtEnter(check);
        grid_->addWidget(check, grid_->rowCount(), 1);
    }

    QWidget* identity() {
        begin(QStringLiteral("Identité"));
        combo(sheet_.TxtCivilitee);
        text(sheet_.TxtNom);
        text(sheet_.TxtPrenom);
        text(sheet_.TxtNomjf);
        date(sheet_.TxtDatenaiss);
        sex();
        return section_;
    }

    QWidget* address() {
        begin(QStringLiteral("Adresse"));
        text(sheet_.TxtRue1);
        text(sheet_.TxtRue2);
        combo(sheet_.CmbVille);
        combo(sheet_.CmbCodepost);
        text(sheet_.TxtTelephone);
        text(sheet_.TxtFax);
        text(sheet_.TxtEmail);
        return section_;
    }

    QWidget* insurance() {
        begin(QStringLiteral("Assurance"));
        text(sheet_.TxtNumsecsoc);
        text(sheet_.TxtAssure);
        combo(sheet_.CmbQualite);
        text(sheet_.TxtCaisse);
        text(sheet_.TxtPriseencharge);
        date(sheet_.TxtDatefinprisencharge);
        text(sheet_.TxtRanggem);
        text(sheet_.TxtCartesante);
        combo(sheet_.CmbDroits);
        alsace();
        combo(sheet_.CmbTierspayant);
        return section_;
    }

    QWidget* doctors() {
        begin(QStringLiteral("Médecins traitants"));
        text(sheet_.TxtMedtt1);
        text(sheet_.TxtMedtt2);
        text(sheet_.TxtMedtt3);
        text(sheet_.Txtmedtt4);
        return section_;
    }

    QWidget* situation() {
        begin(QStringLiteral("Situation"));
        text(sheet_.TxtProfession);
        text(sheet_.TxtCatsocpro);
        text(sheet_.TxtDCD);
        text(sheet_.TxtPerdudevue);
        return section_;
    }

    QWidget* free() {
        begin(QStringLiteral("Divers"));
        text(sheet_.TxtDivers1);
        text(sheet_.TxtDivers2);
        text(sheet_.TxtDivers3);
        text(sheet_.TxtDivers4);
        return section_;
    }

    static constexpr int kCaptionWidth = 16 * kGrid;
    static constexpr int kFieldWidth = 170;

    dossier::PatientSheet& sheet_;
    FormWindow& window_;
    Binder bind_;
    Section* section_ = nullptr;
    QGridLayout* grid_ = nullptr;
};

constexpr int kWidth = 1220;

}  // namespace

void layOutForm2(dossier::Form2& form, FormWindow& window) {
    SheetLayout layout(form.sheet, window);
    auto* all = newColumn(&window, 2);
    all->setSpacing(2 * kGrid);
    auto* number = newRow();
    number->addWidget(new QLabel(QStringLiteral("Dernier dossier n°")));
    number->addWidget(layout.bind().label(form.NumLbl));
    number->addStretch(1);
    all->addLayout(number);
    all->addLayout(layout.fields(), 1);
    all->addLayout(layout.actions(form.CmdEnreg, form.CmdAnule, form.CmdEfface));
    window.resize(kWidth, window.sizeHint().height());
}

void layOutForm3(dossier::Form3& form, FormWindow& window) {
    SheetLayout layout(form.sheet, window);
    auto* all = newColumn(&window, 2);
    all->setSpacing(2 * kGrid);
    all->addLayout(layout.fields(), 1);
    all->addLayout(layout.actions(form.CmdEnreg, form.CmdAnnule, form.CmdEfface));
    window.resize(kWidth, window.sizeHint().height());
}

}  // namespace qt
