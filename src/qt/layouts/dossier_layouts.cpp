#include "qt/layouts/dossier_layouts.h"

#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <algorithm>

#include "qt/binder.h"
#include "qt/layouts/parts.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

/// Lines as close to each other as their letters allow: a whole sheet is in sight at once.
class CloseLines final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        const int letters = option.fontMetrics.tightBoundingRect(QStringLiteral("Éj")).height();
        return {size.width(), std::min(size.height(), letters + 1)};
    }
};

/// The dossier window, built piece by piece; the pieces stand in the order in which Tab walks them.
class DossierLayout {
public:
    DossierLayout(dossier::Form4& form, FormWindow& window) : form_(form), window_(window), bind_(window) {}

    void build() {
        auto* all = newColumn(&window_, 2);
        auto* top = newRow();
        top->setSpacing(3 * kGrid);
        top->addWidget(search(), 2);
        top->addWidget(identity(), 3);
        all->addLayout(top);
        auto* body = newRow();
        body->setSpacing(3 * kGrid);
        body->addWidget(sheet(), 5);
        body->addLayout(exams(), 4);
        body->addLayout(besides(), 4);
        all->addLayout(body, 1);
        all->addLayout(actions());
        window_.resize(1280, 690);
    }

private:
    QWidget* search() {
        Section* section = bind_.section(form_.Frame5);
        auto* grid = new QGridLayout(section->body());
        grid->setContentsMargins(0, 0, 0, 0);
        grid->setSpacing(kGrid);
        const auto field = [&](int row, const QString& caption, forms::TextBox& box) {
            auto* edit = bind_.line(box, caption);
            grid->addWidget(newCaption(caption, edit), row, 0);
            grid->addWidget(edit, row, 1);
        };
        field(0, QStringLiteral("Nom"), form_.Text1);
        field(1, QStringLiteral("Prénom"), form_.Text2);
        auto* browse = newRow();
        browse->setSpacing(kGrid / 2);
        const auto button = [&](forms::Button& control, const QString& name) {
            auto* made = bind_.button(control);
            made->setAccessibleName(name);
            made->setToolTip(name);
            browse->addWidget(made);
        };
        button(form_.Command1, QStringLiteral("Première fiche"));
        button(form_.Command3, QStringLiteral("Fiche précédente"));
        button(form_.Command4, QStringLiteral("Fiche suivante"));
        button(form_.Command2, QStringLiteral("Dernière fiche"));
        grid->addLayout(browse, 2, 1);
        return section;
    }

    QWidget* identity() {
        auto* strip = new QFrame;
        strip->setFrameShape(QFrame::StyledPanel);
        strip->setBackgroundRole(QPalette::Base);
        strip->setAutoFillBackground(true);
        auto* grid = new QGridLayout(strip);
        grid->setContentsMargins(2 * kGrid, kGrid, 2 * kGrid, kGrid);
        grid->setHorizontalSpacing(kGrid);
        grid->addWidget(bind_.label(form_.LblCivilite), 0, 0, 1, 2);
        auto* surname = bind_.label(form_.NomLbl);
        surname->setFont(theme::headingFont());
        grid->addWidget(surname, 1, 0);
        auto* firstName = bind_.label(form_.PrenomLbl);
        firstName->setFont(theme::headingFont());
        grid->addWidget(firstName, 1, 1);
        auto* number = newRow();
        number->addWidget(new QLabel(QStringLiteral("Dossier n°")));
        number->addWidget(bind_.label(form_.NumLbl));
        number->addStretch(1);
        grid->addLayout(number, 2, 0, 1, 2);
        grid->setColumnStretch(2, 1);
        return strip;
    }

    QWidget* sheet() {
        auto* list = bind_.list(form_.LstCiv, QStringLiteral("Fiche de la patiente"));
        list->setFont(theme::fixedFont());
        list->setItemDelegate(new CloseLines(list));
        list->setSelectionMode(QAbstractItemView::NoSelection);
        list->setMinimumWidth(360);
        return list;
    }

    QWidget* examList(forms::Frame& frame, forms::Button& byDate, forms::Button& last, forms::ListBox& dates) {
        Section* section = bind_.section(frame);
        auto* row = newRow(section->body());
        auto* buttons = newColumn();
        buttons->addWidget(bind_.button(byDate));
        buttons->addWidget(bind_.button(last));
        buttons->addStretch(1);
        row->addLayout(buttons);
        auto* list = bind_.list(dates, QStringLiteral("Dates des examens"));
        list->setToolTip(QStringLiteral("Double-cliquez sur une date, ou Entrée, pour revoir l'examen"));
        row->addWidget(list, 1);
        return section;
    }

    QLayout* exams() {
        auto* column = newColumn();
        column->setSpacing(2 * kGrid);
        Section* fresh = bind_.section(form_.Frame2);
        auto* buttons = newRow(fresh->body());
        for (forms::Button* control : {&form_.Cmd1Ter, &form_.Cmd2Ter, &form_.CmdGyneco}) {
            buttons->addWidget(bind_.button(*control));
        }
        column->addWidget(fresh);
        column->addWidget(examList(form_.Frame3, form_.HlbCptDate, form_.HlbCptDer, form_.List1), 1);
        column->addWidget(examList(form_.Frame6, form_.Command6, form_.Command5, form_.List2), 1);
        return column;
    }

    QLayout* besides() {
        auto* column = newColumn();
        column->setSpacing(2 * kGrid);
        auto* history = new Section(QStringLiteral("Antécédents"));
        auto* inside = newColumn(history->body());
        auto* memo = bind_.memo(form_.TxtATCD, QStringLiteral("Antécédents"));
        auto* buttons = newRow();
        buttons->addWidget(bind_.button(form_.CmdATCD));
        buttons->addWidget(bind_.button(form_.CmdEnregATCD), 1);
        inside->addLayout(buttons);
        inside->addWidget(memo, 1);
        column->addWidget(history, 1);
        column->addWidget(letterhead());
        return column;
    }

    QWidget* letterhead() {
        Section* section = bind_.section(form_.Frame4);
        auto* fields = new QFormLayout(section->body());
        fields->setContentsMargins(0, 0, 0, 0);
        fields->setSpacing(kGrid / 2);
        const auto add = [&](const QString& caption, forms::TextBox& box) {
            fields->addRow(caption, bind_.line(box, caption));
        };
        add(QStringLiteral("Etablissement"), form_.TxtEta);
        add(QStringLiteral("Praticien"), form_.TxtNom);
        add(QStringLiteral("Adresse"), form_.TxtAdress);
        add(QStringLiteral("Ville"), form_.TxtVille);
        add(QStringLiteral("Téléphone"), form_.TxtTel);
        return section;
    }

    QLayout* actions() {
        auto* row = newRow();
        for (forms::Button* control : {&form_.CmdCreeDossier, &form_.CmdModifie, &form_.CmdSupprime}) {
            row->addWidget(bind_.button(*control));
        }
        row->addStretch(1);
        row->addWidget(bind_.plain(form_.Image1, new QWidget));
        row->addWidget(bind_.button(form_.Menu));
        row->addWidget(bind_.button(form_.CmdQuitter));
        return row;
    }

    dossier::Form4& form_;
    FormWindow& window_;
    Binder bind_;
};

}  // namespace

void layOutForm4(dossier::Form4& form, FormWindow& window) {
    DossierLayout(form, window).build();
}

}  // namespace qt
