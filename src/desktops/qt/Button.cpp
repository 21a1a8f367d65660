#include "forms/Button.h"

#include <QPushButton>

#include "desktops/qt/Peers.h"
#include "desktops/qt/Text.h"

namespace orx::qt {
namespace {

class ButtonPeer final : public Peer {
 public:
  ButtonPeer(Button& control, Dialog& dialog, QPushButton* native)
      : Peer(control, dialog, native), mControl(control), mNative(*native) {
    mNative.setAutoDefault(false);
    mNative.setDefault(control.Role() == ButtonRole::Default);
    // A press of the mouse must not move the focus by itself: the field that loses it may refuse.
    mNative.setFocusPolicy(Qt::TabFocus);
    connect(&mNative, &QPushButton::clicked, this, [this] { Report([this] { mControl.UserPress(); }); });
  }

 private:
  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Text) mNative.setText(ToQt(mControl.Caption()));
    Peer::Mirror(aspect);
  }

  Button& mControl;
  QPushButton& mNative;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(Button& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<ButtonPeer>(control, dialog, new QPushButton(&parent));
}

}  // namespace orx::qt
