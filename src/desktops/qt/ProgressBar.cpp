#include "forms/ProgressBar.h"

#include <QProgressBar>

#include "desktops/qt/Peers.h"

namespace orx::qt {
namespace {

class ProgressBarPeer final : public Peer {
 public:
  ProgressBarPeer(ProgressBar& control, Dialog& dialog, QProgressBar* native)
      : Peer(control, dialog, native), mControl(control), mNative(*native) {
    mNative.setTextVisible(false);
  }

 private:
  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Value) MirrorValue();
    Peer::Mirror(aspect);
  }

  void MirrorValue() {
    mNative.setRange(0, mControl.Pixels());
    mNative.setValue(mControl.FilledPixels());
  }

  ProgressBar& mControl;
  QProgressBar& mNative;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(ProgressBar& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<ProgressBarPeer>(control, dialog, new QProgressBar(&parent));
}

}  // namespace orx::qt
