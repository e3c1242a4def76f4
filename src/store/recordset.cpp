#include "store/recordset.h"

#include "base/errors.h"
#include "store/cursor.h"

namespace store {

Cursor& Recordset::cursor() const {
    if (!cursor_) {
        throw base::RuntimeError(base::ErrorNumber::ObjectNotSet);
    }
    return *cursor_;
}

bool Recordset::isOpen() const {
    return cursor_ && cursor_->isOpen();
}

bool Recordset::standsOn(const QString& table) const {
    return isOpen() && cursor_->standsOn(table);
}

bool Recordset::eof() const {
    return cursor().eof();
}

bool Recordset::bof() const {
    return cursor().bof();
}

bool Recordset::noMatch() const {
    return cursor().noMatch();
}

void Recordset::moveFirst() {
    cursor().moveToEnd(Direction::Forward);
}

void Recordset::moveLast() {
    cursor().moveToEnd(Direction::Backward);
}

void Recordset::moveNext() {
    cursor().move(Direction::Forward);
}

void Recordset::movePrevious() {
    cursor().move(Direction::Backward);
}

void Recordset::stepOn() {
    moveNext();
    if (eof()) {
        moveLast();
    }
}

void Recordset::stepBack() {
    movePrevious();
    if (bof()) {
        moveFirst();
    }
}

void Recordset::findFirst(const QString& criterion) {
    cursor().find(Direction::Forward, criterion);
}

void Recordset::findLast(const QString& criterion) {
    cursor().find(Direction::Backward, criterion);
}

Value Recordset::field(const QString& name) const {
    return cursor().field(name);
}

QStringList Recordset::fieldNames() const {
    return cursor().fieldNames();
}

void Recordset::set(const QString& name, const Value& value) {
    cursor().set(name, value);
}

void Recordset::addNew() {
    cursor().addNew();
}

void Recordset::edit() {
    cursor().edit();
}

void Recordset::update() {
    cursor().update();
}

void Recordset::remove() {
    cursor().remove();
}

void Recordset::eachRow(const QStringList& fields, const std::function<void(const QStringList&)>& visit) const {
    cursor().eachRow(fields, visit);
}

int Recordset::recordCount() const {
    return cursor().recordCount();
}

}  // namespace store
