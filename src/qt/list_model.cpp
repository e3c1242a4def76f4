#include "qt/list_model.h"

namespace qt {

namespace {

// A stored phrase carries its line end or tab with it; a line of the list shows neither.
QString onOneLine(QString line) {
    while (!line.isEmpty() && line.back() < u' ') {
        line.chop(1);
    }
    for (QChar& c : line) {
        if (c < u' ') {
            c = u' ';
        }
    }
    return line;
}

}  // namespace

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count_;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (index.row() >= count_ || index.row() >= list_.count() ||
        (role != Qt::DisplayRole && role != Qt::AccessibleTextRole && role != Qt::ToolTipRole)) {
        return {};
    }
    return onOneLine(list_.items().at(index.row()));
}

void ListModel::follow(forms::Aspect aspect, int row) {
    following_ = true;
    if (aspect == forms::Aspect::ItemAdded) {
        beginInsertRows({}, row, row);
        ++count_;
        endInsertRows();
    } else if (aspect == forms::Aspect::ItemRemoved) {
        beginRemoveRows({}, row, row);
        --count_;
        endRemoveRows();
    } else {
        beginResetModel();
        count_ = list_.count();
        endResetModel();
    }
    following_ = false;
}

void ListModel::release() {
    beginResetModel();
    count_ = 0;
    endResetModel();
}

}  // namespace qt
