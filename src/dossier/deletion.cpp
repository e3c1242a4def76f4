#include "dossier/deletion.h"

#include <array>

#include "base/errors.h"

namespace dossier {
namespace {

using store::Database;
using store::State;

void deletePatient(State& state, const QString& n) {
    state.DbEcho = Database::open(state.WorkNom);
    state.SqlEcho = QStringLiteral("SELECT*FROM FICHEPATIENT WHERE NUMINT=") + n;
    state.Rs = state.DbEcho.openRecordset(state.SqlEcho);
    state.Rs.remove();
}

void deleteHistory(State& state, const QString& n) {
    state.DbAtcd = Database::open(state.WorkAtcd);
    state.SqlAtcd = QStringLiteral("SELECT*FROM FICHEATCD WHERE NUMINT=") + n;
    state.RsAtcd = state.DbAtcd.openRecordset(state.SqlAtcd);
    state.RsAtcd.findFirst(QStringLiteral("NUMINT=") + n);
    if (!state.RsAtcd.noMatch()) {
        state.RsAtcd.remove();
    }
}

void deleteExams(State& state, const QString& query, const QString& n) {
    state.DbEcho = Database::open(state.PathEcho);
    state.SqlEcho = query + n;
    state.Rs = state.DbEcho.openRecordset(state.SqlEcho);
    state.Rs.findFirst(QStringLiteral("NUMERO=") + n);
    if (state.Rs.noMatch()) {
        return;
    }
    for (state.Rs.moveFirst(); !state.Rs.eof(); state.Rs.moveNext()) {
        state.Rs.remove();
    }
}

void deleteObstetricExams(State& state, const QString& n) {
    deleteExams(state, QStringLiteral("SELECT*FROM 1TER WHERE NUMERO="), n);
}

void deleteGynaecologyExams(State& state, const QString& n) {
    deleteExams(state, QStringLiteral("SELECT*FROM GYNECO WHERE NUMERO ="), n);
}

struct Step {
    void (*run)(State&, const QString&);
    const char16_t* whatStands;
};

constexpr auto kSteps = std::to_array<Step>({
    {deletePatient, u"La fiche n'a pas été supprimée, ni le reste du dossier."},
    {deleteHistory, u"La fiche est supprimée ; les antécédents et les examens ne le sont pas."},
    {deleteObstetricExams, u"La fiche et les antécédents sont supprimés ; les examens ne le sont pas tous."},
    {deleteGynaecologyExams,
     u"La fiche, les antécédents et les examens obstétricaux sont supprimés ; les examens gynécologiques ne le sont "
     u"pas tous."},
});

}  // namespace

void deleteDossier(State& state, const QString& number) {
    // The first step takes the handle of the exams for the patients; a failure gives it back.
    const Database exams = state.DbEcho;
    for (const Step& step : kSteps) {
        try {
            step.run(state, number);
        } catch (const base::RuntimeError& error) {
            state.DbEcho = exams;
            throw base::RuntimeError(error.number(),
                                     QString::fromUtf16(step.whatStands) + QStringLiteral("\n\n") + error.text());
        }
    }
}

}  // namespace dossier
