#include "qt/layouts/fetus_grid.h"

#include <QGridLayout>
#include <QLabel>

#include "exams/later_fields.h"
#include "qt/layouts/parts.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;
namespace places = exams::later;

constexpr int kMeasures = places::kNasalBonePlace - places::kHeartRatePlace + 1;
constexpr int kColumns = 3;
constexpr int kMeasureRows = kMeasures / kColumns;
static_assert(kMeasureRows * kColumns == kMeasures);
/// Caption, field and unit.
constexpr int kCells = 3;

QString captionOf(int place) {
    const auto row =
        std::ranges::find(exams::kLaterFields, places::kFirstOfFetus[0] + place, &responses::ExamField::index);
    return row->caption.toString();
}

QString unitOf(int place) {
    if (place == places::kHeartRatePlace) {
        return QStringLiteral("/min");
    }
    return captionOf(place).contains(u"mm") ? QString() : QStringLiteral("mm");
}

class FetusGrid {
public:
    FetusGrid(QWidget* body, const std::function<QWidget*(int, const QString&)>& field)
        : grid_(new QGridLayout(body)), field_(field) {
        grid_->setContentsMargins(0, 0, 0, 0);
        grid_->setHorizontalSpacing(kGrid / 2);
        grid_->setVerticalSpacing(kGrid / 2);
        for (int column = 0; column < kColumns; ++column) {
            grid_->setColumnStretch(column * kCells + 1, 1);
        }
    }

    void build() {
        across(places::kPresentationPlace, 0);
        across(places::kMovementsPlace, 1);
        for (int i = 0; i < kMeasures; ++i) {
            measure(places::kHeartRatePlace + i, 2 + i % kMeasureRows, i / kMeasureRows);
        }
        int row = 2 + kMeasureRows;
        arteries(row++);
        across(places::kMorphologyPlace, row, Qt::AlignTop);
        grid_->setRowStretch(row, 1);
    }

private:
    void across(int place, int row, Qt::Alignment caption = {}) {
        QWidget* widget = field_(place, captionOf(place));
        grid_->addWidget(newCaption(captionOf(place), widget), row, 0, caption);
        grid_->addWidget(widget, row, 1, 1, -1);
    }

    void measure(int place, int row, int column) {
        QWidget* widget = field_(place, captionOf(place));
        grid_->addWidget(newCaption(captionOf(place), widget), row, column * kCells);
        grid_->addWidget(widget, row, column * kCells + 1);
        auto* unit = new QLabel(unitOf(place));
        unit->setForegroundRole(QPalette::PlaceholderText);
        unit->setContentsMargins(0, 0, column + 1 < kColumns ? kGrid : 0, 0);
        grid_->addWidget(unit, row, column * kCells + 2);
    }

    void arteries(int row) {
        auto* line = newRow();
        for (const int place : {places::kMorphologyPlace + 1, places::kMorphologyPlace + 2}) {
            QWidget* widget = field_(place, captionOf(place));
            line->addWidget(newCaption(captionOf(place), widget));
            line->addWidget(widget, 1);
        }
        grid_->addLayout(line, row, 0, 1, -1);
    }

    QGridLayout* grid_;
    const std::function<QWidget*(int, const QString&)>& field_;
};

}  // namespace

void layOutFetus(QWidget* body, const std::function<QWidget*(int place, const QString& caption)>& field) {
    FetusGrid(body, field).build();
}

}  // namespace qt
