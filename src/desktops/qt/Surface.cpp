#include "desktops/qt/Surface.h"

#include <QPointer>
#include <QScrollArea>
#include <QStyle>
#include <algorithm>

#include "forms/Control.h"
#include "forms/Form.h"

namespace orx::qt {
namespace {

/// The free space around the scrolled part, in twips.
constexpr int kGap = 60;

bool StandsPinned(const Control& control) {
  return control.Pinned() && !control.Parent().ContainerControl();
}

}  // namespace

Surface::Surface(QWidget& dialog, const Form& form) : mForm(form), mDialog(dialog), mBody(new QWidget(&dialog)) {
  // The dialog follows the mouse beside its controls.
  mBody->setMouseTracking(true);
}

void Surface::MakeScrollable() {
  const QPointer<QWidget> focused = mDialog.focusWidget();
  mScroll = new QScrollArea(&mDialog);
  mScroll->setFrameShape(QFrame::NoFrame);
  mScroll->setFocusPolicy(Qt::NoFocus);
  mScroll->setWidget(mBody);
  // The dialog's own background shows through, as if nothing stood between.
  mScroll->viewport()->setAutoFillBackground(false);
  mBody->setAutoFillBackground(false);
  mScroll->setMouseTracking(true);
  mScroll->viewport()->setMouseTracking(true);
  // Pinned controls stand before it.
  mScroll->lower();
  mScroll->show();
  // A widget that moves to another parent loses the focus.
  if (focused && mBody->isAncestorOf(focused)) focused->setFocus();
}

QWidget& Surface::HomeOf(const Control& control) {
  return StandsPinned(control) ? mDialog : *mBody;
}

void Surface::Add(const Control& control, QWidget& widget) {
  mStanding.push_back({&control, &widget});
}

QRect Surface::PlaceOf(const Control& control) const {
  const Desktop& desktop = mForm.OwnerDesktop();
  const Rect& place = control.Place();
  // Edges are converted, not sizes, so that neighbours meet whatever the scale.
  const QPoint upperLeft(desktop.ToPixels(place.Left), desktop.ToPixels(place.Top));
  const QPoint lowerRight(desktop.ToPixels(place.Right()), desktop.ToPixels(place.Bottom()));
  QRect pixels(upperLeft, QSize(lowerRight.x() - upperLeft.x(), lowerRight.y() - upperLeft.y()));
  if (StandsPinned(control)) {
    const QSize missing = Missing();
    pixels.translate(-missing.width(), -missing.height());
    if (pixels.left() < 0) pixels.moveLeft(0);
  }
  return pixels;
}

QSize Surface::Pixels(int width, int height) const {
  return {mForm.OwnerDesktop().ToPixels(width), mForm.OwnerDesktop().ToPixels(height)};
}

QSize Surface::Missing() const {
  const Size client = mForm.ClientSize();
  const Size shown = mForm.ShownClientSize();
  return Pixels(client.Width, client.Height) - Pixels(shown.Width, shown.Height);
}

int Surface::ExtraWidth() const {
  if (Missing().height() <= 0) return 0;
  const ScreenMetrics screen = mForm.OwnerDesktop().Metrics(mForm.Border());
  const int room = mForm.OwnerDesktop().ToPixels(screen.WorkArea.Width - mForm.Width());
  return std::clamp(room, 0, mDialog.style()->pixelMetric(QStyle::PM_ScrollBarExtent));
}

QSize Surface::WindowSize() const {
  const Size shown = mForm.ShownClientSize();
  return Pixels(shown.Width, shown.Height) + QSize(ExtraWidth(), 0);
}

int Surface::PinnedTop() const {
  int top = mForm.ClientSize().Height;
  for (const Standing& standing : mStanding)
    if (StandsPinned(*standing.Control) && standing.Control->Visible())
      top = std::min(top, standing.Control->Top() - kGap);
  return mForm.OwnerDesktop().ToPixels(top);
}

QSize Surface::BodySize(int pinnedTop) const {
  int bottom = pinnedTop;
  for (const Standing& standing : mStanding)
    if (!StandsPinned(*standing.Control) && standing.Control->Visible())
      bottom = std::max(bottom, mForm.OwnerDesktop().ToPixels(standing.Control->Place().Bottom() + kGap));
  return {Pixels(mForm.ClientSize().Width, 0).width(), bottom};
}

void Surface::Arrange() {
  if (!mIsComplete) return;
  const QSize missing = Missing();
  const QSize window = WindowSize();
  const int pinnedTop = PinnedTop();
  if (!mScroll && (missing.height() > 0 || missing.width() > 0)) MakeScrollable();
  if (!mScroll) {
    mBody->setGeometry(QRect(QPoint(), window));
  } else if (missing.height() > 0) {
    mScroll->setGeometry(0, 0, window.width(), std::max(0, pinnedTop - missing.height()));
    mBody->resize(BodySize(pinnedTop));
  } else {
    mScroll->setGeometry(QRect(QPoint(), window));
    mBody->resize(window + QSize(std::max(0, missing.width()), 0));
  }
  for (const Standing& standing : mStanding)
    if (StandsPinned(*standing.Control)) standing.Widget->setGeometry(PlaceOf(*standing.Control));
}

void Surface::Reveal(QWidget& widget) {
  if (!mScroll) return;
  const int gap = mForm.OwnerDesktop().ToPixels(kGap);
  if (mBody->isAncestorOf(&widget)) mScroll->ensureWidgetVisible(&widget, gap, gap);
}

}  // namespace orx::qt
