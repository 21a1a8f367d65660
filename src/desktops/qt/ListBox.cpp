#include "forms/ListBox.h"

#include <QStyledItemDelegate>
#include <algorithm>

#include "desktops/qt/Peers.h"
#include "desktops/qt/RowsPeer.h"
#include "forms/Form.h"
#include "forms/RowMeasures.h"

namespace orx::qt {
namespace {

/// Paints entries and keeps the width of the widest one that came into view; measuring all of a long list would take
/// too long.
class EntryPainter final : public QStyledItemDelegate {
 public:
  EntryPainter(RowsView& view, RowMeasures measures) : QStyledItemDelegate(&view), mView(view), mMeasures(measures) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    const int width = QStyledItemDelegate::sizeHint(option, index).width();
    if (width <= mWidest) return;
    mWidest = width;
    // Not during a paint event.
    QMetaObject::invokeMethod(
        &mView, [this] { mView.doItemsLayout(); }, Qt::QueuedConnection);
  }
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const int height = QStyledItemDelegate::sizeHint(option, index).height();
    return {mWidest, std::max(height, mMeasures.Height(option.fontMetrics.height()))};
  }
  void Forget() { mWidest = 0; }

 private:
  RowsView& mView;
  RowMeasures mMeasures;
  mutable int mWidest = 0;
};

class ListBoxPeer final : public RowsPeer {
 public:
  ListBoxPeer(ListBox& control, Dialog& dialog, RowsView* view)
      : RowsPeer(control, control, dialog, view),
        mControl(control),
        mPainter(*new EntryPainter(*view, RowMeasures(dialog.Owner().OwnerDesktop().Scale()))) {
    view->setItemDelegate(&mPainter);
    view->setSelectionMode(control.MultiSelect() ? QAbstractItemView::MultiSelection
                                                 : QAbstractItemView::SingleSelection);
    // Assistive software selects entries without mouse and keys.
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& selected, const QItemSelection& deselected) {
              Selected(deselected, false);
              Selected(selected, true);
            });
  }

 private:
  void Selected(const QItemSelection& changed, bool value) {
    ListBox& control = mControl;
    Dialog& dialog = Window();
    for (const QModelIndex& index : changed.indexes()) {
      const int row = index.row();
      dialog.Report([&] { control.UserSelect(row, value); });
    }
  }

  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Items) {
      mPainter.Forget();
      Model().Renew();
      mShown.Clear();
    }
    if (aspect == Aspect::Items || aspect == Aspect::Value) MirrorSelection();
    Peer::Mirror(aspect);
  }

  void MirrorSelection() {
    QItemSelectionModel& native = *View().selectionModel();
    const QModelIndex current = mControl.FocusPosition() < 0 ? QModelIndex() : Model().index(mControl.FocusPosition());
    native.setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    mShown.Show(mControl.SelectedRows(), [&](int row, bool isSelected) {
      native.select(Model().index(row), isSelected ? QItemSelectionModel::Select : QItemSelectionModel::Deselect);
    });
    if (mControl.ListIndex() >= 0) View().scrollTo(current);
  }

  ListBox& mControl;
  EntryPainter& mPainter;
  ShownSelection mShown;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(ListBox& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<ListBoxPeer>(control, dialog, new RowsView(&parent));
}

}  // namespace orx::qt
