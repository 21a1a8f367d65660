#include "desktops/qt/RowsPeer.h"

#include <QKeyEvent>
#include <QScrollBar>

#include "forms/Form.h"

namespace orx::qt {
namespace {

/// Hands a key press to the control of a list, which lives as long as the dialog is not retired. True when it has been
/// handled.
bool ReportKey(RowList& rows, Dialog& dialog, const RowsView& view, const QKeyEvent& event) {
  if (rows.ScrollsAcross() && (event.key() == Qt::Key_Left || event.key() == Qt::Key_Right)) {
    view.horizontalScrollBar()->triggerAction(event.key() == Qt::Key_Left ? QAbstractSlider::SliderSingleStepSub
                                                                          : QAbstractSlider::SliderSingleStepAdd);
    return true;
  }
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  rows.PageRows(view.PageRows());
  const QString typed = event.text();
  const int code = KeyCodeOf(event);
  if (code != 0) dialog.Report([&] { rows.UserKeyDown(code); });
  if (!typed.isEmpty() && typed[0].isPrint()) dialog.Report([&] { rows.UserCharacter(typed.toUcs4().front()); });
  return code != 0 || !typed.isEmpty();
}

}  // namespace

RowsPeer::RowsPeer(Control& control, RowList& rows, Dialog& dialog, RowsView* view)
    : Peer(control, dialog, view), mControl(control), mRows(rows), mView(*view), mModel(*new RowModel(rows, view)) {
  if (!rows.ScrollsAcross()) mView.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  mView.setTextElideMode(rows.ScrollsAcross() ? Qt::ElideNone : Qt::ElideRight);
  mView.setModel(&mModel);
  mView.Pressed = [this](QPoint at, bool isSecond) { Pressed(at, isSecond); };
  mView.KeyPressed = [&rows, &dialog, view](const QKeyEvent& event) { return ReportKey(rows, dialog, *view, event); };
}

RowsPeer::~RowsPeer() {
  mView.Pressed = nullptr;
  mView.KeyPressed = nullptr;
  mModel.Forget();
}

void RowsPeer::Pressed(QPoint at, bool isSecond) {
  const QModelIndex index = mView.indexAt(at);
  if (!mModel.Holds(index)) return Report([control = &mControl] { control->OwnerForm().UserFocus(*control); });
  const QRect row = mView.visualRect(index);
  const int across = mView.isRightToLeft() ? row.right() - at.x() : at.x() - row.left();
  const RowPress press{index.row(), across, isSecond};
  Report([&rows = mRows, press] { rows.UserPress(press); });
}

}  // namespace orx::qt
