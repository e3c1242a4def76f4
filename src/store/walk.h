#pragma once

#include <memory>

#include "store/connection.h"
#include "store/row.h"

namespace store {

/// The way of a cursor through the rows of a query. A call that finds a row makes it the place and reads it; one that
/// finds none leaves both.
class Walk {
public:
    virtual ~Walk() = default;

    /// Goes to the first row in this direction.
    virtual bool seek(Direction direction) = 0;
    /// Goes to the first row in this direction that meets a criterion.
    virtual bool find(Direction direction, const Condition& criterion) = 0;
    /// Goes to the next row in this direction, on from the place, whether or not its row is still there.
    virtual bool step(Direction direction) = 0;
    /// Takes note of a record that was added through the cursor.
    virtual void added(qint64 number) = 0;

    /// The row of the place.
    const Row& row() const { return row_; }
    /// Reads a row anew, that of the place under its present number; the place stays. False if it is gone.
    bool reread(qint64 number);

protected:
    Walk(std::shared_ptr<Shape> shape, Bounds literals) : shape_(std::move(shape)), literals_(std::move(literals)) {}

    Shape& shape() const { return *shape_; }
    const Bounds& literals() const { return literals_; }
    /// Reads the row that the statement finds, if it finds one.
    bool read(Statement& statement);
    /// The row as it was when the cursor came to it: what it was sorted by.
    const Row& place() const { return oldRow_ ? *oldRow_ : row_; }

private:
    std::shared_ptr<Shape> shape_;
    Bounds literals_;
    Row row_;
    std::unique_ptr<Row> oldRow_;
};

std::unique_ptr<Walk> makeWalk(std::shared_ptr<Shape> shape, Bounds literals);

}  // namespace store
