#include "store/cursor.h"

#include <limits>

#include "base/dates.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "store/names.h"

namespace store {
namespace {

using base::ErrorNumber;
using base::RuntimeError;

[[noreturn]] void failOn(ErrorNumber number, const QString& field) {
    throw RuntimeError(number, base::errorText(number, field));
}

Bound numberFor(const Field& field, const Value& value) {
    const qint64 number = value.number();
    using Limits = std::numeric_limits<qint16>;
    if (field.sixteenBits && (number < Limits::min() || number > Limits::max())) {
        failOn(ErrorNumber::Overflow, field.name);
    }
    return number;
}

Bound dateFor(const Field& field, const Value& value) {
    if (value.isDate() && !value.date().isValid()) {
        return {};
    }
    const auto date = value.isDate() ? std::optional(value.date()) : base::readDate(value.text(), QDate());
    const QString stored = date ? date->toString(Qt::ISODate) : QString();
    if (stored.isEmpty()) {
        failOn(ErrorNumber::TypeMismatch, field.name);
    }
    return stored.toUtf8();
}

Bound boundFor(const Field& field, const Value& value) {
    if (value.isNull()) {
        return {};
    }
    switch (field.kind) {
        case FieldKind::Number:
            return numberFor(field, value);
        case FieldKind::Date:
            return dateFor(field, value);
        case FieldKind::Text:
            break;
    }
    return value.text().toUtf8();
}

}  // namespace

Cursor::Cursor(std::shared_ptr<Connection> connection, const Query& query)
    : connection_(std::move(connection)),
      shape_(connection_->shape(query)),
      literals_(query.condition.literals),
      walk_(makeWalk(shape_, literals_)) {}

int Cursor::placeOf(const QString& name) const {
    const int place = table().place(name);
    if (place < 0) {
        failOn(ErrorNumber::UnknownField, name);
    }
    return place;
}

void Cursor::settle() {
    database();
    if (state_ == State::Fresh) {
        state_ = walk_->seek(Direction::Forward) ? State::OnRow : State::Empty;
    }
}

void Cursor::requireRow() {
    settle();
    if (state_ == State::Deleted) {
        throw RuntimeError(ErrorNumber::RecordDeleted);
    }
    if (state_ != State::OnRow) {
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
    }
}

bool Cursor::standsOn(const QString& name) {
    settle();
    return state_ == State::OnRow && sameName(table().name, name);
}

bool Cursor::eof() {
    settle();
    return state_ == State::AtEnd || state_ == State::Empty;
}

bool Cursor::bof() {
    settle();
    return state_ == State::AtBegin || state_ == State::Empty;
}

bool Cursor::noMatch() const {
    database();
    return noMatch_;
}

void Cursor::goToEnd(Direction direction) {
    state_ = walk_->seek(direction) ? State::OnRow : State::Empty;
}

void Cursor::moveToEnd(Direction direction) {
    database();
    dropEdit();
    goToEnd(direction);
    if (state_ == State::Empty) {
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
    }
}

void Cursor::move(Direction direction) {
    settle();
    dropEdit();
    const State end = direction == Direction::Forward ? State::AtEnd : State::AtBegin;
    const State otherEnd = direction == Direction::Forward ? State::AtBegin : State::AtEnd;
    if (state_ == end || state_ == State::Empty) {
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
    }
    if (state_ == otherEnd) {
        goToEnd(direction);
    } else if (walk_->step(direction)) {
        state_ = State::OnRow;
    } else {
        passEnd(direction);
    }
}

// After the last record left was deleted both flags stand.
void Cursor::passEnd(Direction direction) {
    const bool empty = state_ == State::Deleted && recordCount() == 0;
    state_ = empty ? State::Empty : direction == Direction::Forward ? State::AtEnd : State::AtBegin;
}

void Cursor::find(Direction direction, const QString& criterion) {
    database();
    const Condition condition = readCriterion(criterion, table(), shape_->criterionParameter());
    dropEdit();
    noMatch_ = !walk_->find(direction, condition);
    if (!noMatch_) {
        state_ = State::OnRow;
    }
}

Value Cursor::field(const QString& name) {
    const int place = placeOf(name);
    if (mode_ != Mode::Reading) {
        return editedField(place);
    }
    requireRow();
    return toValue(walk_->row().bound(place), fieldAt(place).kind);
}

Value Cursor::editedField(int place) {
    database();
    const std::optional<Bound>& written = written_[static_cast<std::size_t>(place)];
    if (written) {
        return toValue(*written, fieldAt(place).kind);
    }
    if (mode_ == Mode::Adding) {
        return {};
    }
    requireRow();
    return toValue(walk_->row().bound(place), fieldAt(place).kind);
}

QStringList Cursor::fieldNames() const {
    database();
    QStringList names;
    for (const Field& field : table().fields) {
        names << field.name;
    }
    return names;
}

void Cursor::dropEdit() {
    mode_ = Mode::Reading;
    written_.clear();
}

void Cursor::begin(Mode mode) {
    mode_ = mode;
    written_.assign(table().fields.size(), std::nullopt);
}

void Cursor::addNew() {
    settle();
    begin(Mode::Adding);
}

void Cursor::edit() {
    requireRow();
    if (!walk_->reread(walk_->row().number())) {
        lose();
    }
    begin(Mode::Editing);
}

void Cursor::lose() {
    state_ = State::Deleted;
    throw RuntimeError(ErrorNumber::RecordDeleted);
}

void Cursor::set(const QString& name, const Value& value) {
    database();
    if (mode_ == Mode::Reading) {
        throw RuntimeError(ErrorNumber::UpdateWithoutEdit);
    }
    const int place = placeOf(name);
    written_[static_cast<std::size_t>(place)] = boundFor(fieldAt(place), value);
}

void Cursor::update() {
    database();
    switch (mode_) {
        case Mode::Reading:
            throw RuntimeError(ErrorNumber::UpdateWithoutEdit);
        case Mode::Adding:
            insert();
            break;
        case Mode::Editing:
            change();
            break;
    }
    dropEdit();
}

void Cursor::insert() {
    QByteArrayList columns;
    QByteArrayList marks;
    Bounds values;
    for (int place = 0; place < static_cast<int>(written_.size()); ++place) {
        const std::optional<Bound>& written = written_[static_cast<std::size_t>(place)];
        const bool isNull = !written || std::holds_alternative<std::monostate>(*written);
        if (isNull && place == table().rowField && !fieldAt(place).numbered) {
            failOn(ErrorNumber::RequiredValue, fieldAt(place).name);
        }
        if (!isNull) {
            columns << table().column(place);
            marks << QByteArrayLiteral("?");
            values.push_back(*written);
        }
    }
    const QByteArray into = "INSERT INTO \"" + table().name.toUtf8() + '"';
    Statement& statement =
        connection_->writer(values.empty() ? into + " DEFAULT VALUES"
                                           : into + '(' + columns.join(',') + ")VALUES(" + marks.join(',') + ')');
    statement.bindAll(1, values);
    const Run run(statement);
    statement.step();
    walk_->added(sqlite3_last_insert_rowid(database()));
}

void Cursor::change() {
    requireRow();
    if (!writeChanges()) {
        lose();
    }
    const int rowField = table().rowField;
    const bool renumbered = rowField >= 0 && written_[static_cast<std::size_t>(rowField)].has_value();
    walk_->reread(renumbered ? std::get<qint64>(*written_[static_cast<std::size_t>(rowField)]) : walk_->row().number());
}

bool Cursor::writeChanges() {
    QByteArrayList columns;
    Bounds values;
    for (int place = 0; place < static_cast<int>(written_.size()); ++place) {
        if (const std::optional<Bound>& written = written_[static_cast<std::size_t>(place)]) {
            columns << table().column(place) + "=?";
            values.push_back(*written);
        }
    }
    if (values.empty()) {
        return walk_->reread(walk_->row().number());
    }
    values.emplace_back(walk_->row().number());
    Statement& statement = connection_->writer("UPDATE \"" + table().name.toUtf8() + "\" SET " + columns.join(',') +
                                               " WHERE " + table().rowColumn() + "=?");
    statement.bindAll(1, values);
    const Run run(statement);
    statement.step();
    return sqlite3_changes(database()) > 0;
}

void Cursor::remove() {
    requireRow();
    Statement& statement =
        connection_->writer("DELETE FROM \"" + table().name.toUtf8() + "\" WHERE " + table().rowColumn() + "=?");
    statement.bind(1, walk_->row().number());
    const Run run(statement);
    statement.step();
    dropEdit();
    if (sqlite3_changes(database()) == 0) {
        lose();
    }
    state_ = State::Deleted;
}

int Cursor::recordCount() {
    database();
    Statement& statement = shape_->count();
    statement.bindAll(1, literals_);
    const Run run(statement);
    return statement.step() ? static_cast<int>(statement.number(0)) : 0;
}

void Cursor::eachRow(const QStringList& fields, const std::function<void(const QStringList&)>& visit) {
    database();
    std::vector<int> places;
    for (const QString& field : fields) {
        places.push_back(placeOf(field));
    }
    Statement& statement = shape_->rows();
    statement.bindAll(1, literals_);
    QStringList texts(fields.size());
    for (const Run run(statement); statement.step();) {
        for (qsizetype i = 0; i < texts.size(); ++i) {
            const int place = places[static_cast<std::size_t>(i)];
            texts[i] = textOf(statement, place + 1, fieldAt(place).kind);
        }
        visit(texts);
    }
}

}  // namespace store
