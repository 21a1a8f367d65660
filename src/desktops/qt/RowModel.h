// The rows of a list as a view asks for them: they stay in the control, and the view reads those that it shows.
#pragma once

#include <QAbstractListModel>

#include "desktops/qt/Text.h"

namespace orx::qt {

/// Belongs to a view, which may outlive the control: Forget cuts it off, and the view is empty from then on.
template <class List>
class RowModel : public QAbstractListModel {
 public:
  RowModel(const List& control, QObject* parent) : QAbstractListModel(parent), mControl(&control) {}

  int rowCount(const QModelIndex& parent) const override {
    return mControl && !parent.isValid() ? Count(*mControl) : 0;
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole || !Holds(index)) return {};
    return ToQt(Text(*mControl, index.row()));
  }
  /// True when the control has a row for it.
  bool Holds(const QModelIndex& index) const { return mControl && index.row() >= 0 && index.row() < Count(*mControl); }
  /// Has the view read all anew.
  void Renew() {
    beginResetModel();
    endResetModel();
  }
  void Forget() {
    mControl = nullptr;
    Renew();
  }

 protected:
  virtual int Count(const List& control) const = 0;
  virtual const std::string& Text(const List& control, int row) const = 0;
  /// Only for an index that it holds.
  const List& Source() const { return *mControl; }

 private:
  const List* mControl;
};

}  // namespace orx::qt
