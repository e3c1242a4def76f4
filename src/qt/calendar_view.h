#pragma once

#include <QCalendarWidget>
#include <functional>

class QTableView;

namespace qt {

/// A month of days in French, weeks from Monday. A click chooses a day, Enter the one that is marked; leafing through
/// the months and moving the mark chooses nothing.
class CalendarView final : public QCalendarWidget {
public:
    explicit CalendarView(const std::function<void(QDate)>& chosen);

    /// The widget of the days, which takes the mouse and the keys.
    QWidget* days() const;
    /// Leafs to the month of a day and tells where in `days()` the day stands.
    QPoint placeOf(QDate day);

private:
    QTableView* table() const;
    void dressLeaf(const char* name, const QString& arrow, const QString& caption);
};

}  // namespace qt
