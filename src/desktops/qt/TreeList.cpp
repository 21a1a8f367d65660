#include "forms/TreeList.h"

#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>

#include "desktops/qt/Peers.h"
#include "desktops/qt/RowsPeer.h"
#include "desktops/qt/Text.h"
#include "forms/Form.h"
#include "forms/RowMeasures.h"

namespace orx::qt {
namespace {

/// Paints a row with its mark for folding, in the look of the platform.
class RowPainter final : public QStyledItemDelegate {
 public:
  RowPainter(const RowModel& model, RowMeasures measures, QObject* parent)
      : QStyledItemDelegate(parent), mModel(model), mMeasures(measures) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    if (!mModel.Holds(index)) return;
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    item.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, item.widget);
    PaintMark(*painter, item, index.row());
    const int indent = mMeasures.Indent(mModel.Rows().LevelsAt(index.row()));
    item.rect = QStyle::visualRect(item.direction, item.rect, item.rect.adjusted(indent, 0, 0, 0));
    item.widget->style()->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
  }

  /// A name that is cut off can be read in a tool tip.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    if (event->type() != QEvent::ToolTip || !mModel.Holds(index)) return false;
    const int indent = mMeasures.Indent(mModel.Rows().LevelsAt(index.row()));
    const bool isCut = indent + QStyledItemDelegate::sizeHint(option, index).width() > option.rect.width();
    const QString text = isCut ? PlainToolTip(mModel.Rows().ShownText(index.row())) : QString();
    QToolTip::showText(event->globalPos(), text, view, option.rect);
    return true;
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    return {1, std::max(hint.height(), mMeasures.Height(option.fontMetrics.height()))};
  }

 private:
  void PaintMark(QPainter& painter, const QStyleOptionViewItem& item, int position) const {
    const FoldMark which = mModel.Rows().MarkAt(position);
    if (which == FoldMark::None) return;
    const PixelSpan span = mMeasures.MarkAt(mModel.Rows().LevelsAt(position));
    QStyleOption mark;
    const QRect place(item.rect.left() + span.Left, item.rect.top(), span.Width, item.rect.height());
    mark.rect = QStyle::visualRect(item.direction, item.rect, place);
    mark.direction = item.direction;
    mark.palette = item.palette;
    mark.state = QStyle::State_Children | (item.state & (QStyle::State_Enabled | QStyle::State_Selected));
    if (which == FoldMark::Unfolded) mark.state |= QStyle::State_Open;
    item.widget->style()->drawPrimitive(QStyle::PE_IndicatorBranch, &mark, &painter, item.widget);
  }

  const RowModel& mModel;
  RowMeasures mMeasures;
};

class TreeListPeer final : public RowsPeer {
 public:
  TreeListPeer(TreeList& control, Dialog& dialog, RowsView* view)
      : RowsPeer(control, control, dialog, view), mControl(control) {
    view->setItemDelegate(new RowPainter(Model(), RowMeasures(dialog.Owner().OwnerDesktop().Scale()), view));
    // Assistive software selects rows without mouse and keys.
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) { Report([&] { mControl.UserSelect(index.row(), true); }); });
  }

 private:
  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Items) MirrorRows();
    if (aspect == Aspect::Items || aspect == Aspect::Value) MirrorSelection(aspect == Aspect::Value);
    if (aspect == Aspect::Text) View().viewport()->update();
    Peer::Mirror(aspect);
  }

  void MirrorRows() {
    // The rows are read again, but the first one in view stays the same.
    const int first = View().verticalScrollBar()->value();
    Model().Renew();
    View().doItemsLayout();
    View().verticalScrollBar()->setValue(first);
  }

  /// Folding rows must not make the list jump to the selected one.
  void MirrorSelection(bool scrolls) {
    const bool isSelected = mControl.ListIndex() >= 0;
    const QModelIndex index = isSelected ? Model().index(mControl.FocusPosition()) : QModelIndex();
    // A view that takes the focus makes its first row the current one, without selecting it.
    if (!isSelected || !View().selectionModel()->isSelected(index)) {
      View().setAutoScroll(false);
      View().setCurrentIndex(index);
      View().setAutoScroll(true);
    }
    if (scrolls && isSelected) View().scrollTo(index);
  }

  TreeList& mControl;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(TreeList& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<TreeListPeer>(control, dialog, new RowsView(&parent));
}

}  // namespace orx::qt
