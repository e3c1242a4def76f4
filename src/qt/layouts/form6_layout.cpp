#include <QFormLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>

#include "qt/binder.h"
#include "qt/layouts/exam_layouts.h"
#include "qt/layouts/obstetric_view_parts.h"
#include "qt/layouts/parts.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

class Form6Layout {
public:
    Form6Layout(exams::Form6& form, FormWindow& window) : form_(form), window_(window), bind_(window) {}

    void build() {
        auto* all = newColumn(&window_, 2);
        all->setMenuBar(bind_.menuBar());
        all->addWidget(viewStrip(bind_, form_));
        auto* body = newRow();
        body->setSpacing(3 * kGrid);
        body->addLayout(context(), 4);
        body->addLayout(embryos(), 4);
        body->addLayout(conclusion(), 4);
        all->addLayout(body, 1);
        all->addLayout(actions());
        window_.resize(1280, 700);
    }

private:
    QLayout* context() {
        auto* column = newColumn();
        column->addWidget(examSection(bind_, form_));
        auto* pelvis = new Section(QStringLiteral("Indication et pelvis"));
        auto* memos = newFields(pelvis->body());
        addMemo(memos, QStringLiteral("Indication"), form_.TxtIndic);
        addMemo(memos, QStringLiteral("Utérus"), form_.TxtUterus);
        addMemo(memos, QStringLiteral("Annexes"), form_.TxtAnnexes);
        addMemo(memos, QStringLiteral("Douglas"), form_.TxtDouglas);
        column->addWidget(pelvis, 1);
        return column;
    }

    QLayout* embryos() {
        auto* column = newColumn();
        auto* sac = new Section(QStringLiteral("Sac ovulaire"));
        auto* rows = newFields(sac->body());
        rows->addRow(QStringLiteral("Nombre"), shown(form_.LblNbr));
        rows->addRow(QStringLiteral("Situation"), shown(form_.LblSituation));
        rows->addRow(QStringLiteral("Dimensions"), shown(form_.LblDim));
        rows->addRow(QStringLiteral("Aspect"), shown(form_.LblAspect));
        rows->addRow(QStringLiteral("Nbr. d'Embryons"), shown(form_.LblNbrE));
        column->addWidget(sac);
        column->addWidget(multiplePanel(bind_, form_));
        for (int i = 0; i < exams::FetusPanels::kMost; ++i) {
            column->addWidget(embryo(*form_.frames()[static_cast<std::size_t>(i)], i), 1);
        }
        return column;
    }

    QWidget* embryo(forms::Frame& frame, int which) {
        Section* section = bind_.section(frame);
        auto* rows = newFields(section->body());
        rows->addRow(QStringLiteral("M.A."), shown(form_.LblMA(which)));
        rows->addRow(QStringLiteral("Activ. Cardiaque"), shown(form_.LblAC(which)));
        rows->addRow(QStringLiteral("LCC (mm)"), shown(form_.LblLCC(which)));
        rows->addRow(QStringLiteral("BIP (mm)"), shown(form_.LblBip(which)));
        rows->addRow(QStringLiteral("Fémur (mm)"), shown(form_.LblFem(which)));
        rows->addRow(QStringLiteral("Clarté Nucale"), shown(form_.LblNuque(which)));
        rows->addRow(QStringLiteral("OPN"), shown(form_.LblOPN(which)));
        addMemo(rows, QStringLiteral("Morphologie"), form_.TxtMorpho(which));
        return section;
    }

    QLayout* conclusion() {
        auto* column = newColumn();
        auto* annexes = new Section(QStringLiteral("Annexes de l'oeuf"));
        auto* rows = newFields(annexes->body());
        addMemo(rows, QStringLiteral("Liquide Amnio"), form_.TxtLA);
        addMemo(rows, QStringLiteral("Trophoblaste  Placenta"), form_.TxtPl);
        column->addWidget(annexes, 2);
        auto* end = new Section(QStringLiteral("Conclusion"));
        auto* inside = newColumn(end->body());
        inside->addWidget(bind_.memo(form_.TxtConclu1, QStringLiteral("Conclusion")), 1);
        column->addWidget(end, 3);
        column->addWidget(steppingSection(bind_, form_));
        return column;
    }

    QLayout* actions() {
        return actionRow(bind_, {&form_.Command1, &form_.Command2, &form_.Command3, &form_.CmdModifs,
                                 &form_.CmdSupprime, &form_.Hlb1T, &form_.Hlb2T, &form_.CmdQuitter});
    }

    QLabel* shown(forms::Label& control) { return shownValue(bind_, control); }
    void addMemo(QFormLayout* rows, const QString& caption, forms::TextBox& box) {
        addMemoRow(bind_, rows, caption, box);
    }

    exams::Form6& form_;
    FormWindow& window_;
    Binder bind_;
};

}  // namespace

void layOutForm6(exams::Form6& form, FormWindow& window) {
    Form6Layout(form, window).build();
}

}  // namespace qt
