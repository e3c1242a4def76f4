#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "biometry/chart_words.h"
#include "qt/binder.h"
#include "qt/chart_view.h"
#include "qt/drawing_view.h"
#include "qt/layouts/biometry_layouts.h"
#include "qt/layouts/exam_parts.h"
#include "qt/layouts/parts.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

// The part of the window on which the charts lie, in twips.
const QRectF kCharts(0, 950, 9500, 6350);

class Form13Layout {
public:
    Form13Layout(biometry::Form13& form, FormWindow& window) : form_(form), window_(window), bind_(window) {}

    void build() {
        auto* all = newColumn(&window_, 2);
        all->addLayout(heading());
        // The source of the curves stands in their place until one is chosen.
        auto* place = new QGridLayout;
        place->addWidget(charts(), 0, 0);
        place->addWidget(introduction(), 0, 0, Qt::AlignCenter);
        all->addLayout(place, 1);
        all->addLayout(buttons());
        window_.resize(1000, 710);
    }

private:
    QLayout* heading() {
        auto* row = newRow();
        row->setSpacing(2 * kGrid);
        QLabel* title = bind_.label(form_.Label1);
        title->setFont(theme::headingFont());
        row->addWidget(title);
        QLabel* source = bind_.label(form_.Label2);
        source->setForegroundRole(QPalette::PlaceholderText);
        row->addWidget(source);
        row->addStretch(1);
        row->addWidget(week());
        QLabel* percentile = bind_.label(form_.Centile);
        percentile->setFont(theme::headingFont());
        percentile->setForegroundRole(QPalette::Link);
        row->addWidget(percentile);
        return row;
    }

    QWidget* week() {
        auto* panel = new QWidget;
        auto* row = newRow(panel);
        QLineEdit* edit = narrowLine(bind_, form_.Sem_Entier, QStringLiteral("Semaine d'aménorrhée"), 4);
        row->addWidget(newCaption(form_.Frame2.text(), edit));
        row->addWidget(edit);
        return bind_.plain(form_.Frame2, panel);
    }

    QWidget* introduction() {
        QLabel* text = bind_.label(form_.Label3);
        text->setWordWrap(true);
        text->setFixedWidth(64 * kGrid);
        return text;
    }

    QWidget* charts() {
        charts_ = new ChartView(window_, kCharts);
        for (std::size_t i = 0; i < biometry::Form13::kCurves.size(); ++i) {
            charts_->addChart(biometry::Form13::kCurves[i].chart, form_.picture(i));
        }
        charts_->follow(form_.Echo, bind_.drawing(form_.Echo, QStringLiteral("Où se prend la mesure")));
        for (forms::Label* label : {&form_.Ordonnee, &form_.Abscisse}) {
            QLabel* shown = bind_.label(*label);
            shown->setFont(theme::sectionFont());
            shown->setAttribute(Qt::WA_TransparentForMouseEvents);
            charts_->follow(*label, shown);
        }
        charts_->addMarker(form_.Croix, QStringLiteral("Mesure"));
        keepTwins();
        return charts_;
    }

    void keepTwins() {
        const auto tell = [form = &form_, charts = charts_](forms::Aspect, int) {
            for (std::size_t i = 0; i < biometry::Form13::kCurves.size(); ++i) {
                const bool placed = form->Croix.visible();
                charts->setTwin(
                    form->picture(i),
                    biometry::chartWords(form->Sem_Entier.text(), placed ? form->Ordonnee.text() : QString(),
                                         form->Centile.visible() ? form->Centile.text() : QString(), {}, {}));
            }
        };
        for (forms::Control* control :
             std::initializer_list<forms::Control*>{&form_.Croix, &form_.Ordonnee, &form_.Centile, &form_.Sem_Entier}) {
            window_.alsoBind(*control, tell);
        }
    }

    QLayout* buttons() {
        return actionRow(bind_,
                         {&form_.CommandBip, &form_.CommandCc, &form_.CommandDat, &form_.CommandCa, &form_.CommandFem,
                          &form_.CommandLp, &form_.CommandCerv, &form_.CommandTib, &form_.Command1});
    }

    biometry::Form13& form_;
    FormWindow& window_;
    Binder bind_;
    ChartView* charts_ = nullptr;
};

}  // namespace

void layOutForm13(biometry::Form13& form, FormWindow& window) {
    Form13Layout(form, window).build();
}

}  // namespace qt
