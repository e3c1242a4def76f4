#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>

#include "exams/later_fields.h"
#include "qt/binder.h"
#include "qt/layouts/exam_layouts.h"
#include "qt/layouts/fetus_grid.h"
#include "qt/layouts/obstetric_view_parts.h"
#include "qt/layouts/parts.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

class Form10Layout {
public:
    Form10Layout(exams::Form10& form, FormWindow& window) : form_(form), window_(window), bind_(window) {}

    void build() {
        auto* all = newColumn(&window_, 2);
        all->setMenuBar(bind_.menuBar());
        all->addWidget(viewStrip(bind_, form_, &form_.Label1));
        auto* body = newRow();
        body->setSpacing(3 * kGrid);
        body->addLayout(mother(), 3);
        body->addLayout(fetuses(), 4);
        body->addLayout(conclusion(), 3);
        all->addLayout(body, 1);
        all->addLayout(actionRow(bind_, {&form_.Command1, &form_.CmdBiometrie, &form_.Command2, &form_.CmdModifs,
                                         &form_.CmdSupprime, &form_.Hlb1T, &form_.Hlb2T, &form_.CmdQuitter}));
        unseen();
        window_.resize(1330, 710);
    }

private:
    QLayout* mother() {
        auto* column = newColumn();
        column->addWidget(examSection(bind_, form_));
        auto* pelvis = new Section(QStringLiteral("Indication et pelvis"));
        auto* rows = newFields(pelvis->body());
        addMemoRow(bind_, rows, QStringLiteral("Indication"), form_.TxtIndic);
        addMemoRow(bind_, rows, QStringLiteral("Utérus"), form_.TxtUterus);
        addMemoRow(bind_, rows, QStringLiteral("Annexes"), form_.TxtAnnexes);
        addMemoRow(bind_, rows, QStringLiteral("Douglas"), form_.TxtDouglas);
        column->addWidget(pelvis, 4);
        auto* arteries = new Section(QStringLiteral("Artères utérines"));
        auto* sides = newFields(arteries->body());
        addMemoRow(bind_, sides, QStringLiteral("Uterine D."), form_.TxtUtD);
        addMemoRow(bind_, sides, QStringLiteral("Utérine G."), form_.TxtUtG);
        column->addWidget(arteries, 2);
        return column;
    }

    QLayout* fetuses() {
        auto* column = newColumn();
        auto* row = newRow();
        auto* count = narrowLine(bind_, form_.TxtNbrE, QStringLiteral("Nbr. de Foetus"), 3);
        row->addWidget(newCaption(QStringLiteral("Nbr. de Foetus"), count));
        row->addWidget(count);
        row->addWidget(multiplePanel(bind_, form_));
        row->addStretch(1);
        column->addLayout(row);
        for (int i = 0; i < exams::FetusPanels::kMost; ++i) {
            Section* section = pageSection(bind_, *form_.frames()[static_cast<std::size_t>(i)]);
            layOutFetus(section->body(),
                        [this, i](int place, const QString& caption) { return fetusField(i, place, caption); });
            column->addWidget(section, 1);
        }
        return column;
    }

    QWidget* fetusField(int fetus, int place, const QString& caption) {
        using Boxes = forms::Array<forms::TextBox>;
        const std::array<Boxes*, exams::later::kFieldsOfFetus> boxes{
            &form_.TxtPres, nullptr,       &form_.TxtAC, &form_.TxtBip,  &form_.TxtCc,   &form_.TxtDio,
            &form_.TxtCerv, &form_.TxtDat, &form_.TxtCa, &form_.TxtFem,  &form_.TxtPied, &form_.TxtTibia,
            &form_.TxtHum,  &form_.TxtNez, nullptr,      &form_.TxtArtO, &form_.TxtArtC};
        if (Boxes* box = boxes[static_cast<std::size_t>(place)]) {
            return bind_.line((*box)(fetus), caption);
        }
        if (place == exams::later::kMorphologyPlace) {
            auto* memo = bind_.memo(form_.morphology(fetus), caption);
            memo->setMinimumHeight(kMemoHeight);
            return memo;
        }
        return bind_.combo(form_.CmbMa(fetus), caption);
    }

    QLayout* conclusion() {
        auto* column = newColumn();
        auto* annexes = new Section(QStringLiteral("Annexes foetales"));
        auto* rows = newFields(annexes->body());
        addMemoRow(bind_, rows, QStringLiteral("Liq. Amnio"), form_.Txt1T(5));
        addMemoRow(bind_, rows, QStringLiteral("Placenta"), form_.Txt1T(6));
        column->addWidget(annexes, 2);
        auto* end = new Section(QStringLiteral("Conclusion"));
        newColumn(end->body())->addWidget(bind_.memo(form_.TxtConclu1, QStringLiteral("Conclusion")), 1);
        column->addWidget(end, 3);
        column->addWidget(steppingSection(bind_, form_));
        return column;
    }

    // Read by the steps alone, or by nothing; what they say stands on the strip in words.
    void unseen() {
        auto* spare = new QWidget(&window_);
        auto* row = newRow(spare);
        row->addWidget(bind_.line(form_.TxtTypecho, QStringLiteral("Type")));
        row->addWidget(bind_.label(form_.Sem_Entier));
        for (const int index : {2, 3}) {
            row->addWidget(bind_.line(form_.Txt1T(index), QStringLiteral("Réserve")));
        }
        spare->hide();
    }

    exams::Form10& form_;
    FormWindow& window_;
    Binder bind_;
};

}  // namespace

void layOutForm10(exams::Form10& form, FormWindow& window) {
    Form10Layout(form, window).build();
}

}  // namespace qt
