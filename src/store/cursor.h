#pragma once

#include <QStringList>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "store/walk.h"

namespace store {

/// The current record of a query and the record that is being added or edited.
class Cursor {
public:
    Cursor(std::shared_ptr<Connection> connection, const Query& query);

    bool isOpen() const { return connection_->isOpen(); }
    bool standsOn(const QString& name);

    bool eof();
    bool bof();
    bool noMatch() const;

    void moveToEnd(Direction direction);
    void move(Direction direction);
    void find(Direction direction, const QString& criterion);

    Value field(const QString& name);
    QStringList fieldNames() const;

    void addNew();
    void edit();
    void set(const QString& name, const Value& value);
    void update();
    void remove();
    int recordCount();
    void eachRow(const QStringList& fields, const std::function<void(const QStringList&)>& visit);

private:
    enum class State { Fresh, OnRow, Deleted, AtBegin, AtEnd, Empty };
    enum class Mode { Reading, Adding, Editing };

    sqlite3* database() const { return connection_->database(); }
    const Table& table() const { return shape_->table(); }
    const Field& fieldAt(int place) const { return table().fields[static_cast<std::size_t>(place)]; }
    int placeOf(const QString& name) const;

    /// Reads the first row, if nothing asked for a row since the query was opened.
    void settle();
    /// Throws NoCurrentRecord or RecordDeleted unless the cursor stands on a row.
    void requireRow();
    void goToEnd(Direction direction);
    void passEnd(Direction direction);
    void dropEdit();
    void begin(Mode mode);
    Value editedField(int place);
    void insert();
    void change();
    bool writeChanges();
    [[noreturn]] void lose();

    std::shared_ptr<Connection> connection_;
    std::shared_ptr<Shape> shape_;
    Bounds literals_;
    std::unique_ptr<Walk> walk_;
    State state_ = State::Fresh;
    bool noMatch_ = false;
    Mode mode_ = Mode::Reading;
    /// What was written to the record being added or edited, by field.
    std::vector<std::optional<Bound>> written_;
};

}  // namespace store
