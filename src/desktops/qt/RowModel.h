// The rows of a list, for a view: they stay in the control, and the view reads those that it shows.
#pragma once

#include <QAbstractListModel>

#include "desktops/qt/Text.h"
#include "forms/RowList.h"

namespace orx::qt {

/// Belongs to a view, which may outlive the control: after Forget the view is empty.
class RowModel final : public QAbstractListModel {
 public:
  RowModel(const RowList& rows, QObject* parent) : QAbstractListModel(parent), mRows(&rows) {}

  int rowCount(const QModelIndex& parent) const override {
    return mRows && !parent.isValid() ? mRows->ShownCount() : 0;
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole || !Holds(index)) return {};
    return ToQt(mRows->ShownText(index.row()));
  }
  /// True when the control has a row for it.
  bool Holds(const QModelIndex& index) const { return mRows && index.row() >= 0 && index.row() < mRows->ShownCount(); }
  /// To be called only while it holds an index.
  const RowList& Rows() const { return *mRows; }
  /// Makes the view read everything again.
  void Renew() {
    beginResetModel();
    endResetModel();
  }
  void Forget() {
    mRows = nullptr;
    Renew();
  }

 private:
  const RowList* mRows;
};

}  // namespace orx::qt
