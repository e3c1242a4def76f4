#pragma once

#include <QAbstractListModel>

#include "forms/controls.h"

namespace qt {

/// Shows the lines of a list box to a list view; the lines stay where they are.
class ListModel final : public QAbstractListModel {
public:
    ListModel(const forms::ListBox& list, QObject* parent)
        : QAbstractListModel(parent), list_(list), count_(list.count()) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// Follows a change of the lines that has just happened.
    void follow(forms::Aspect aspect, int row);
    /// Whether it is doing so: what the view then chooses by itself is no person's choice.
    bool following() const { return following_; }
    /// Shows nothing more: the list box is about to go.
    void release();

private:
    const forms::ListBox& list_;
    int count_;
    bool following_ = false;
};

}  // namespace qt
