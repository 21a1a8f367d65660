// The base of all native mirrors: place, visibility, focus and the rest that widgets of every kind share.
#pragma once

#include <QObject>
#include <QWidget>

#include "desktops/qt/Dialog.h"
#include "forms/Control.h"

namespace orx::qt {

/// It is a QObject so that its connections end with it. The widget belongs to its parent widget and may outlive the
/// peer.
class Peer : public QObject, public ControlPeer {
 public:
  /// `focus` is the widget that takes the focus and the keys for the control; null: `widget` itself.
  Peer(Control& control, Dialog& dialog, QWidget* widget, QWidget* focus = nullptr);

  void Update(Aspect aspect) final;
  void TakeFocus() final;

  QWidget& Widget() const { return *mWidget; }
  QWidget& FocusWidget() const { return *mFocus; }

 protected:
  /// Mirrors one aspect. Each kind of control handles its own aspects and leaves the others to this.
  virtual void Mirror(Aspect aspect);
  void ShowIf(bool isVisible);
  /// A text of the control as far as `width` has room for it. One that is cut ends with an ellipsis, and the tool tip
  /// shows all of it unless the control has a tool tip of its own. `flags` are those of the font's metrics.
  QString Fitted(const QString& text, int width, int flags = Qt::TextShowMnemonic);
  /// The reason that Qt is given when the form moves the focus here.
  virtual Qt::FocusReason ReasonToFocus() const { return Qt::TabFocusReason; }
  bool eventFilter(QObject* watched, QEvent* event) override;

  Dialog& Window() const { return mDialog; }
  void Report(const std::function<void()>& act) const { mDialog.Report(act); }

 private:
  void MirrorName();
  void MirrorToolTip();
  void MirrorPlace();
  /// Lets the content pane follow a control that stands directly in it.
  void ArrangeContent();
  /// Lets the widget handle the event, then tells the form that it has the focus.
  void FocusCame(QObject& watched, QEvent& event);

  Control& mControl;
  Dialog& mDialog;
  QWidget* mWidget;
  QWidget* mFocus;
  /// What of the control's text is cut off somewhere, as a whole.
  QString mCutText;
};

/// The peer of a control, null while its form has no window.
inline Peer* PeerOf(const Control& control) {
  return static_cast<Peer*>(control.Peer());
}

}  // namespace orx::qt
