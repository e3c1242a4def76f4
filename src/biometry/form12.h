#pragma once

#include <array>

#include "biometry/charts.h"
#include "biometry/exam_in_view.h"
#include "biometry/medians.h"
#include "biometry/page.h"
#include "biometry/sheet.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "ports/surroundings.h"
#include "store/state.h"

namespace biometry {

/// The biometry of the later exam in view: a printable page, a calculator in which measures can be retried, and the
/// recall of the same pregnancy's exams. It only reads.
class Form12 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form12";

    Form12(ports::Surroundings& around, store::State& state, const ExamInView& exam);

    forms::Menu Quitter{*this, "Quitter", "&Quitter"};
    forms::Menu Imprime{*this, "Imprime", "&Imprimer"};
    forms::Menu Courbe{*this, "Courbe", "&Courbes"};
    forms::Menu ReCalculer{*this, "ReCalculer", "&Re-Calculer"};
    forms::Menu Rappel{*this, "Rappel", "R&appel"};

    // The page, as it stood at the load.
    forms::Frame Frame9{*this, "Frame9"};
    forms::Label LblCivilite{*this, "LblCivilite"};
    forms::Label LblDGUS{*this, "LblDGUS"};
    forms::Label LblAgeGesta{*this, "LblAgeGesta"};
    forms::Label LblDatExam{*this, "LblDatExam"};
    forms::Frame Frame2{*this, "Frame2"};
    forms::Label LblFoetus{*this, "LblFoetus"};
    forms::Frame Frame3{*this, "Frame3"};
    forms::Label LblBip{*this, "LblBip"};
    forms::Label LblCBip{*this, "LblCBip"};
    forms::Label LblCc{*this, "LblCc"};
    forms::Label LblCCc{*this, "LblCCc"};
    forms::Label LblDat{*this, "LblDat"};
    forms::Label LblCDat{*this, "LblCDat"};
    forms::Label LblCa{*this, "LblCa"};
    forms::Label LblCCa{*this, "LblCCa"};
    forms::Label LblFem{*this, "LblFem"};
    forms::Label LblCFem{*this, "LblCFem"};
    forms::Label LblPied{*this, "LblPied"};
    forms::Label LblCPied{*this, "LblCPied"};
    forms::Label LblHum{*this, "LblHum"};
    forms::Label LblCHum{*this, "LblCHum"};
    forms::Label LblCer{*this, "LblCer"};
    forms::Label LblCCer{*this, "LblCCer"};
    forms::Label LblOrb{*this, "LblOrb"};
    forms::Label LblCOrb{*this, "LblCOrb"};
    forms::Label LblPiedFem{*this, "LblPiedFem"};
    forms::Label LblDioBip{*this, "LblDioBip"};
    forms::Label LblPoids{*this, "LblPoids"};
    forms::Label LblPoidsTheo{*this, "LblPoidsTheo"};

    // Its charts. The points of the present measures follow the calculator.
    forms::Image ImgBip{*this, "ImgBip"};
    forms::Image ImgCa{*this, "ImgCa"};
    forms::Image ImgFem{*this, "ImgFem"};
    forms::Marker ShPtBip{*this, "ShPtBip"};
    forms::Marker ShPtCa{*this, "ShPtCa"};
    forms::Marker ShPtFem{*this, "ShPtFem"};
    forms::Array<forms::Marker> PtBip{*this, "PtBip", 0, 5};
    forms::Array<forms::Marker> PtCa{*this, "PtCa", 0, 5};
    forms::Array<forms::Marker> PtFem{*this, "PtFem", 0, 5};

    // The calculator.
    forms::Frame Frame8{*this, "Frame8", "Re-Calculer"};
    forms::TextBox DateDGf3{*this, "DateDGf3"};
    forms::TextBox DateJourF3{*this, "DateJourF3"};
    forms::TextBox SAF3{*this, "SAF3"};
    forms::ScrollBar SaScroll{*this, "SaScroll", {13, 41, 5}, 22};
    forms::TextBox Bip{*this, "Bip"};
    forms::ScrollBar BipScroll{*this, "BipScroll", {10, 130, 10}, 50};
    forms::TextBox CBip{*this, "CBip"};
    forms::Label LabelBip{*this, "LabelBip"};
    forms::TextBox Cc{*this, "Cc"};
    forms::ScrollBar CCScroll{*this, "CCScroll", {100, 360, 20}, 270};
    forms::TextBox CCc{*this, "CCc"};
    forms::Label LabelCc{*this, "LabelCc"};
    forms::TextBox Dat{*this, "Dat"};
    forms::ScrollBar DatScroll{*this, "DatScroll", {10, 150, 10}, 50};
    forms::TextBox CDat{*this, "CDat"};
    forms::Label LabelDat{*this, "LabelDat"};
    forms::TextBox Ca{*this, "Ca"};
    forms::ScrollBar CAScroll{*this, "CAScroll", {50, 400, 20}, 250};
    forms::TextBox CCa{*this, "CCa"};
    forms::Label LabelCa{*this, "LabelCa"};
    forms::TextBox Fem{*this, "Fem"};
    forms::ScrollBar FemurScroll{*this, "FemurScroll", {5, 100, 10}, 50};
    forms::TextBox CFem{*this, "CFem"};
    forms::Label LabelFem{*this, "LabelFem"};
    forms::TextBox Orb{*this, "Orb"};
    forms::ScrollBar OrbScroll{*this, "OrbScroll", {0, 50, 1}, 20};
    forms::Label LabelDio{*this, "LabelDio"};
    forms::TextBox Pied{*this, "Pied"};
    forms::ScrollBar PiedScroll{*this, "PiedScroll", {5, 90, 1}, 50};
    forms::TextBox CPied{*this, "CPied"};
    forms::Label LabelPied{*this, "LabelPied"};
    forms::TextBox Hum{*this, "Hum"};
    forms::ScrollBar HumScroll{*this, "HumScroll", {5, 90, 1}, 45};
    forms::TextBox CHum{*this, "CHum"};
    forms::Label LabelHum{*this, "LabelHum"};
    forms::TextBox Cer{*this, "Cer"};
    forms::ScrollBar CerScroll{*this, "CerScroll", {5, 55, 1}, 5};
    forms::TextBox CCer{*this, "CCer"};
    forms::Label LabelCer{*this, "LabelCer"};
    forms::TextBox FemPied{*this, "FemPied"};
    forms::TextBox DioBip{*this, "DioBip"};
    forms::Button Command1{*this, "Command1", "C&alcule"};
    forms::TextBox Poids{*this, "Poids"};
    forms::Button Command2{*this, "Command2", "Calc&ule"};
    forms::Label Label22{*this, "Label22"};
    forms::Button CmdQuitter{*this, "CmdQuitter", "Q&uitter"};

    // The recall.
    forms::Frame Frame10{*this, "Frame10", "Rappel"};
    forms::ListBox ListDate{*this, "ListDate"};
    forms::ListBox ListNumecho{*this, "ListNumecho"};
    forms::ListBox ListSA{*this, "ListSA"};
    forms::ListBox ListBip{*this, "ListBip"};
    forms::ListBox ListCa{*this, "ListCa"};
    forms::ListBox ListFem{*this, "ListFem"};
    forms::Button Command3{*this, "Command3", "&Fermer"};

    /// The fetus in view, 0 to 3, as text.
    forms::TextBox TxtEspion{*this, "TxtEspion"};

    /// Places the points of the recalled exams from the first six lines of the lists.
    void PLACEPOINTS();

    /// The controls of one measure; the orbital diameter has no median, the charts no more than three measures.
    struct Row {
        Measure measure;
        forms::TextBox& field;
        forms::ScrollBar& scroll;
        forms::TextBox* median;
        forms::Label& label;
        forms::Label& onPage;
        forms::Label& wordOnPage;
    };
    const std::array<Row, kMeasureCount>& rows() const { return rows_; }
    const Row& row(Measure measure) const { return rows_[indexOf(measure)]; }

    /// What is printed: the page, its charts with their points, the calculator and the recall if they are showing.
    Sheet sheet() const;

private:
    /// A chart of the page with its points.
    struct Points {
        Chart chart;
        forms::Marker& present;
        forms::Array<forms::Marker>& recalled;
        forms::ListBox& list;
    };

    void load() override;
    void unloading() override;
    void hold();
    void wireMenus();
    void wireCalculator();
    void wireMeasure(const Row& row);

    void loadCalculator(const Exam& exam, int fetus);
    void fillPage();
    void onDateChange();
    void onWeekChange();
    void onMeasureChange(const Row& row);
    void movePresentPoint(Measure measure);
    void relabel(const Row& row);
    void emptyMeasures();
    void blankLabels();
    void writeMedians(const Medians& medians);
    Medians medianBoxes() const;
    void writeRatios();
    void writeWeight();
    void recall();
    void openCurves();
    void print();
    Retried retried() const;
    std::vector<RecalledExam> recalled() const;
    /// Opens the base of the exams anew and runs a query on it into the shared cursor.
    void queryExams(const QString& text);
    void reopenExams();

    ports::Surroundings& around_;
    store::State& state_;
    const ExamInView& exam_;
    const std::array<Row, kMeasureCount> rows_;
    const std::array<Points, 3> points_;
    /// As it was made at the load.
    Page page_;
};

/// Shows the biometry of the exam and the fetus in view; a window that shows another one is loaded anew.
void showBiometry(forms::Desk& desk);

}  // namespace biometry
