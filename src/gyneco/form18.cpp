#include "gyneco/form18.h"

#include "exams/exam_record.h"
#include "gyneco/form17.h"
#include "gyneco/gynaecology_reports.h"
#include "reports/riche_t.h"

namespace gyneco {

Form18::Form18(GynaecologyExams& exams)
    : Form(exams.life().desk(), kName.toString(), QStringLiteral("Echographie Gynécologique")), exams_(exams) {
    Examens.holds(CreeEcho, Modifie, Supprime, Quitte);
    Affichage.holds(EchoPelv, MonOv);
    Rapports.holds(EchoP, Monito);
    Interro.holds(Aide, APropos);
    fillFrames();
    forms::lockBoxes(*this);
    Command3.hide();
    CmdCptStim.hide();
    wireMenus();
    wireButtons();
}

void Form18::fillFrames() {
    const auto hold = [this](forms::Frame& frame, int first, int last) {
        for (int i = first; i <= last; ++i) {
            frame.holds(TxtGyneco(i));
        }
    };
    pages.Frame2.holds(CmbMedecin, TxtDdr, LblDatExamb, CmbModExam, CmbCondExam, TxtGyneco(0));
    hold(pages.Frame3, 1, 10);
    hold(pages.Frame4, 11, 14);
    hold(pages.Frame5, 15, 15);
    hold(pages.Frame6, 16, 20);
    hold(pages.Frame7, 21, 21);
    pages.Frame8.holds(TxtJStim, TxtDimD, TxtNbrFolD, TxtTFolD, TxtDimG, TxtNbrFolG, TxtTFolG, TxtEndom, Text1, Text2);
}

void Form18::wireMenus() {
    CreeEcho.onClick = [this] { exams_.openNew(); };
    Modifie.onClick = [this] { Modif(); };
    Supprime.onClick = [this] { Supprim(); };
    Quitte.onClick = [this] { unload(); };
    EchoPelv.onClick = [this] { turnToPelvic(); };
    MonOv.onClick = [this] { turnToMonitoring(); };
    EchoP.onClick = [this] { CptRenduGyneco(); };
    Monito.onClick = [this] { CptRenduOvulation(); };
    Aide.onClick = [this] {
        const ports::Surroundings& around = exams_.life().around();
        around.help.showContents(around.manual());
    };
    APropos.onClick = [this] { desk().show(QStringLiteral("Form14")); };
}

void Form18::wireButtons() {
    CmdPrem.onClick = [this] { exams_.showFirst(); };
    CmdRec.onClick = [this] { exams_.showPrevious(); };
    CmdAv.onClick = [this] { exams_.showNext(); };
    CmdDer.onClick = [this] { exams_.showFinal(); };
    Command2.onClick = [this] {
        turnToMonitoring();
        Command2.hide();
    };
    Command3.onClick = [this] { EchoPelv.click(); };
    CmdCptGyn.onClick = [this] { CptRenduGyneco(); };
    CmdCptStim.onClick = [this] { CptRenduOvulation(); };
    Command1.onClick = [this] { showPhotos(); };
    CmdModifs.onClick = [this] { Modif(); };
    CmdSupprime.onClick = [this] { Supprim(); };
    HlbGyn.onClick = [this] { CreeEcho.click(); };
    CmdQuitter.onClick = [this] { unload(); };
}

void Form18::unloading() {
    desk().unload(QStringLiteral("Form16"));
    exams_.life().returnToDossier();
}

void Form18::display() {
    exams_.life().copyIdentity(LblNom, LblPrenom, LblNumInt);
    exams::readRecord(*this, QStringLiteral("TxtGyneco"), kShownFields, exams_.life().state().Rs);
}

// The button that led here is left as it is: by the menu it stays beside the other one.
void Form18::turnToMonitoring() {
    pages.nameMonitoring();
    CmdCptStim.show();
    CmdCptGyn.hide();
    pages.paintCommonFrame();
    pages.Frame8.show();
    pages.setPelvicVisible(false);
    Command3.show();
}

// The frame that both pages have keeps its colour.
void Form18::turnToPelvic() {
    pages.namePelvic();
    CmdCptGyn.show();
    CmdCptStim.hide();
    pages.setPelvicVisible(true);
    pages.Frame8.hide();
    Command2.show();
    Command3.hide();
}

void Form18::showPhotos() {
    exams_.life().showWith(QStringLiteral("Form20"),
                           {{QStringLiteral("TxtRechNom"), exams_.life().dossierWindow().NomLbl.text()},
                            {QStringLiteral("TxtRechDate"), TxtDate.text()},
                            {QStringLiteral("TxtRechNumEcho"), TxtNumEcho.text()}});
}

void Form18::CptRenduGyneco() {
    reports::RicheT& editor = reports::openEditor(desk(), reports::kPelvicTitle);
    type(reports::CptRenduGyneco(examOnShow(*this, exams_.life())), editor.RichTextBox1);
}

void Form18::CptRenduOvulation() {
    reports::RicheT& editor = reports::openEditor(desk(), reports::kOvulationTitle);
    type(reports::CptRenduOvulation(examOnShow(*this, exams_.life())), editor.RichTextBox1);
}

void Form18::Modif() {
    desk().show(Form17::kName.toString());
    desk().at<Form17>().sheet.TxtGyneco(kOperator).setFocus();
}

void Form18::Supprim() {
    if (!exams_.deleteInView()) {
        return;
    }
    unload();
    exams_.life().dossierWindow().reopenPatients();
}

}  // namespace gyneco
