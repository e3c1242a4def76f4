#include <QFormLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>

#include "qt/binder.h"
#include "qt/layouts/exam_layouts.h"
#include "qt/layouts/exam_parts.h"
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
        all->addWidget(strip());
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
    QWidget* strip() {
        ExamStrip strip(bind_);
        strip.identity(form_.LblNom, form_.LblPrenom, form_.LblNumInt);
        strip.value(QStringLiteral("Echographie N°"), bind_.label(form_.LblNumEcho));
        strip.value(QStringLiteral("Date de l'Examen"), bind_.label(form_.LblDatExam));
        strip.value(QStringLiteral("Age Gestationnel"), bind_.label(form_.LblAgeGesta));
        strip.nextLine();
        strip.value(QStringLiteral("DDR"), bind_.label(form_.LblDDR));
        strip.value(QStringLiteral("DDG Théorique"), bind_.label(form_.LblDG));
        strip.value(QStringLiteral("DDG US"), bind_.label(form_.LblDGUS));
        strip.value(QStringLiteral("IMC"), bind_.label(form_.LblIMC));
        strip.value(QStringLiteral("Appareil"), bind_.label(form_.LblMachine));
        strip.value(QStringLiteral("en service"), bind_.label(form_.LblDateCirc));
        return strip.widget();
    }

    QLabel* shown(forms::Label& control) {
        QLabel* label = bind_.label(control);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        return label;
    }

    QLayout* context() {
        auto* column = newColumn();
        auto* exam = new Section(QStringLiteral("Examen"));
        auto* rows = newFields(exam->body());
        rows->addRow(QStringLiteral("Opérateur"), shown(form_.LblOperateur));
        rows->addRow(QStringLiteral("Examen du"), shown(form_.LblDatExamb));
        rows->addRow(QStringLiteral("Modalité d'examen"), shown(form_.LblModalites));
        rows->addRow(QStringLiteral("Conditions d'examen"), shown(form_.LblConditions));
        column->addWidget(exam);
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
        column->addWidget(multiplePanel(bind_, form_.Frame5, {&form_.CmdJ1, &form_.CmdJ2, &form_.CmdJ3}));
        const std::array frames{&form_.FrameJ1, &form_.FrameJ2, &form_.FrameJ3};
        for (int i = 0; i < 3; ++i) {
            column->addWidget(embryo(*frames[static_cast<std::size_t>(i)], i), 1);
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
        column->addWidget(stepping());
        return column;
    }

    QWidget* stepping() {
        Section* section = bind_.section(form_.Frame12);
        section->body()->setLayout(steppingRow(bind_, {&form_.CmdPrem, &form_.CmdRec, &form_.CmdAv, &form_.CmdDer}));
        return section;
    }

    QLayout* actions() {
        return actionRow(bind_, {&form_.Command1, &form_.Command2, &form_.Command3, &form_.CmdModifs,
                                 &form_.CmdSupprime, &form_.Hlb1T, &form_.Hlb2T, &form_.CmdQuitter});
    }

    void addMemo(QFormLayout* rows, const QString& caption, forms::TextBox& box) {
        auto* memo = bind_.memo(box, caption);
        memo->setMinimumHeight(kMemoHeight);
        rows->addRow(caption, memo);
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
