#include "exams/obstetric_view.h"

#include "base/numbers.h"

namespace exams {

ObstetricView::ObstetricView(ObstetricExams& exams, QStringView name, const QString& title, const QString& fetus,
                             int thirdFrame)
    : Form(exams.life().desk(), name.toString(), title), FetusPanels(*this, fetus, thirdFrame), exams_(exams) {
    Frame12.holds(CmdPrem, CmdRec, CmdAv, CmdDer);
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
}

void ObstetricView::wireEntries(const Entries& entries) {
    const auto choose = [&detailed = entries.detailed, &minimum = entries.minimum](bool full) {
        detailed.setChecked(full);
        minimum.setChecked(!full);
    };
    entries.detailed.onClick = [choose] { choose(true); };
    entries.minimum.onClick = [choose] { choose(false); };
    entries.introduction.onClick = [&mark = entries.introduction] { mark.setChecked(!mark.checked()); };
    entries.newFirst.onClick = [this] { Hlb1T.click(); };
    entries.newLater.onClick = [this] { Hlb2T.click(); };
    entries.leave.onClick = [this] { leave(); };
    entries.help.onClick = [this] {
        const ports::Surroundings& around = exams_.life().around();
        around.help.showContents(around.programFolder + QStringLiteral("/VERANOX.HLP"));
    };
}

void ObstetricView::lockBoxesBut(const QStringList& names) {
    for (forms::Control* control : controls()) {
        const bool open = names.contains(control->name(), Qt::CaseInsensitive);
        if (control->kind() == forms::Kind::TextBox) {
            static_cast<forms::TextBox*>(control)->setLocked(!open);
        } else if (control->kind() == forms::Kind::ComboBox) {
            static_cast<forms::ComboBox*>(control)->setLocked(!open);
        }
    }
}

void ObstetricView::copyIdentity() {
    exams_.life().copyIdentity(LblNom, LblPrenom, LblNumInt);
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
