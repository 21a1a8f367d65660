#include "desktops/qt/ContentPane.h"

#include <QPointer>
#include <QScrollArea>
#include <QStyle>

#include "desktops/qt/Peer.h"
#include "forms/Form.h"
#include "forms/Pixels.h"

namespace orx::qt {
namespace {

QSize NativeSize(Size size) {
  return {size.Width, size.Height};
}

}  // namespace

ContentPane::ContentPane(QWidget& dialog, const Form& form)
    : mForm(form), mDialog(dialog), mBody(new QWidget(&dialog)), mArrangement(Current()) {
  // The dialog is told of the mouse between its controls.
  mBody->setMouseTracking(true);
}

void ContentPane::MakeScrollable() {
  const QPointer<QWidget> focused = mDialog.focusWidget();
  mScroll = new QScrollArea(&mDialog);
  mScroll->setFrameShape(QFrame::NoFrame);
  mScroll->setFocusPolicy(Qt::NoFocus);
  mScroll->setWidget(mBody);
  // The dialog's own background shows through.
  mScroll->viewport()->setAutoFillBackground(false);
  mBody->setAutoFillBackground(false);
  mScroll->setMouseTracking(true);
  mScroll->viewport()->setMouseTracking(true);
  // Pinned controls are in front of it.
  mScroll->lower();
  mScroll->show();
  // A widget that moves to another parent loses the focus.
  if (focused && mBody->isAncestorOf(focused)) focused->setFocus();
}

QWidget& ContentPane::HomeOf(const Control& control) {
  return StandsPinned(control) ? mDialog : *mBody;
}

Arrangement ContentPane::Current() const {
  const int bar = mDialog.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  return orx::Arrange(mForm, {bar, bar});
}

QRect ContentPane::PlaceOf(const Control& control) const {
  const Rect place = PixelPlace(control, mArrangement);
  return {place.Left, place.Top, place.Width, place.Height};
}

QSize ContentPane::WindowSize() const {
  return NativeSize(Current().Window);
}

void ContentPane::Arrange() {
  if (!mIsComplete) return;
  mArrangement = Current();
  if (!mScroll && mArrangement.Scrolls()) MakeScrollable();
  QWidget& pane = mScroll ? *mScroll : *mBody;
  pane.setGeometry(QRect(QPoint(), NativeSize(mArrangement.Pane)));
  if (mScroll) mBody->resize(NativeSize(mArrangement.Body));
  for (const Control* const control : mForm.Children())
    if (Peer* const peer = PeerOf(*control); peer && StandsPinned(*control))
      peer->Widget().setGeometry(PlaceOf(*control));
}

void ContentPane::Reveal(QWidget& widget) {
  if (!mScroll) return;
  const int margin = TwipsToPixels(kScrollMargin, mArrangement.Scale);
  if (mBody->isAncestorOf(&widget)) mScroll->ensureWidgetVisible(&widget, margin, margin);
}

}  // namespace orx::qt
