#include "exams/exam_life.h"

#include "base/numbers.h"
#include "pictures/form19.h"

namespace exams {

QString ExamLife::dossierNumber() const {
    const auto* window = desk().peek<dossier::Form4>();
    return base::queryNumber(window ? window->NumLbl.text() : QString());
}

bool ExamLife::dossierOpen() const {
    const auto* window = desk().peek<dossier::Form4>();
    return window && !window->NomLbl.text().isEmpty();
}

void ExamLife::copyIdentity(forms::Label& surname, forms::Label& firstName, forms::Label& number) const {
    const dossier::Form4& from = dossierWindow();
    surname.setText(from.NomLbl.text());
    firstName.setText(from.PrenomLbl.text());
    number.setText(from.NumLbl.text());
}

void ExamLife::openBase() const {
    state_.openExams();
}

void ExamLife::query(const QString& text) const {
    state_.queryExams(text);
}

QString ExamLife::lastStored(int rubric) const {
    QString last;
    query(QStringLiteral("SELECT*FROM OPTIONS WHERE NUMEROS = %1 ").arg(rubric));
    for (; !state_.Rs.eof(); state_.Rs.moveNext()) {
        last = state_.Rs.text(QStringLiteral("Texte"));
    }
    return last;
}

void ExamLife::readDevice(forms::Label& device, forms::Label& inService) const {
    device.setText(lastStored(14));
    inService.setText(lastStored(15));
}

QString ExamLife::nextNumber(const QString& table) const {
    const QString number = dossierNumber();
    openBase();
    query(QStringLiteral("SELECT*FROM %1 WHERE NUMERO=%2 ORDER BY NUMECHO").arg(table, number));
    state_.Rs.findFirst(QStringLiteral("NUMERO=") + number);
    if (state_.Rs.noMatch()) {
        return QStringLiteral("1");
    }
    state_.Rs.moveLast();
    return QString::number(state_.Rs.field(QStringLiteral("NUMECHO")).number() + 1);
}

bool ExamLife::confirmSaving() const {
    return boxes().ask(QStringLiteral("Voulez vous vraiment enregistrer ce compte rendu ?"));
}

bool ExamLife::confirmCorrection() const {
    return boxes().ask(
        QStringLiteral("Voulez vous vraiment enregistrer les modifications apportées à ce compte rendu ?"));
}

bool ExamLife::confirmDeletion(const QString& secondQuestion) const {
    return boxes().ask(QStringLiteral("Voulez vous vraiment SUPPRIMER cette Echographie ?")) &&
           boxes().ask(secondQuestion);
}

void ExamLife::showWith(const QString& window, const QList<std::pair<QString, QString>>& texts) const {
    desk().show(window);
    const forms::Form& shown = desk().at(window);
    for (const auto& [control, text] : texts) {
        static_cast<forms::TextControl*>(shown.find(control))->setText(text);
    }
}

void ExamLife::showCapture(const QString& examNumber) const {
    desk().show(pictures::Form19::kName.toString());
    auto& window = desk().at<pictures::Form19>();
    window.takeIdentity();
    window.TxtNumEcho.setText(examNumber);
}

void ExamLife::returnToDossier() const {
    desk().unload(QStringLiteral("Form4"));
    desk().show(QStringLiteral("Form4"));
    desk().hide(QStringLiteral("Form1"));
}

}  // namespace exams
