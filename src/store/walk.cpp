#include "store/walk.h"

#include <algorithm>
#include <optional>

namespace store {
namespace {

/// Each move is one statement that searches an index.
class LazyWalk final : public Walk {
public:
    LazyWalk(std::shared_ptr<Shape> shape, Bounds literals) : Walk(std::move(shape), std::move(literals)) {}

    bool seek(Direction direction) override {
        Statement& statement = shape().seek(direction, {});
        statement.bindAll(1, literals());
        return read(statement);
    }

    bool find(Direction direction, const Condition& criterion) override {
        Statement& statement = shape().seek(direction, criterion.sql);
        statement.bindAll(1, literals());
        statement.bindAll(shape().criterionParameter(), criterion.literals);
        return read(statement);
    }

    bool step(Direction direction) override {
        Statement& statement = shape().step(direction);
        statement.bindAll(1, literals());
        int parameter = shape().criterionParameter();
        for (const OrderField& field : shape().order().fields) {
            statement.bind(parameter++, place().bound(field.place));
        }
        statement.bind(parameter, place().number());
        return read(statement);
    }

    void added(qint64) override {}
};

/// The row numbers are fetched once, when they are first needed; the rows are read one by one. For filters and orders
/// that no index serves: there a search at each step would scan the table each time.
class NumberWalk final : public Walk {
public:
    NumberWalk(std::shared_ptr<Shape> shape, Bounds literals) : Walk(std::move(shape), std::move(literals)) {}

    bool seek(Direction direction) override {
        fetchNumbers();
        return readFrom(firstPlace(direction), direction);
    }

    bool find(Direction direction, const Condition& criterion) override {
        fetchNumbers();
        Statement& statement = shape().amongNumbers(criterion.sql);
        statement.bindAll(shape().criterionParameter(), criterion.literals);
        // The first row often matches: a small look before the large ones.
        qsizetype size = 1;
        for (qsizetype done = 0; done < count(); done += std::exchange(size, Shape::kBlock)) {
            const qsizetype block = std::min(size, count() - done);
            const qsizetype from = direction == Direction::Forward ? done : count() - done - block;
            if (const auto found = firstMatch(statement, direction, from, block)) {
                return readAt(*found);
            }
        }
        return false;
    }

    bool step(Direction direction) override { return readFrom(at_ + stride(direction), direction); }

    void added(qint64 number) override {
        if (numbers_ && std::find(numbers_->begin(), numbers_->end(), number) == numbers_->end()) {
            numbers_->push_back(number);
        }
    }

private:
    static qsizetype stride(Direction direction) { return direction == Direction::Forward ? 1 : -1; }
    qsizetype count() const { return static_cast<qsizetype>(numbers_->size()); }
    qsizetype firstPlace(Direction direction) const { return direction == Direction::Forward ? 0 : count() - 1; }
    qint64 numberAt(qsizetype at) const { return (*numbers_)[static_cast<std::size_t>(at)]; }

    void fetchNumbers() {
        if (numbers_) {
            return;
        }
        Statement& statement = shape().numbers();
        statement.bindAll(1, literals());
        std::vector<qint64> numbers;
        for (const Run run(statement); statement.step();) {
            numbers.push_back(statement.number(0));
        }
        numbers_ = std::move(numbers);
    }

    // Rows that were deleted meanwhile are passed over.
    bool readFrom(qsizetype at, Direction direction) {
        for (; at >= 0 && at < count(); at += stride(direction)) {
            if (readAt(at)) {
                return true;
            }
        }
        return false;
    }

    bool readAt(qsizetype at) {
        Statement& statement = shape().byNumber();
        statement.bind(1, numberAt(at));
        const bool found = read(statement);
        at_ = found ? at : at_;
        return found;
    }

    std::optional<qsizetype> firstMatch(Statement& statement, Direction direction, qsizetype from,
                                        qsizetype size) const {
        for (int i = 0; i < Shape::kBlock; ++i) {
            statement.bind(i + 1, numberAt(from + std::min<qsizetype>(i, size - 1)));
        }
        const auto begin = numbers_->begin() + from;
        std::optional<qsizetype> best;
        for (const Run run(statement); statement.step();) {
            const qsizetype at = std::find(begin, begin + size, statement.number(0)) - numbers_->begin();
            if (!best || (direction == Direction::Forward ? at < *best : at > *best)) {
                best = at;
            }
        }
        return best;
    }

    std::optional<std::vector<qint64>> numbers_;
    qsizetype at_ = 0;
};

}  // namespace

bool Walk::read(Statement& statement) {
    const Run run(statement);
    if (!statement.step()) {
        return false;
    }
    row_.read(statement);
    oldRow_.reset();
    return true;
}

bool Walk::reread(qint64 number) {
    Statement& statement = shape_->byNumber();
    statement.bind(1, number);
    const Run run(statement);
    if (!statement.step()) {
        return false;
    }
    if (!oldRow_) {
        oldRow_ = std::make_unique<Row>(row_);
    }
    row_.read(statement);
    return true;
}

std::unique_ptr<Walk> makeWalk(std::shared_ptr<Shape> shape, Bounds literals) {
    if (shape->isLazy()) {
        return std::make_unique<LazyWalk>(std::move(shape), std::move(literals));
    }
    return std::make_unique<NumberWalk>(std::move(shape), std::move(literals));
}

}  // namespace store
