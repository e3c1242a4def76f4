#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>
#include <QSlider>

#include "biometry/chart_words.h"
#include "qt/binder.h"
#include "qt/chart_view.h"
#include "qt/layouts/biometry_layouts.h"
#include "qt/layouts/exam_parts.h"
#include "qt/layouts/parts.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {
namespace {

using biometry::Measure;
using biometry::measureName;
using theme::kGrid;

// The part of the page on which the charts lie, in twips.
const QRectF kCharts(0, 3850, 12000, 5250);

constexpr int kScrollWidth = 110;
constexpr int kPanelWidth = 490;
constexpr int kPercentilePoints = 8;

class Form12Layout {
public:
    Form12Layout(biometry::Form12& form, FormWindow& window) : form_(form), window_(window), bind_(window) {}

    void build() {
        auto* all = newRow(&window_, 2);
        all->setSpacing(3 * kGrid);
        all->setMenuBar(bind_.menuBar());
        all->addWidget(page(), 1);
        auto* side = newColumn();
        side->setSpacing(2 * kGrid);
        side->addWidget(calculator());
        side->addWidget(recall());
        side->addStretch(1);
        all->addLayout(side);
        all->addWidget(hidden());
        window_.resize(1320, 700);
    }

private:
    QWidget* page() {
        auto* paper = new QFrame;
        paper->setFrameShape(QFrame::StyledPanel);
        paper->setBackgroundRole(QPalette::Base);
        paper->setAutoFillBackground(true);
        auto* column = newColumn(paper, 2);
        column->addLayout(heading());
        column->addLayout(numbers());
        column->addWidget(charts(), 1);
        return bind_.plain(form_.Frame9, paper);
    }

    QLabel* value(forms::Label& control) {
        QLabel* label = bind_.label(control);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        return label;
    }

    void addValue(QBoxLayout* row, const QString& caption, forms::Label& control) {
        QLabel* shown = value(control);
        QLabel* text = newCaption(caption, shown);
        text->setForegroundRole(QPalette::PlaceholderText);
        row->addWidget(text);
        row->addWidget(shown);
        row->addSpacing(2 * kGrid);
    }

    QLayout* heading() {
        auto* lines = newColumn();
        lines->setSpacing(kGrid / 2);
        auto* name = newRow();
        QLabel* patient = bind_.label(form_.LblCivilite);
        patient->setFont(theme::headingFont());
        name->addWidget(patient);
        name->addStretch(1);
        auto* tag = new QFrame;
        auto* inside = newRow(tag);
        inside->setContentsMargins(kGrid, kGrid / 2, kGrid, kGrid / 2);
        inside->addWidget(bind_.label(form_.LblFoetus));
        name->addWidget(bind_.plain(form_.Frame2, tag));
        lines->addLayout(name);
        auto* dates = newRow();
        addValue(dates, QStringLiteral("Début de G. le"), form_.LblDGUS);
        addValue(dates, QStringLiteral("Age gesta"), form_.LblAgeGesta);
        addValue(dates, QStringLiteral("Examen du"), form_.LblDatExam);
        dates->addStretch(1);
        lines->addLayout(dates);
        return lines;
    }

    // The measures in two columns, each with its percentile, and what is computed from them.
    QLayout* numbers() {
        auto* row = newRow();
        row->setSpacing(3 * kGrid);
        row->addWidget(measures());
        row->addLayout(results());
        row->addStretch(1);
        return row;
    }

    QWidget* measures() {
        constexpr int kPerColumn = 5;
        auto* panel = new QWidget;
        auto* grid = newGrid(panel);
        for (std::size_t i = 0; i < biometry::kPageOrder.size(); ++i) {
            const Measure measure = biometry::kPageOrder[i];
            const int row = static_cast<int>(i) % kPerColumn;
            const int column = 4 * (static_cast<int>(i) / kPerColumn);
            QLabel* number = value(form_.row(measure).onPage);
            number->setFont(theme::sectionFont());
            number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            number->setMinimumWidth(number->fontMetrics().horizontalAdvance(QStringLiteral("0000")));
            grid->addWidget(newCaption(shortName(measure), number), row, column);
            grid->addWidget(number, row, column + 1);
            grid->addWidget(percentile(measure), row, column + 2);
        }
        auto* unit = new QLabel(QStringLiteral("mesures en mm"));
        unit->setForegroundRole(QPalette::PlaceholderText);
        grid->addWidget(unit, kPerColumn - 1, 4, 1, 3);
        grid->setColumnMinimumWidth(3, kGrid);
        return bind_.plain(form_.Frame3, panel);
    }

    static QGridLayout* newGrid(QWidget* parent = nullptr) {
        auto* grid = new QGridLayout(parent);
        grid->setContentsMargins(0, 0, 0, 0);
        grid->setHorizontalSpacing(kGrid);
        grid->setVerticalSpacing(kGrid / 2);
        return grid;
    }

    QLabel* percentile(Measure measure) {
        QLabel* label = value(form_.row(measure).wordOnPage);
        QFont font = label->font();
        font.setPointSize(kPercentilePoints);
        label->setFont(font);
        return label;
    }

    static QString shortName(Measure measure) {
        switch (measure) {
            case Measure::Bip:
                return QStringLiteral("Bip");
            case Measure::Cc:
                return QStringLiteral("Circ. céphal.");
            case Measure::Dat:
                return QStringLiteral("D.A.T.");
            case Measure::Ca:
                return QStringLiteral("Circ. abdo.");
            case Measure::Orb:
                return QStringLiteral("Orbites");
            default:
                return measureName(measure);
        }
    }

    QLayout* results() {
        auto* fields = newFields(nullptr);
        fields->addRow(QStringLiteral("Pied / Fémur"), value(form_.LblPiedFem));
        fields->addRow(QStringLiteral("Orbites / Bip"), value(form_.LblDioBip));
        fields->addRow(QStringLiteral("Poids estimé"), value(form_.LblPoids));
        fields->addRow(QStringLiteral("Poids théorique"), value(form_.LblPoidsTheo));
        return fields;
    }

    QWidget* charts() {
        charts_ = new ChartView(window_, kCharts);
        charts_->addChart(biometry::Chart::PageBip, form_.ImgBip);
        charts_->addChart(biometry::Chart::PageCa, form_.ImgCa);
        charts_->addChart(biometry::Chart::PageFem, form_.ImgFem);
        for (auto* recalled : {&form_.PtBip, &form_.PtCa, &form_.PtFem}) {
            for (int i = recalled->first(); i <= recalled->last(); ++i) {
                charts_->addMarker((*recalled)(i), QStringLiteral("Rappel %1").arg(i + 1));
            }
        }
        for (forms::Marker* present : {&form_.ShPtBip, &form_.ShPtCa, &form_.ShPtFem}) {
            charts_->addMarker(*present, QStringLiteral("Mesure"));
        }
        keepTwin(form_.ImgBip, Measure::Bip, form_.ListBip);
        keepTwin(form_.ImgCa, Measure::Ca, form_.ListCa);
        keepTwin(form_.ImgFem, Measure::Fem, form_.ListFem);
        return charts_;
    }

    // What the points of a chart show, in words: it changes with the measure, its percentile and the recall.
    void keepTwin(forms::Image& picture, Measure measure, forms::ListBox& list) {
        const biometry::Form12::Row& row = form_.row(measure);
        const auto tell = [form = &form_, charts = charts_, &picture, &row, &list](forms::Aspect, int) {
            charts->setTwin(picture, biometry::chartWords(form->SAF3.text(), row.field.text(), row.label.text(),
                                                          form->ListSA.items(), list.items()));
        };
        tell(forms::Aspect::Text, -1);
        for (forms::Control* control :
             std::initializer_list<forms::Control*>{&form_.SAF3, &row.field, &row.label, &list}) {
            window_.alsoBind(*control, tell);
        }
    }

    QWidget* calculator() {
        Section* section = bind_.section(form_.Frame8);
        section->setFixedWidth(kPanelWidth);
        auto* column = newColumn(section->body());
        column->addLayout(dates());
        column->addLayout(rows());
        column->addLayout(calculations());
        return section;
    }

    QLayout* dates() {
        auto* row = newRow();
        addField(row, QStringLiteral("Début de Grossesse"), form_.DateDGf3, 11);
        row->addSpacing(kGrid);
        addField(row, QStringLiteral("Date de l'écho"), form_.DateJourF3, 11);
        row->addStretch(1);
        return row;
    }

    void addField(QBoxLayout* row, const QString& caption, forms::TextBox& box, int characters) {
        QLineEdit* edit = narrowLine(bind_, box, caption, characters);
        row->addWidget(newCaption(caption, edit));
        row->addWidget(edit);
    }

    QLayout* rows() {
        auto* grid = newGrid();
        grid->setColumnStretch(4, 1);
        for (const auto& [column, title] : {std::pair(1, "mm"), std::pair(3, "50 ème"), std::pair(4, "Percentile")}) {
            auto* label = new QLabel(QString::fromUtf8(title));
            label->setForegroundRole(QPalette::PlaceholderText);
            grid->addWidget(label, 0, column);
        }
        addWeek(grid);
        for (const Measure measure : biometry::kPageOrder) {
            addMeasure(grid, form_.row(measure));
        }
        return grid;
    }

    void addWeek(QGridLayout* grid) {
        const QString caption = QStringLiteral("Semaine d'aménorrhée");
        QLineEdit* edit = narrowLine(bind_, form_.SAF3, caption, 4);
        edit->setToolTip(caption);
        grid->addWidget(newCaption(QStringLiteral("S.A."), edit), 1, 0);
        grid->addWidget(edit, 1, 1);
        grid->addWidget(scroll(form_.SaScroll, caption), 1, 2);
    }

    QWidget* scroll(forms::ScrollBar& control, const QString& caption) {
        QSlider* bar = bind_.slider(control, caption);
        bar->setFixedWidth(kScrollWidth);
        return bar;
    }

    void addMeasure(QGridLayout* grid, const biometry::Form12::Row& row) {
        const int line = grid->rowCount();
        QLineEdit* edit = narrowLine(bind_, row.field, measureName(row.measure), 4);
        edit->setToolTip(measureName(row.measure));
        grid->addWidget(newCaption(shortName(row.measure), edit), line, 0);
        grid->addWidget(edit, line, 1);
        grid->addWidget(scroll(row.scroll, measureName(row.measure)), line, 2);
        if (row.median) {
            grid->addWidget(narrowLine(bind_, *row.median, measureName(row.measure) + QStringLiteral(", 50 ème"), 4),
                            line, 3);
        }
        grid->addWidget(bind_.label(row.label), line, 4);
    }

    QLayout* calculations() {
        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(kGrid);
        grid->setVerticalSpacing(kGrid);
        auto* ratios = newRow();
        addField(ratios, QStringLiteral("Pied / Fémur"), form_.FemPied, 5);
        addField(ratios, QStringLiteral("Orbites / Bip"), form_.DioBip, 5);
        ratios->addStretch(1);
        grid->addLayout(ratios, 0, 0);
        grid->addWidget(bind_.button(form_.Command1), 0, 1);
        auto* weights = newRow();
        addField(weights, QStringLiteral("Poids"), form_.Poids, 9);
        QLabel* theoretical = bind_.label(form_.Label22);
        weights->addWidget(newCaption(QStringLiteral("Poids théorique"), theoretical));
        weights->addWidget(theoretical);
        weights->addStretch(1);
        grid->addLayout(weights, 1, 0);
        grid->addWidget(bind_.button(form_.Command2), 1, 1);
        grid->addWidget(bind_.button(form_.CmdQuitter), 1, 2);
        grid->setColumnStretch(0, 1);
        return grid;
    }

    QWidget* recall() {
        Section* section = bind_.section(form_.Frame10);
        section->setFixedWidth(kPanelWidth);
        auto* column = newColumn(section->body());
        auto* lists = new QGridLayout;
        lists->setHorizontalSpacing(kGrid / 2);
        lists->setVerticalSpacing(kGrid / 2);
        addList(lists, QStringLiteral("Date"), form_.ListDate, 6);
        addList(lists, QStringLiteral("N°"), form_.ListNumecho, 2);
        addList(lists, QStringLiteral("S.A."), form_.ListSA, 3);
        addList(lists, QStringLiteral("Bip"), form_.ListBip, 3);
        addList(lists, QStringLiteral("Ca"), form_.ListCa, 3);
        addList(lists, QStringLiteral("Fem"), form_.ListFem, 3);
        column->addLayout(lists);
        auto* end = newRow();
        end->addStretch(1);
        end->addWidget(bind_.button(form_.Command3));
        column->addLayout(end);
        return section;
    }

    void addList(QGridLayout* lists, const QString& caption, forms::ListBox& control, int share) {
        constexpr int kLines = 6;
        QListView* view = bind_.list(control, caption);
        view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view->setMinimumWidth(5 * kGrid);
        view->setFixedHeight(kLines * (view->fontMetrics().height() + 2) + kGrid);
        const int column = lists->columnCount() - (lists->count() == 0 ? 1 : 0);
        lists->addWidget(newCaption(caption, view), 0, column);
        lists->addWidget(view, 1, column);
        lists->setColumnStretch(column, share);
    }

    // The number of the fetus in view is for the steps alone.
    QWidget* hidden() { return bind_.line(form_.TxtEspion, QStringLiteral("Foetus")); }

    biometry::Form12& form_;
    FormWindow& window_;
    Binder bind_;
    ChartView* charts_ = nullptr;
};

}  // namespace

void layOutForm12(biometry::Form12& form, FormWindow& window) {
    Form12Layout(form, window).build();
}

}  // namespace qt
