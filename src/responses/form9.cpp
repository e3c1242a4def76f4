#include "responses/form9.h"

#include "base/errors.h"
#include "base/numbers.h"

namespace responses {
namespace {

const QString kText = QStringLiteral("Texte");
const QString kClosing = QStringLiteral("TERMINAIS");

}  // namespace

Form9::Form9(ports::Surroundings& around, store::State& state)
    : Form(around.desk, kName.toString(), QStringLiteral("Options")),
      around_(around),
      state_(state),
      introduction_(around.programFolder) {
    wireRubrics();
    Frame3.holds(CmdIntro);
    Frame1.holds(LblEspion, List1, Text1, OBSuite, OBLigne, OBClot, CmdAjoute, CmdModif, CmdSupprime);
    Frame9.holds(TxtIntro, CmdEnreg, CmdAnul);
    Frame9.hide();
    wireEditor();
    wireIntroduction();
    CmdQuitter.onClick = [this] { unload(); };
}

std::deque<forms::Button> Form9::makeRubricButtons() {
    std::deque<forms::Button> buttons;
    for (const Rubric& rubric : kRubrics) {
        buttons.emplace_back(*this, rubric.button.toString(), rubric.caption.toString());
    }
    return buttons;
}

forms::Frame& Form9::frameOf(RubricGroup group) {
    switch (group) {
        case RubricGroup::Practice:
            return Frame2;
        case RubricGroup::General:
            return Frame3;
        case RubricGroup::FirstTrimester:
            return Frame4;
        case RubricGroup::Gynaecology:
            return Frame5;
        case RubricGroup::LaterTrimesters:
            return Frame6;
        case RubricGroup::CheckList:
            break;
    }
    return Frame8;
}

void Form9::wireRubrics() {
    for (std::size_t i = 0; i < kRubrics.size(); ++i) {
        const Rubric& rubric = kRubrics[i];
        RubricButtons[i].onClick = [this, &rubric] { openRubric(rubric); };
        frameOf(rubric.group).holds(RubricButtons[i]);
    }
}

void Form9::wireEditor() {
    CmdAjoute.onClick = [this] { onCmdAjouteClick(); };
    CmdModif.onClick = [this] { onCmdModifClick(); };
    CmdSupprime.onClick = [this] { onCmdSupprimeClick(); };
    List1.onDoubleClick = [this] { onList1DoubleClick(); };
}

void Form9::wireIntroduction() {
    CmdIntro.onClick = [this] { onCmdIntroClick(); };
    CmdEnreg.onClick = [this] { onCmdEnregClick(); };
    CmdAnul.onClick = [this] { Frame9.hide(); };
}

void Form9::load() {
    state_.PathEcho =
        around_.settings.read(ports::kApplication, ports::kSection, QStringLiteral("CHEMIN"), around_.programFolder);
}

void Form9::openRubric(const Rubric& rubric) {
    Frame1.setText(rubric.title.toString());
    LblEspion.setText(QString::number(rubric.number));
    state_.openExams();
    state_.queryExams(QStringLiteral("SELECT*FROM OPTIONS WHERE NUMEROS = %1 ").arg(rubric.number) +
                      rubric.order.toString());
    fillList();
}

int Form9::rubricNumber() const {
    return base::toInt16(base::toNumber(LblEspion.text()));
}

void Form9::queryRubric() {
    state_.queryExams(QStringLiteral("SELECT*FROM OPTIONS WHERE NUMEROS =%1").arg(rubricNumber()));
}

void Form9::reopenRubric() {
    state_.openExams();
    queryRubric();
}

void Form9::fillList() {
    List1.clear();
    for (; !state_.Rs.eof(); state_.Rs.moveNext()) {
        List1.add(state_.Rs.text(kText));
    }
}

// Beyond a find that matched nothing the cursor still stands on a row: another phrase than the one chosen.
void Form9::findChosen() {
    QString quoted = chosen_;
    quoted.replace(u'\'', QStringLiteral("''"));
    state_.Rs.findFirst(QStringLiteral("[TEXTE] = '") + quoted + u'\'');
    if (state_.Rs.noMatch()) {
        throw base::RuntimeError(
            base::ErrorNumber::NoCurrentRecord,
            QStringLiteral("Cet item n'est pas dans la rubrique : choisissez-le par un double clic dans la liste."));
    }
}

QString Form9::closingLetter() {
    if (OBSuite.checked()) {
        letter_ = QStringLiteral("A");
    } else if (OBLigne.checked()) {
        letter_ = QStringLiteral("B");
    } else if (OBClot.checked()) {
        letter_ = QStringLiteral("C");
    }
    return letter_;
}

void Form9::showClosing(const QString& letter) {
    OBSuite.setChecked(letter == u"A");
    OBLigne.setChecked(letter == u"B");
    OBClot.setChecked(letter == u"C");
}

bool Form9::requireText(const QString& message) {
    if (Text1.text().isEmpty()) {
        around_.boxes.message(message);
        return false;
    }
    return true;
}

void Form9::onCmdAjouteClick() {
    if (!requireText(QStringLiteral("Veuillez saisir un Item au préalable"))) {
        return;
    }
    const int number = rubricNumber();
    const QString letter = closingLetter();
    reopenRubric();
    state_.Rs.addNew();
    state_.Rs.set(QStringLiteral("NUMEROS"), number);
    state_.Rs.set(kText, Text1.text());
    state_.Rs.set(kClosing, letter);
    state_.Rs.update();
    reopenRubric();
    fillList();
    Text1.setText({});
    Text1.setFocus();
}

void Form9::onCmdModifClick() {
    if (!requireText(QStringLiteral("Veuillez selectionner un Item par Double Click"))) {
        return;
    }
    reopenRubric();
    findChosen();
    state_.Rs.edit();
    state_.Rs.set(kText, Text1.text());
    state_.Rs.set(kClosing, closingLetter());
    state_.Rs.update();
    chosen_ = Text1.text();
    reopenRubric();
    fillList();
}

void Form9::onCmdSupprimeClick() {
    if (!requireText(QStringLiteral("Veuillez selectionner un Item au préalable par Double Click."))) {
        return;
    }
    reopenRubric();
    findChosen();
    state_.Rs.remove();
    reopenRubric();
    fillList();
}

template <class Step>
void Form9::attempt(Step step) {
    try {
        step();
    } catch (const base::RuntimeError&) {
        around_.boxes.message(QStringLiteral("Impossible"));
    }
}

void Form9::onList1DoubleClick() {
    if (List1.row() < 0) {
        return;
    }
    chosen_ = List1.text();
    QString letter;
    attempt([this] { state_.openExams(); });
    attempt([this] { queryRubric(); });
    attempt([&] {
        findChosen();
        letter = state_.Rs.text(kClosing);
    });
    showClosing(letter);
    Text1.setText(chosen_);
}

void Form9::onCmdIntroClick() {
    const QString text = introduction_.read();
    Frame9.show();
    Frame1.setText(QStringLiteral("Introduction"));
    TxtIntro.setText(text);
}

// The panel goes only when the file is written: a failure keeps it and its text.
void Form9::onCmdEnregClick() {
    introduction_.write(TxtIntro.text());
    Frame9.hide();
}

}  // namespace responses
