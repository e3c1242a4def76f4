#include "biometry/form12.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "biometry/chart_painter.h"
#include "biometry/dating.h"
#include "biometry/form13.h"
#include "biometry/weights.h"
#include "forms/desk.h"
#include "forms/key_filters.h"

namespace biometry {
namespace {

constexpr forms::Color kPresentColor = 0xE00000;
/// The points of the recalled exams, a colour for each chart.
constexpr std::array<forms::Color, 3> kRecalledColors{0x1F6FD0, 0x1E8A3C, 0xB05FC0};
constexpr forms::Color kMultipleColor = forms::fromBlueGreenRed(0xFFFFC0);

/// The fields of the recall's columns: of the whole exam, then of the measures of the first, second and third fetus.
constexpr std::array<const char16_t*, 3> kExamFields{u"DATEXAM", u"NUMECHO", u"AGESTA"};
constexpr std::array<std::array<const char16_t*, 3>, kFetusCount> kMeasureFields{{
    {u"Bip", u"Ca", u"Fem"},
    {u"Bip2", u"CA2", u"FEM2"},
    {u"Bip3", u"CA3", u"FEM3"},
}};

/// The order in which the measures are loaded.
constexpr std::array<Measure, kMeasureCount> kLoadOrder{Measure::Orb,  Measure::Bip, Measure::Cc,
                                                        Measure::Dat,  Measure::Ca,  Measure::Fem,
                                                        Measure::Pied, Measure::Hum, Measure::Cer};

/// The order in which a changed week moves the scroll bars.
constexpr std::array<Measure, kMeasureCount> kScrollOrder{Measure::Bip,  Measure::Orb, Measure::Cc,
                                                          Measure::Dat,  Measure::Ca,  Measure::Fem,
                                                          Measure::Pied, Measure::Hum, Measure::Cer};

void addPoint(std::vector<PlacedPoint>& points, const forms::Marker& marker) {
    if (marker.visible() && marker.spot()) {
        points.push_back({{marker.spot()->left, marker.spot()->top}, *marker.color()});
    }
}

void apply(const MarkerMove& move, forms::Marker& marker) {
    if (move.to) {
        marker.moveTo({move.to->left, move.to->top});
    }
    if (move.visible) {
        marker.setVisible(*move.visible);
    }
}

}  // namespace

Form12::Form12(ports::Surroundings& around, store::State& state, const ExamInView& exam)
    : Form(around.desk, kName.toString(), QStringLiteral("Biométrie")),
      around_(around),
      state_(state),
      exam_(exam),
      rows_{{{Measure::Bip, Bip, BipScroll, &CBip, LabelBip, LblBip, LblCBip},
             {Measure::Cc, Cc, CCScroll, &CCc, LabelCc, LblCc, LblCCc},
             {Measure::Dat, Dat, DatScroll, &CDat, LabelDat, LblDat, LblCDat},
             {Measure::Ca, Ca, CAScroll, &CCa, LabelCa, LblCa, LblCCa},
             {Measure::Fem, Fem, FemurScroll, &CFem, LabelFem, LblFem, LblCFem},
             {Measure::Pied, Pied, PiedScroll, &CPied, LabelPied, LblPied, LblCPied},
             {Measure::Hum, Hum, HumScroll, &CHum, LabelHum, LblHum, LblCHum},
             {Measure::Cer, Cer, CerScroll, &CCer, LabelCer, LblCer, LblCCer},
             {Measure::Orb, Orb, OrbScroll, nullptr, LabelDio, LblOrb, LblCOrb}}},
      points_{{{Chart::PageBip, ShPtBip, PtBip, ListBip},
               {Chart::PageCa, ShPtCa, PtCa, ListCa},
               {Chart::PageFem, ShPtFem, PtFem, ListFem}}} {
    hold();
    for (std::size_t i = 0; i < points_.size(); ++i) {
        points_[i].present.setColor(kPresentColor);
        points_[i].present.setSide(kMarkerSide);
        points_[i].present.hide();
        for (int k = 0; k < static_cast<int>(kRecalledMarkers); ++k) {
            points_[i].recalled(k).setColor(kRecalledColors[i]);
            points_[i].recalled(k).setSide(kMarkerSide);
            points_[i].recalled(k).hide();
        }
    }
    Frame8.hide();
    Frame10.hide();
    TxtEspion.hide();
    wireMenus();
    wireCalculator();
}

void Form12::hold() {
    Frame9.holds(LblCivilite, LblDGUS, LblAgeGesta, LblDatExam, Frame2, Frame3, LblPiedFem, LblDioBip, LblPoids,
                 LblPoidsTheo);
    Frame2.holds(LblFoetus);
    Frame8.holds(DateDGf3, DateJourF3, SAF3, SaScroll, FemPied, DioBip, Command1, Poids, Command2, Label22, CmdQuitter);
    Frame10.holds(ListDate, ListNumecho, ListSA, ListBip, ListCa, ListFem, Command3);
    for (const Row& row : rows_) {
        Frame3.holds(row.onPage, row.wordOnPage);
        Frame8.holds(row.field, row.scroll, row.label);
        if (row.median) {
            Frame8.holds(*row.median);
            row.median->setLocked(true);
        }
    }
    for (forms::TextBox* result : {&FemPied, &DioBip, &Poids}) {
        result->setLocked(true);
    }
}

void Form12::wireMenus() {
    Quitter.onClick = [this] { unload(); };
    Imprime.onClick = [this] { print(); };
    Courbe.onClick = [this] { openCurves(); };
    ReCalculer.onClick = [this] { Frame8.show(); };
    Rappel.onClick = [this] { recall(); };
    Command3.onClick = [this] { Frame10.hide(); };
}

void Form12::wireCalculator() {
    DateDGf3.onChange = [this] {
        if (DateJourF3.text().isEmpty()) {
            DateJourF3.setText(base::shortDate(around_.clock.today()));
        }
        onDateChange();
    };
    DateJourF3.onChange = [this] { onDateChange(); };
    SAF3.onChange = [this] { onWeekChange(); };
    SAF3.onKey = forms::digitsOnly;
    SaScroll.onChange = [this] { SAF3.setText(SaScroll.text()); };
    for (const Row& row : rows_) {
        wireMeasure(row);
    }
    Command1.onClick = [this] { writeRatios(); };
    Command2.onClick = [this] { writeWeight(); };
    CmdQuitter.onClick = [this] { Frame8.hide(); };
}

void Form12::wireMeasure(const Row& row) {
    row.field.onChange = [this, &row] { onMeasureChange(row); };
    row.scroll.onChange = [&row] { row.field.setText(row.scroll.text()); };
}

void Form12::load() {
    const Exam exam = exam_.exam();
    const int fetus = fetusInView(exam);
    page_ = page(exam, fetus, around_.clock.today());
    setTitle(page_.patient);
    loadCalculator(exam, fetus);
    TxtEspion.setText(QString::number(fetus));
    fillPage();
}

void Form12::unloading() {
    desk().unload(Form13::kName.toString());
    reopenExams();
}

// The dates give the week, which empties the measures and moves the scroll bars; the measures of the exam come after.
void Form12::loadCalculator(const Exam& exam, int fetus) {
    DateDGf3.setText(exam.start);
    DateJourF3.setText(exam.examDate);
    const Measures& measures = exam.fetuses[placeOf(fetus)];
    for (const Measure measure : kLoadOrder) {
        row(measure).field.setText(measures[indexOf(measure)]);
    }
}

void Form12::fillPage() {
    LblCivilite.setText(page_.patient);
    LblDGUS.setText(page_.start);
    LblAgeGesta.setText(page_.week);
    LblDatExam.setText(page_.examDate);
    LblFoetus.setText(page_.fetusLine);
    if (page_.fetus > 0) {
        Frame2.setBack(kMultipleColor);
    }
    for (const Row& row : rows_) {
        row.onPage.setText(page_.measure(row.measure));
        row.wordOnPage.setText(page_.percentile(row.measure));
    }
    LblPiedFem.setText(page_.footToFemur);
    LblDioBip.setText(page_.orbitToBip);
    LblPoids.setText(page_.weight);
    LblPoidsTheo.setText(page_.theoreticalWeight);
}

void Form12::onDateChange() {
    const Outcome week = wholeWeek(DateDGf3.text(), DateJourF3.text(), around_.clock.today()).orThrow();
    if (week.writes()) {
        SAF3.setText(week.text());
    }
}

void Form12::onWeekChange() {
    const WeekChange change = weekChange(SAF3.text(), medianBoxes());
    if (change.emptiesMeasuresFirst) {
        emptyMeasures();
    }
    if (change.blanksLabels) {
        blankLabels();
    }
    if (change.medians) {
        writeMedians(*change.medians);
    }
    if (change.theoreticalWeight) {
        Label22.setText(*change.theoreticalWeight);
    }
    if (change.blanksEstimatedWeight) {
        Poids.setText({});
    }
    for (const Measure measure : kScrollOrder) {
        if (const auto value = change.scrollBars[indexOf(measure)]) {
            row(measure).scroll.setValue(*value);
        }
    }
    if (change.emptiesMeasuresLast) {
        emptyMeasures();
    }
}

void Form12::onMeasureChange(const Row& row) {
    movePresentPoint(row.measure);
    Poids.setText({});
    if (clearsRatios(row.measure)) {
        FemPied.setText({});
        DioBip.setText({});
    }
    relabel(row);
}

void Form12::movePresentPoint(Measure measure) {
    for (const Points& points : points_) {
        if (geometry(points.chart).measure == measure) {
            apply(presentMarker(points.chart, SAF3.text(), row(measure).field.text()), points.present);
        }
    }
}

void Form12::relabel(const Row& row) {
    const PercentileLabel before{row.label.text(), row.label.color().value_or(kCalmColor),
                                 row.label.points().value_or(kCalmSize)};
    const PercentileLabel now = classify(row.measure, SAF3.text(), row.field.text(), before);
    row.label.setColor(now.color);
    row.label.setPoints(now.size);
    row.label.setText(now.text);
}

void Form12::emptyMeasures() {
    for (const Row& row : rows_) {
        row.field.setText({});
    }
}

void Form12::blankLabels() {
    for (const Measure measure : kClassified) {
        row(measure).label.setText({});
    }
}

void Form12::writeMedians(const Medians& medians) {
    for (const Measure measure : kClassified) {
        row(measure).median->setText(medians[indexOf(measure)]);
    }
}

Medians Form12::medianBoxes() const {
    Medians boxes;
    for (const Measure measure : kClassified) {
        boxes[indexOf(measure)] = row(measure).median->text();
    }
    return boxes;
}

void Form12::writeRatios() {
    const Ratios results = ratios(Pied.text(), Fem.text(), Orb.text(), Bip.text());
    if (results.footToFemur.kind() == Outcome::Kind::Refuse) {
        around_.boxes.message(results.footToFemur.text());
        return;
    }
    FemPied.setText(results.footToFemur.orThrow().text());
    DioBip.setText(results.orbitToBip.orThrow().text());
}

void Form12::writeWeight() {
    const Outcome weight = estimatedWeight(Cc.text(), Ca.text(), Fem.text());
    if (weight.writes()) {
        Poids.setText(weight.text());
    } else {
        around_.boxes.message(weight.text());
    }
}

void Form12::recall() {
    const std::size_t fetus = placeOf(TxtEspion.text().toInt());
    Frame10.show();
    for (const Points& points : points_) {
        points.present.hide();
    }
    const std::array columns{&ListDate, &ListNumecho, &ListSA, &ListBip, &ListCa, &ListFem};
    for (forms::ListBox* column : columns) {
        column->clear();
    }
    queryExams(QStringLiteral("SELECT*FROM 1TER WHERE DGUS='%1' AND NUMERO=%2 ORDER BY NUMECHO")
                   .arg(LblDGUS.text(), base::queryNumber(exam_.exam().dossierNumber)));
    for (store::Recordset& rows = state_.Rs; !rows.eof(); rows.moveNext()) {
        for (std::size_t i = 0; i < kExamFields.size(); ++i) {
            columns[i]->add(rows.text(QString::fromUtf16(kExamFields[i])));
            columns[i + kExamFields.size()]->add(rows.text(QString::fromUtf16(kMeasureFields[fetus][i])));
        }
    }
    PLACEPOINTS();
}

void Form12::PLACEPOINTS() {
    for (const Points& points : points_) {
        const auto moves = recalledMarkers(points.chart, ListSA.items(), points.list.items());
        for (std::size_t i = 0; i < moves.size(); ++i) {
            apply(moves[i], points.recalled(static_cast<int>(i)));
        }
    }
}

void Form12::openCurves() {
    desk().unload(Form13::kName.toString());
    desk().show(Form13::kName.toString());
}

void Form12::queryExams(const QString& text) {
    state_.openExams();
    state_.queryExams(text);
}

// The viewing window goes on stepping from the record in use.
void Form12::reopenExams() {
    const Exam exam = exam_.exam();
    queryExams(QStringLiteral("SELECT*FROM 1TER  WHERE NUMERO=%1 ORDER BY NUMECHO")
                   .arg(base::queryNumber(exam.dossierNumber)));
    state_.Rs.findFirst(QStringLiteral("NUMECHO=") + base::queryNumber(exam.examNumber));
}

// An error of the dialog or of the printer ends it without a word.
void Form12::print() {
    try {
        around_.printers.choose([this](ports::Printer& printer) {
            const ports::PageGeometry paper = printer.geometry();
            const auto job = printer.open(title());
            const Sheet printed = sheet();
            for (std::size_t i = 0; i < sheetCount(printed); ++i) {
                if (i > 0) {
                    job->newPage();
                }
                paintSheet(job->painter(), paper, printed, i);
            }
            job->end();
        });
    } catch (const base::RuntimeError&) {
    }
}

Sheet Form12::sheet() const {
    Sheet sheet{page_, {}, {}, {}};
    for (const Points& points : points_) {
        for (int i = 0; i < static_cast<int>(kRecalledMarkers); ++i) {
            addPoint(sheet.points, points.recalled(i));
        }
        addPoint(sheet.points, points.present);
    }
    if (Frame8.visible()) {
        sheet.retried = retried();
    }
    if (Frame10.visible()) {
        sheet.recalled = recalled();
    }
    return sheet;
}

Retried Form12::retried() const {
    Retried all{.start = DateDGf3.text(),
                .day = DateJourF3.text(),
                .week = SAF3.text(),
                .measures = {},
                .percentiles = {},
                .medians = medianBoxes(),
                .footToFemur = FemPied.text(),
                .orbitToBip = DioBip.text(),
                .weight = Poids.text(),
                .theoreticalWeight = Label22.text()};
    for (const Row& row : rows_) {
        all.measures[indexOf(row.measure)] = row.field.text();
        all.percentiles[indexOf(row.measure)] = row.label.text();
    }
    return all;
}

std::vector<RecalledExam> Form12::recalled() const {
    std::vector<RecalledExam> exams;
    for (int i = 0; i < ListDate.count(); ++i) {
        exams.push_back({ListDate.items().at(i), ListNumecho.items().at(i), ListSA.items().at(i), ListBip.items().at(i),
                         ListCa.items().at(i), ListFem.items().at(i)});
    }
    return exams;
}

void showBiometry(forms::Desk& desk) {
    desk.unload(Form12::kName.toString());
    desk.show(Form12::kName.toString());
}

}  // namespace biometry
