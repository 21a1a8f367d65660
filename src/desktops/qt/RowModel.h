// The rows of a list as a view asks for them: they stay in the control, and the view reads those that it shows.
#pragma once

#include <QAbstractListModel>

#include "desktops/qt/Text.h"
#include "forms/RowList.h"

namespace orx::qt {

/// Belongs to a view, which may outlive the control: Forget cuts it off, and the view is empty from then on.
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
  /// Only while it holds any index.
  const RowList& Rows() const { return *mRows; }
  /// Has the view read all anew.
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
