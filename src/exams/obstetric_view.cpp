#include "exams/obstetric_view.h"

#include "base/numbers.h"
#include "exams/report_head.h"

namespace exams {

ObstetricView::ObstetricView(ObstetricExams& exams, QStringView name, const QString& title, const QString& fetus,
                             int thirdFrame)
    : Form(exams.life().desk(), name.toString(), title), FetusPanels(*this, fetus, thirdFrame), exams_(exams) {
    Frame12.holds(CmdPrem, CmdRec, CmdAv, CmdDer);
    TypeCptR.holds(CptrD, CptrM, Intro);
    for (int i = 0; i < kMost; ++i) {
        buttons()[static_cast<std::size_t>(i)]->onClick = [this, i] { bringInView(i); };
    }
    CmdPrem.onClick = [this] { exams_.showFirst(); };
    CmdRec.onClick = [this] { exams_.showPrevious(); };
    CmdAv.onClick = [this] { exams_.showNext(); };
    CmdDer.onClick = [this] { exams_.showFinal(); };
    Hlb1T.onClick = [this] { exams_.openNew(dossier::ExamFamily::FirstTrimester); };
    Hlb2T.onClick = [this] { exams_.openNew(dossier::ExamFamily::LaterTrimesters); };
    CmdQuitter.onClick = [this] { unload(); };
    wireStyle();
}

void ObstetricView::wireStyle() {
    const auto choose = [this](bool full) {
        CptrD.setChecked(full);
        CptrM.setChecked(!full);
    };
    CptrD.onClick = [choose] { choose(true); };
    CptrM.onClick = [choose] { choose(false); };
    Intro.onClick = [this] { Intro.setChecked(!Intro.checked()); };
}

void ObstetricView::wireEntries(forms::Menu& newFirst, forms::Menu& newLater, forms::Menu& leaving) {
    newFirst.onClick = [this] { Hlb1T.click(); };
    newLater.onClick = [this] { Hlb2T.click(); };
    leaving.onClick = [this] { leave(); };
    Aide.onClick = [this] {
        const ports::Surroundings& around = exams_.life().around();
        around.help.showContents(around.manual());
    };
}

void ObstetricView::copyIdentity() {
    exams_.life().copyIdentity(LblNom, LblPrenom, LblNumInt);
}

void ObstetricView::takeMarks(bool MenuMarks::*detailed, bool MenuMarks::*other) {
    if (const auto marks = readSettings(exams_.life().around().programFolder)) {
        CptrD.setChecked((*marks).*detailed);
        CptrM.setChecked((*marks).*other);
        Intro.setChecked(marks->introduction);
    }
}

reports::Detail ObstetricView::detail() const {
    return CptrM.checked() ? reports::Detail::Minimum : reports::Detail::Full;
}

std::optional<QString> ObstetricView::introduction() const {
    return Intro.checked() ? std::optional(introductionOf(exams_.life())) : std::nullopt;
}

void ObstetricView::bringInView(int which) {
    paintFetus(which);
    Frame12.setVisible(which == 0);
}

void ObstetricView::hidePanel() {
    Frame5.hide();
    bringInView(0);
}

void ObstetricView::showPanelAgain(const QString& count) {
    if (base::isNumeric(count) && base::toNumber(count) >= 2) {
        Frame5.show();
    } else {
        hidePanel();
    }
}

void ObstetricView::showPhotos() {
    exams_.life().showWith(QStringLiteral("Form20"),
                           {{QStringLiteral("TxtRechNom"), exams_.life().dossierWindow().NomLbl.text()},
                            {QStringLiteral("TxtRechDate"), LblDatExam.text()},
                            {QStringLiteral("TxtRechNumEcho"), LblNumEcho.text()}});
}

void ObstetricView::deleteExam(const std::function<void()>& clearWriting) {
    if (!exams_.deleteInView(base::queryNumber(LblNumEcho.text()))) {
        return;
    }
    clearWriting();
    unload();
    exams_.life().dossierWindow().reopenPatients();
}

void ObstetricView::leave() {
    exams_.withoutKeepingMarks([this] { unload(); });
}

}  // namespace exams
