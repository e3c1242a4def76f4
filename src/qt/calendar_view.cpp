#include "qt/calendar_view.h"

#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>

#include "qt/key_filter.h"

namespace qt {

CalendarView::CalendarView(const std::function<void(QDate)>& chosen) {
    setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    setDateEditEnabled(false);
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) {
        setWeekdayTextFormat(day, QTextCharFormat());
    }
    dressLeaf("qt_calendar_prevmonth", QStringLiteral("◀"), QStringLiteral("Mois précédent"));
    dressLeaf("qt_calendar_nextmonth", QStringLiteral("▶"), QStringLiteral("Mois suivant"));
    // Not `activated`: it comes a second time at a double click, when the day has found its field already.
    connect(this, &QCalendarWidget::clicked, this, chosen);
    new PressFilter(table(), [this, chosen](const QKeyEvent& event) {
        if (isEnter(event)) {
            chosen(selectedDate());
        }
        return isEnter(event);
    });
}

// The toolkit's own arrows are drawn for one palette alone.
void CalendarView::dressLeaf(const char* name, const QString& arrow, const QString& caption) {
    auto* button = findChild<QToolButton*>(QLatin1String(name));
    button->setIcon({});
    button->setText(arrow);
    button->setAccessibleName(caption);
    button->setToolTip(caption);
    QPalette colors = button->palette();
    colors.setColor(QPalette::ButtonText, palette().color(QPalette::HighlightedText));
    button->setPalette(colors);
}

QTableView* CalendarView::table() const {
    return findChild<QTableView*>();
}

QWidget* CalendarView::days() const {
    return table()->viewport();
}

QPoint CalendarView::placeOf(QDate day) {
    setCurrentPage(day.year(), day.month());
    // The first row is that of the names, and the days of the month before stand in front of the first.
    const int column = (QDate(day.year(), day.month(), 1).dayOfWeek() - firstDayOfWeek() + 7) % 7;
    const QAbstractItemModel* model = table()->model();
    int row = 1;
    while (model->index(row, column).data().toInt() != 1) {
        ++row;
    }
    const int place = row * 7 + column + day.day() - 1;
    return table()->visualRect(model->index(place / 7, place % 7)).center();
}

}  // namespace qt
