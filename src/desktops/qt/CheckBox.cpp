#include "forms/CheckBox.h"

#include <QCheckBox>
#include <QSignalBlocker>
#include <QStyleOption>

#include "desktops/qt/Peers.h"
#include "desktops/qt/Text.h"

namespace orx::qt {
namespace {

Qt::CheckState NativeState(CheckState value) {
  if (value == CheckState::Grayed) return Qt::PartiallyChecked;
  return value == CheckState::Checked ? Qt::Checked : Qt::Unchecked;
}

class CheckBoxPeer final : public Peer {
 public:
  CheckBoxPeer(CheckBox& control, Dialog& dialog, QCheckBox* native)
      : Peer(control, dialog, native), mControl(control), mNative(*native) {
    mNative.setFocusPolicy(Qt::TabFocus);
    connect(&mNative, &QCheckBox::clicked, this, [this] { Report([this] { mControl.UserToggle(); }); });
  }

 private:
  void Mirror(Aspect aspect) override {
    const QSignalBlocker blocker(mNative);
    if (aspect == Aspect::Value) mNative.setCheckState(NativeState(mControl.Value()));
    Peer::Mirror(aspect);
    if (aspect == Aspect::Text || aspect == Aspect::Place) mNative.setText(Fitted(ToQt(mControl.Caption()), Room()));
  }

  int Room() const {
    QStyleOptionButton option;
    option.initFrom(&mNative);
    return mNative.style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &mNative).width();
  }

  CheckBox& mControl;
  QCheckBox& mNative;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(CheckBox& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<CheckBoxPeer>(control, dialog, new QCheckBox(&parent));
}

}  // namespace orx::qt
