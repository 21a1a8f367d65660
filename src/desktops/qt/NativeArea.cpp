#include "forms/NativeArea.h"

#include <QResizeEvent>

#include "desktops/qt/Peers.h"

namespace orx::qt {
namespace {

/// Raises Closing when it is destroyed, which is before its widget is.
class NativeAreaPeer final : public Peer {
 public:
  NativeAreaPeer(NativeArea& control, Dialog& dialog, QWidget* native)
      : Peer(control, dialog, native), mControl(control) {
    native->setFocusPolicy(Qt::StrongFocus);
  }
  ~NativeAreaPeer() override {
    if (mIsOpen) mControl.Closing.Raise();
  }

 private:
  void Mirror(Aspect aspect) override {
    Peer::Mirror(aspect);
    if (aspect != Aspect::Place || mIsOpen || !mControl.Opened.HasHandler()) return;
    mIsOpen = true;
    mControl.Opened.Raise(static_cast<std::uintptr_t>(Widget().winId()));
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize && mIsOpen) {
      const QSize size = static_cast<QResizeEvent*>(event)->size() * Widget().devicePixelRatioF();
      mControl.Sized.Raise({size.width(), size.height()});
    }
    if (event->type() == QEvent::FocusIn && mControl.FocusEnters.HasHandler()) mControl.FocusEnters.Raise();
    return Peer::eventFilter(watched, event);
  }

  NativeArea& mControl;
  bool mIsOpen = false;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(NativeArea& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<NativeAreaPeer>(control, dialog, new QWidget(&parent));
}

}  // namespace orx::qt
