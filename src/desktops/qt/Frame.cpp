#include "forms/Frame.h"

#include <QGroupBox>

#include "desktops/qt/Peers.h"
#include "desktops/qt/Text.h"

namespace orx::qt {
namespace {

class FramePeer final : public Peer {
 public:
  FramePeer(Frame& control, Dialog& dialog, QGroupBox* native)
      : Peer(control, dialog, native), mControl(control), mNative(*native) {}

 private:
  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Text) mNative.setTitle(ToQt(mControl.Caption()));
    Peer::Mirror(aspect);
  }

  Frame& mControl;
  QGroupBox& mNative;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(Frame& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<FramePeer>(control, dialog, new QGroupBox(&parent));
}

}  // namespace orx::qt
