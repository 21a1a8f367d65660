#include "forms/ListBox.h"

#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "desktops/qt/NativeRows.h"
#include "desktops/qt/Peers.h"
#include "desktops/qt/RowModel.h"
#include "forms/Desktop.h"
#include "forms/Form.h"

namespace orx::qt {
namespace {

class Entries final : public RowModel<ListBox> {
 public:
  using RowModel::RowModel;

 private:
  int Count(const ListBox& control) const override { return control.ListCount(); }
  const std::string& Text(const ListBox& control, int row) const override { return control.List(row); }
};

/// Paints entries and keeps the width of the widest one that came into view, as nobody measures all of a long list.
class EntryPainter final : public QStyledItemDelegate {
 public:
  /// `gap`: the pixels that an entry is higher than its text.
  EntryPainter(NativeRows& view, int gap) : QStyledItemDelegate(&view), mView(view), mGap(gap) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    const int width = QStyledItemDelegate::sizeHint(option, index).width();
    if (width <= mWidest) return;
    mWidest = width;
    // Not from within a paint event.
    QMetaObject::invokeMethod(
        &mView, [this] { mView.doItemsLayout(); }, Qt::QueuedConnection);
  }
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const int height = QStyledItemDelegate::sizeHint(option, index).height();
    return {mWidest, std::max(height, option.fontMetrics.height() + mGap)};
  }
  void Forget() { mWidest = 0; }

 private:
  NativeRows& mView;
  int mGap;
  mutable int mWidest = 0;
};

class ListBoxPeer final : public Peer {
 public:
  ListBoxPeer(ListBox& control, Dialog& dialog, NativeRows* native)
      : Peer(control, dialog, native),
        mControl(control),
        mNative(*native),
        mEntries(*new Entries(control, native)),
        mPainter(*new EntryPainter(*native, dialog.Owner().OwnerDesktop().ToPixels(kRowGap))) {
    mNative.setItemDelegate(&mPainter);
    mNative.setTextElideMode(Qt::ElideNone);
    mNative.setSelectionMode(control.MultiSelect() ? QAbstractItemView::MultiSelection
                                                   : QAbstractItemView::SingleSelection);
    mNative.setModel(&mEntries);
    mNative.Pressed = [this](QPoint at, bool twice) { Pressed(at, twice); };
    mNative.KeyPressed = [&control, &dialog, native](const QKeyEvent& event) {
      if (event.key() == Qt::Key_Left || event.key() == Qt::Key_Right) return ScrollAcross(*native, event);
      return ReportRowKey(control, dialog, *native, event);
    };
    // Assistive software selects entries without mouse and keys.
    connect(mNative.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& selected, const QItemSelection& deselected) {
              if (mControl.MultiSelect()) Selected(deselected, false);
              Selected(selected, true);
            });
  }
  ~ListBoxPeer() override {
    mNative.Pressed = nullptr;
    mNative.KeyPressed = nullptr;
    mEntries.Forget();
  }

 private:
  void Pressed(QPoint at, bool twice) {
    ListBox& control = mControl;
    const QModelIndex index = mNative.indexAt(at);
    if (!index.isValid()) return Report([&] { control.OwnerForm().UserFocus(control); });
    const int row = index.row();
    Report([&] { twice ? control.UserDoubleClick(row) : control.UserClick(row); });
  }

  static bool ScrollAcross(NativeRows& native, const QKeyEvent& event) {
    native.horizontalScrollBar()->triggerAction(event.key() == Qt::Key_Left ? QAbstractSlider::SliderSingleStepSub
                                                                            : QAbstractSlider::SliderSingleStepAdd);
    return true;
  }

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
      mEntries.Renew();
      mShown.clear();
    }
    if (aspect == Aspect::Items || aspect == Aspect::Value) MirrorSelection();
    Peer::Mirror(aspect);
  }

  /// Tells the view what has changed alone: a long list may have many selected entries.
  void MirrorSelection() {
    std::set<int> selected = mControl.SelectedRows();
    QItemSelectionModel& native = *mNative.selectionModel();
    const QModelIndex current = mControl.FocusRow() < 0 ? QModelIndex() : mEntries.index(mControl.FocusRow());
    native.setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    for (const int row : mShown)
      if (!selected.contains(row)) native.select(mEntries.index(row), QItemSelectionModel::Deselect);
    for (const int row : selected)
      if (!mShown.contains(row)) native.select(mEntries.index(row), QItemSelectionModel::Select);
    mShown = std::move(selected);
    if (mControl.ListIndex() >= 0) mNative.scrollTo(current);
  }

  ListBox& mControl;
  NativeRows& mNative;
  Entries& mEntries;
  EntryPainter& mPainter;
  /// The entries that the view shows as selected.
  std::set<int> mShown;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(ListBox& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<ListBoxPeer>(control, dialog, new NativeRows(&parent));
}

}  // namespace orx::qt
