#include "desktops/qt/Peer.h"

#include <QFocusEvent>
#include <QKeyEvent>

#include "desktops/qt/Text.h"
#include "forms/Form.h"

namespace orx::qt {
namespace {

/// True when the focus moves because of the whole window or a popup, so that nothing changes within the form.
bool IsOutsideTheForm(Qt::FocusReason reason) {
  return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

}  // namespace

Peer::Peer(Control& control, Dialog& dialog, QWidget* widget, QWidget* focus)
    : mControl(control), mDialog(dialog), mWidget(widget), mFocus(focus ? focus : widget) {
  mWidget->setObjectName(ToQt(control.Name()));
  mFocus->installEventFilter(this);
  if (mWidget != mFocus) mWidget->installEventFilter(this);
}

void Peer::Update(Aspect aspect) {
  const Dialog::Quiet quiet(mDialog);
  Mirror(aspect);
}

void Peer::TakeFocus() {
  const Dialog::Quiet quiet(mDialog);
  mFocus->setFocus(ReasonToFocus());
  mDialog.Content().Reveal(*mWidget);
}

void Peer::Mirror(Aspect aspect) {
  switch (aspect) {
    case Aspect::Place:
      return MirrorPlace();
    case Aspect::Visible:
      ShowIf(mControl.Visible());
      return ArrangeContent();
    case Aspect::Enabled:
      return mWidget->setEnabled(mControl.Enabled());
    case Aspect::ToolTip:
      return MirrorToolTip();
    case Aspect::Text:
    case Aspect::Accessible:
      return MirrorName();
    default:
      return;
  }
}

void Peer::ShowIf(bool isVisible) {
  // A new widget appears together with its window; showing it before would cost time.
  if (mWidget->isHidden() == isVisible) mWidget->setVisible(isVisible);
}

QString Peer::Fitted(const QString& text, int width, int flags) {
  // Before it has its place there is nothing to fit into, and lines are the business of whoever breaks them.
  if (!mWidget->testAttribute(Qt::WA_Resized) || text.contains('\n')) return text;
  const QFontMetrics metrics = mWidget->fontMetrics();
  const bool fits = metrics.size(Qt::TextSingleLine | flags, text).width() <= width;
  const QString whole = flags & Qt::TextShowMnemonic ? ToQt(WithoutMnemonic(FromQt(text))) : text;
  if (const QString cut = fits ? QString() : whole; cut != mCutText) {
    mCutText = cut;
    MirrorToolTip();
  }
  return fits ? text : metrics.elidedText(text, Qt::ElideRight, width, flags);
}

void Peer::MirrorToolTip() {
  // Qt sends an event for every tool tip that is set, even for an empty one.
  const std::string& own = mControl.ToolTipText();
  const QString text = PlainToolTip(own.empty() ? FromQt(mCutText) : own);
  if (text != mWidget->toolTip()) mWidget->setToolTip(text);
}

void Peer::MirrorName() {
  // Assistive software is told of every name that is set, even of the same one.
  const QString name = ToQt(mControl.AccessibleName());
  if (name != mFocus->accessibleName()) mFocus->setAccessibleName(name);
}

void Peer::MirrorPlace() {
  ArrangeContent();
  mWidget->setGeometry(mDialog.Content().PlaceOf(mControl));
}

void Peer::ArrangeContent() {
  if (!mControl.Parent().ContainerControl()) mDialog.Content().Arrange();
}

void Peer::FocusCame(QObject& watched, QEvent& event) {
  const Qt::FocusReason reason = static_cast<QFocusEvent&>(event).reason();
  Dialog& dialog = mDialog;
  QWidget& widget = *mWidget;
  Control& control = mControl;
  watched.event(&event);
  // A control that was clicked while the window was not yet the active one gets the focus along with the window.
  if (IsOutsideTheForm(reason) && control.HasFocus()) return;
  dialog.Report([&] {
    dialog.Content().Reveal(widget);
    dialog.Owner().UserFocus(control);
  });
}

bool Peer::eventFilter(QObject* watched, QEvent* event) {
  // The dialog itself is not told of the mouse over a widget.
  if (event->type() == QEvent::Enter) mDialog.ReportMouse();
  if (watched != mFocus) return false;
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      // No shortcut of Qt or of the host may act on a dialog key; the press itself follows.
      if (!StrokeOf(static_cast<QKeyEvent&>(*event))) return false;
      event->accept();
      return true;
    case QEvent::KeyPress:
      return mDialog.ReportKey(static_cast<QKeyEvent&>(*event));
    case QEvent::FocusIn:
      FocusCame(*watched, *event);
      return true;
    case QEvent::Wheel:
      // Turning the wheel over a control that does not have the focus scrolls the form and changes no value.
      if (mControl.HasFocus()) return false;
      event->ignore();
      return true;
    default:
      return false;
  }
}

}  // namespace orx::qt
