#include "desktops/qt/Dialog.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWindow>
#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "desktops/qt/Application.h"
#include "desktops/qt/Text.h"
#include "forms/Form.h"

namespace orx::qt {
namespace {

/// The dialogs that have been let go and may still be there.
std::vector<QPointer<Dialog>> theRetired;

}  // namespace

Dialog::Dialog(Form& form) : FormGate(form), mContent(*this, form) {
  setObjectName(ToQt(form.Name()));
  // A font set here would have to be passed on to every control.
  if (const QFont face = DialogFont(); face != font()) setFont(face);
  // The places of controls are mirrored by their arrangement, what is in them by Qt.
  setLayoutDirection(form.RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
  // Closing a dialog must not end the host's application.
  setAttribute(Qt::WA_QuitOnClose, false);
  Qt::WindowFlags flags = Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  if (form.Border() == BorderStyle::Fixed) flags |= Qt::MSWindowsFixedSizeDialogHint;
  setWindowFlags(flags);
  setMouseTracking(true);
  mUpdateTimer.setSingleShot(true);
  connect(&mUpdateTimer, &QTimer::timeout, this, [this] {
    if (!IsRetired()) Owner().ShowUpdates();
  });
}

bool Dialog::ReportKey(const QKeyEvent& event) {
  const std::optional<KeyStroke> stroke = StrokeOf(event);
  if (!stroke) return false;
  bool handled = false;
  Report([&] { handled = Owner().UserKey(*stroke); });
  // A letter with Alt is a command even when no control has that mnemonic; Qt would type the letter.
  return handled || stroke->Key == Key::Character;
}

void Dialog::BlockInput(bool block) {
  if (block) {
    qApp->installEventFilter(this);
  } else {
    qApp->removeEventFilter(this);
  }
}

bool Dialog::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride: {
      const auto* const widget = qobject_cast<QWidget*>(watched);
      return widget && widget->window() == this;
    }
    default:
      return false;
  }
}

void Dialog::Retire() {
  const Busy busy(*this);
  CutOff();
  hide();
}

void Dialog::LetGo() {
  deleteLater();
  theRetired.emplace_back(this);
}

void Dialog::DeleteRetired() {
  // The events of some may show or close others.
  const std::vector<QPointer<Dialog>> retired = std::exchange(theRetired, {});
  for (const QPointer<Dialog>& dialog : retired)
    if (dialog) QCoreApplication::sendPostedEvents(dialog, QEvent::DeferredDelete);
  std::copy_if(retired.begin(), retired.end(), std::back_inserter(theRetired),
               [](const QPointer<Dialog>& dialog) { return !dialog.isNull(); });
}

void Dialog::closeEvent(QCloseEvent* event) {
  event->ignore();
  Report([this] { Owner().UserClose(); });
}

void Dialog::keyPressEvent(QKeyEvent* event) {
  // Keys arrive here from a control that had no use for them, and the form has already seen those; only without such a
  // control are they new. The base class is not called: it would close the dialog on Escape and press buttons on Enter.
  event->ignore();
  if ((!focusWidget() || focusWidget() == this) && ReportKey(*event)) event->accept();
}

void Dialog::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (IsRetired() || Owner().Border() == BorderStyle::Fixed || size() == mContent.WindowSize()) return;
  const int width = size().width() - mContent.ExtraWidth();
  const int height = size().height();
  Report([&] { Owner().UserResize({Owner().OwnerDesktop().ToTwips(width), Owner().OwnerDesktop().ToTwips(height)}); });
  if (!IsRetired()) mContent.Arrange();
}

void Dialog::moveEvent(QMoveEvent* event) {
  QDialog::moveEvent(event);
  if (IsRetired()) return;
  const Desktop& desktop = Owner().OwnerDesktop();
  if (x() == desktop.ToPixels(Owner().Left()) && y() == desktop.ToPixels(Owner().Top())) return;
  Report([&] { Owner().UserMove(desktop.ToTwips(x()), desktop.ToTwips(y())); });
}

void Dialog::ReportMouse() {
  const QPoint at = mapFromGlobal(QCursor::pos());
  Report([&] { Owner().UserMouseMove({at.x(), at.y()}); });
}

void Dialog::DragBottomEdge() {
  if (windowHandle() && windowHandle()->startSystemResize(Qt::BottomEdge)) return;
  mDragged = height() - mPressedAt.y();
}

void Dialog::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  mPressedAt = event->position().toPoint();
  Report([this] { Owner().UserMouseDown({mPressedAt.x(), mPressedAt.y()}); });
}

void Dialog::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if (mDragged) {
    resize(width(), std::max(1, at.y() + *mDragged));
  } else {
    Report([&] { Owner().UserMouseMove({at.x(), at.y()}); });
  }
}

void Dialog::mouseReleaseEvent(QMouseEvent*) {
  mDragged.reset();
}

void Dialog::leaveEvent(QEvent* event) {
  QDialog::leaveEvent(event);
  Report([this] { Owner().UserMouseMove({-1, -1}); });
}

}  // namespace orx::qt
