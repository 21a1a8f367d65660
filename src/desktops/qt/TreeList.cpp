#include "forms/TreeList.h"

#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "desktops/qt/NativeRows.h"
#include "desktops/qt/Peers.h"
#include "desktops/qt/RowModel.h"
#include "forms/Desktop.h"
#include "forms/Form.h"

namespace orx::qt {
namespace {

/// In twips: the width that a level takes.
constexpr int kLevelWidth = 240;

class ShownRows final : public RowModel<TreeList> {
 public:
  using RowModel::RowModel;

  /// Null when the control has let the view go.
  const TreeRow* At(const QModelIndex& index) const {
    return Holds(index) ? &Source().Row(Source().ShownRow(index.row())) : nullptr;
  }
  bool HasChildren(const QModelIndex& index) const {
    return Holds(index) && Source().HasChildren(Source().ShownRow(index.row()));
  }

 private:
  int Count(const TreeList& control) const override { return control.ShownCount(); }
  const std::string& Text(const TreeList& control, int row) const override {
    return control.Row(control.ShownRow(row)).Text;
  }
};

/// Paints a row with its mark for folding, in the look of the platform.
class RowPainter final : public QStyledItemDelegate {
 public:
  RowPainter(const ShownRows& rows, int levelWidth, int gap, QObject* parent)
      : QStyledItemDelegate(parent), mRows(rows), mLevelWidth(levelWidth), mGap(gap) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const TreeRow* const row = mRows.At(index);
    if (!row) return;
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    const QStyle& style = *item.widget->style();
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, item.widget);
    if (mRows.HasChildren(index)) {
      QStyleOption mark;
      mark.rect = MarkOf(*row, item.rect);
      mark.palette = item.palette;
      mark.state = QStyle::State_Children | (item.state & (QStyle::State_Enabled | QStyle::State_Selected));
      if (row->Expanded) mark.state |= QStyle::State_Open;
      style.drawPrimitive(QStyle::PE_IndicatorBranch, &mark, painter, item.widget);
    }
    item.rect.setLeft(MarkOf(*row, item.rect).right() + 1);
    style.drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    return {1, std::max(hint.height(), option.fontMetrics.height() + mGap)};
  }

  QRect MarkOf(const TreeRow& row, const QRect& place) const {
    return {place.left() + row.Level * mLevelWidth, place.top(), mLevelWidth, place.height()};
  }

 private:
  const ShownRows& mRows;
  int mLevelWidth;
  int mGap;
};

class TreeListPeer final : public Peer {
 public:
  TreeListPeer(TreeList& control, Dialog& dialog, NativeRows* native)
      : Peer(control, dialog, native), mControl(control), mNative(*native), mRows(*new ShownRows(control, native)) {
    const Desktop& desktop = dialog.Owner().OwnerDesktop();
    mPainter = new RowPainter(mRows, desktop.ToPixels(kLevelWidth), desktop.ToPixels(kRowGap), native);
    mNative.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mNative.setTextElideMode(Qt::ElideRight);
    mNative.setItemDelegate(mPainter);
    mNative.setModel(&mRows);
    mNative.Pressed = [this](QPoint at, bool twice) { Pressed(at, twice); };
    mNative.KeyPressed = [&control, &dialog, native](const QKeyEvent& event) {
      return ReportRowKey(control, dialog, *native, event);
    };
    // Assistive software selects rows without mouse and keys.
    connect(mNative.selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& index) {
      Report([&] {
        if (mRows.At(index)) mControl.UserClick(mControl.ShownRow(index.row()));
      });
    });
  }
  ~TreeListPeer() override {
    mNative.Pressed = nullptr;
    mNative.KeyPressed = nullptr;
    mRows.Forget();
  }

 private:
  void Pressed(QPoint at, bool twice) {
    const QModelIndex index = mNative.indexAt(at);
    TreeList& control = mControl;
    const TreeRow* const row = mRows.At(index);
    if (!row) return Report([&] { control.OwnerForm().UserFocus(control); });
    const bool isOnMark = mPainter->MarkOf(*row, mNative.visualRect(index)).contains(at);
    const bool folds = mRows.HasChildren(index) && (isOnMark || twice);
    const int which = control.ShownRow(index.row());
    Report([&] { folds ? control.UserFold(which) : control.UserClick(which); });
  }

  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Items) MirrorRows();
    if (aspect == Aspect::Items || aspect == Aspect::Value) MirrorSelection(aspect == Aspect::Value);
    if (aspect == Aspect::Text) mNative.viewport()->update();
    Peer::Mirror(aspect);
  }

  void MirrorRows() {
    // Anew, but from the same row on as before.
    const int first = mNative.verticalScrollBar()->value();
    mRows.Renew();
    mNative.doItemsLayout();
    mNative.verticalScrollBar()->setValue(first);
  }

  /// Folding rows must not make the list jump to the selected one.
  void MirrorSelection(bool scrolls) {
    const bool isSelected = mControl.ListIndex() >= 0;
    const QModelIndex index = isSelected ? mRows.index(mControl.PositionOf(mControl.ListIndex())) : QModelIndex();
    // A view that takes the focus makes its first row the current one, without selecting it.
    if (!isSelected || !mNative.selectionModel()->isSelected(index)) {
      mNative.setAutoScroll(false);
      mNative.setCurrentIndex(index);
      mNative.setAutoScroll(true);
    }
    if (scrolls && isSelected) mNative.scrollTo(index);
  }

  TreeList& mControl;
  NativeRows& mNative;
  ShownRows& mRows;
  RowPainter* mPainter = nullptr;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(TreeList& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<TreeListPeer>(control, dialog, new NativeRows(&parent));
}

}  // namespace orx::qt
