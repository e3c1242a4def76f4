#include "shell/program.h"

#include <memory>

#include "biometry/form12.h"
#include "biometry/form13.h"
#include "dossier/form2.h"
#include "dossier/form3.h"
#include "dossier/form4.h"
#include "exams/form10.h"
#include "exams/form11.h"
#include "exams/form5.h"
#include "exams/form6.h"
#include "exams/form7.h"
#include "exams/form8.h"
#include "gyneco/form16.h"
#include "gyneco/form17.h"
#include "gyneco/form18.h"
#include "pictures/form19.h"
#include "pictures/form20.h"
#include "pictures/frm_cpr.h"
#include "reports/riche_t.h"
#include "responses/form9.h"
#include "shell/form0.h"
#include "shell/form1.h"
#include "shell/form14.h"
#include "shell/form15.h"
#include "shell/form21.h"
#include "shell/form22.h"

namespace shell {

Program::Program(const ports::Machine& machine) : around_{machine, desk_} {
    desk_.setErrorReport([this](const base::RuntimeError& error) { around_.boxes.report(error); });
    addWindows();
}

void Program::addWindows() {
    desk_.add(QStringLiteral("Form0"), [this] { return std::make_unique<Form0>(desk_); });
    desk_.add(QStringLiteral("Form1"), [this] { return std::make_unique<Form1>(around_, state_); });
    desk_.add(QStringLiteral("Form2"), [this] { return std::make_unique<dossier::Form2>(around_, state_); });
    desk_.add(QStringLiteral("Form3"), [this] { return std::make_unique<dossier::Form3>(around_, state_); });
    desk_.add(QStringLiteral("Form4"), [this] { return std::make_unique<dossier::Form4>(around_, state_, *this); });
    desk_.add(QStringLiteral("Form5"), [this] { return std::make_unique<exams::Form5>(obstetric_); });
    desk_.add(QStringLiteral("Form6"), [this] { return std::make_unique<exams::Form6>(obstetric_); });
    desk_.add(QStringLiteral("Form7"), [this] { return std::make_unique<exams::Form7>(obstetric_); });
    desk_.add(QStringLiteral("Form8"), [this] { return std::make_unique<exams::Form8>(obstetric_); });
    desk_.add(QStringLiteral("Form9"), [this] { return std::make_unique<responses::Form9>(around_, state_); });
    desk_.add(QStringLiteral("Form10"), [this] { return std::make_unique<exams::Form10>(obstetric_); });
    desk_.add(QStringLiteral("Form11"), [this] { return std::make_unique<exams::Form11>(obstetric_); });
    desk_.add(QStringLiteral("Form12"),
              [this] { return std::make_unique<biometry::Form12>(around_, state_, laterExam_); });
    desk_.add(QStringLiteral("Form13"), [this] { return std::make_unique<biometry::Form13>(desk_); });
    desk_.add(QStringLiteral("Form14"), [this] { return std::make_unique<Form14>(desk_); });
    desk_.add(QStringLiteral("Form15"), [this] { return std::make_unique<Form15>(desk_); });
    desk_.add(QStringLiteral("Form16"), [this] { return std::make_unique<gyneco::Form16>(gynaecology_); });
    desk_.add(QStringLiteral("Form17"), [this] { return std::make_unique<gyneco::Form17>(gynaecology_); });
    desk_.add(QStringLiteral("Form18"), [this] { return std::make_unique<gyneco::Form18>(gynaecology_); });
    desk_.add(QStringLiteral("Form19"), [this] { return std::make_unique<pictures::Form19>(around_); });
    desk_.add(QStringLiteral("Form20"), [this] { return std::make_unique<pictures::Form20>(around_); });
    desk_.add(QStringLiteral("Form21"), [this] { return std::make_unique<Form21>(around_, state_); });
    desk_.add(QStringLiteral("Form22"), [this] { return std::make_unique<Form22>(around_, state_); });
    desk_.add(QStringLiteral("FrmCpr"), [this] { return std::make_unique<pictures::FrmCpr>(around_); });
    desk_.add(QStringLiteral("RicheT"), [this] { return std::make_unique<reports::RicheT>(around_); });
}

void Program::start() {
    desk_.act([this] { desk_.at<Form0>(); });
}

void Program::showHelp(const QString& window) {
    around_.help.showChapter(around_.manual(), window);
}

void Program::openNew(dossier::ExamFamily family) {
    if (family == dossier::ExamFamily::Gynaecology) {
        gynaecology_.openNew();
    } else {
        obstetric_.openNew(family);
    }
}

void Program::showObstetricExam() {
    obstetric_.display();
}

void Program::showGynaecologyExam() {
    gynaecology_.display();
}

void Program::nameNewExam(const QString& surname, const QString& firstName) {
    auto& window = desk_.at<exams::Form5>();
    window.sheet.LblNom.setText(surname);
    window.sheet.LblPrenom.setText(firstName);
}

}  // namespace shell
