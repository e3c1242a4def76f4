#pragma once

#include <QString>

#include "dossier/form4.h"
#include "forms/controls.h"
#include "ports/surroundings.h"
#include "store/state.h"

namespace exams {

/// What the exams of all families share: the dossier they belong to, the base they lie in, and the way back.
class ExamLife {
public:
    ExamLife(ports::Surroundings& around, store::State& state) : around_(around), state_(state) {}

    ports::Surroundings& around() const { return around_; }
    store::State& state() const { return state_; }
    forms::Desk& desk() const { return around_.desk; }
    ports::Boxes& boxes() const { return around_.boxes; }

    dossier::Form4& dossierWindow() const { return desk().at<dossier::Form4>(); }
    /// The number of the open dossier as it is joined into a query; "0" if none is open.
    QString dossierNumber() const;
    bool dossierOpen() const;

    /// Copies the name and number of the open dossier into a window.
    void copyIdentity(forms::Label& surname, forms::Label& firstName, forms::Label& number) const;

    /// Opens the base of the exams anew, by the path of the settings.
    void openBase() const;
    /// Runs a query on the base of the exams into the shared cursor.
    void query(const QString& text) const;
    /// The last text stored under a rubric; empty if there is none. Leaves the shared cursor on the rubric.
    QString lastStored(int rubric) const;

    /// Shows the device and the date of its entry into service, as they are stored.
    void readDevice(forms::Label& device, forms::Label& inService) const;
    /// A new exam's number in a table of exams: that of the dossier's last record plus one, 1 for a dossier without
    /// any. Leaves the shared cursor on the last exam.
    QString nextNumber(const QString& table) const;

    /// Asks whether to save a new exam, to save its correction, or to delete it; true for Yes.
    bool confirmSaving() const;
    bool confirmCorrection() const;
    bool confirmDeletion(const QString& secondQuestion) const;

    /// Shows a window and writes texts into its controls, each under its name.
    void showWith(const QString& window, const QList<std::pair<QString, QString>>& texts) const;
    /// Opens the capture window for an exam of the open dossier. One that is open already takes its patient and today's
    /// date; its pictures stay.
    void showCapture(const QString& examNumber) const;
    /// Takes the dossier window away and brings a fresh one, which opens its files anew. It alone ends on screen.
    void returnToDossier() const;

private:
    ports::Surroundings& around_;
    store::State& state_;
};

}  // namespace exams
