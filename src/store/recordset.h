#pragma once

#include <QStringList>
#include <functional>
#include <memory>

#include "store/value.h"

namespace store {

class Cursor;

/// A current-record cursor over the rows of a query, in the query's order. Copies share the one cursor. Each move and
/// find is one indexed statement; no row is held but the current one. What others write meanwhile shows at the next
/// move. A recordset that stands on no query throws ObjectNotSet, one whose file was closed ObjectClosed, at every use;
/// any use throws RecordLocked when another station keeps the file for five seconds, DeviceError or UnknownFormat when
/// it can't be read.
///
/// A query with no order walks in the order of insertion (patients: of their number). Rows that an order leaves level
/// stand in that of the index behind it, which for names is the first name, then the number.
///
/// A query with LIKE, OR or NOT, or with an order that no index serves, keeps the row numbers that it finds at its
/// first use: rows that come later don't show, but for those added through it, which stand at the end.
class Recordset {
public:
    Recordset() = default;

    bool isOpen() const;
    /// Whether it stands on a record of this table (the name without regard to case) that can be read.
    bool standsOn(const QString& table) const;

    bool eof() const;
    bool bof() const;
    /// Whether the last find matched nothing.
    bool noMatch() const;

    /// Moves. `moveFirst` and `moveLast` on no rows throw NoCurrentRecord; so do `moveNext` at the end and
    /// `movePrevious` at the beginning. Moving beyond the last row sets the end flag, beyond the first the beginning
    /// flag. A move drops what was being added or edited.
    void moveFirst();
    void moveLast();
    void moveNext();
    void movePrevious();

    // The same for a person who steps through the rows: at the ends they stay on the last and the first one.
    void stepOn();
    void stepBack();

    /// The first (last) row in cursor order that satisfies the criterion. A find that matches nothing sets the no-match
    /// flag and leaves the cursor on its row. Throws QuerySyntax, UnknownParameter.
    void findFirst(const QString& criterion);
    void findLast(const QString& criterion);

    /// The value of a field of the current record, or of the record being added or edited. Names compare without regard
    /// to case. Throws NoCurrentRecord, RecordDeleted, UnknownField.
    Value field(const QString& name) const;
    /// The text of a field, null as nothing.
    QString text(const QString& name) const { return field(name).text(); }
    /// The names of the fields, in the order of the table.
    QStringList fieldNames() const;

    /// Writes a field of the record being added or edited. Throws UpdateWithoutEdit, UnknownField, TypeMismatch (a text
    /// that is no number into a number field), Overflow (beyond 16 bits into one of 16 bits).
    void set(const QString& name, const Value& value);

    /// Begins a new record, every field null. A second add drops the first.
    void addNew();
    /// Begins the change of the current record, read anew; its place stays. Throws NoCurrentRecord, RecordDeleted.
    void edit();
    /// Writes the record begun by `addNew` or `edit`; it is on the disk when this returns. After an add the cursor
    /// stays where it was. Throws UpdateWithoutEdit, DuplicateKey, RequiredValue, EmptyText, RecordDeleted (removed by
    /// another station), RecordLocked, ReadOnly, DiskFull; the record is then still being added or edited.
    void update();
    /// Deletes the current record; its fields can't be read afterwards, and the next move goes on from its place.
    /// Throws NoCurrentRecord, RecordDeleted (here or elsewhere, before), RecordLocked, ReadOnly, DiskFull.
    void remove();

    /// The number of rows that the query has now.
    int recordCount() const;

    /// Reads all rows that the query has now, in its order, in one pass, and hands on the texts of these fields for
    /// each. For lists of many rows: to walk there takes a statement a row. The cursor stays where it is; `visit` may
    /// not use the file. Throws UnknownField.
    void eachRow(const QStringList& fields, const std::function<void(const QStringList& texts)>& visit) const;

private:
    friend class Database;
    explicit Recordset(std::shared_ptr<Cursor> cursor) : cursor_(std::move(cursor)) {}
    Cursor& cursor() const;

    std::shared_ptr<Cursor> cursor_;
};

}  // namespace store
