#include "forms/Label.h"

#include <QLabel>
#include <algorithm>

#include "desktops/qt/Peers.h"
#include "desktops/qt/Text.h"
#include "forms/Form.h"

namespace orx::qt {
namespace {

class LabelPeer final : public Peer {
 public:
  LabelPeer(Label& control, Dialog& dialog, QLabel* native)
      : Peer(control, dialog, native), mControl(control), mNative(*native) {
    mNative.setTextFormat(Qt::PlainText);
    mNative.setWordWrap(control.Wraps());
    // Of itself Qt would align a text by the alphabet that it is written in.
    mNative.setAlignment(Qt::AlignTop | Qt::AlignAbsolute | NativeAlignment());
  }

 private:
  Qt::AlignmentFlag NativeAlignment() const {
    if (mControl.Align() == Alignment::Center) return Qt::AlignHCenter;
    const bool isAtEnd = mControl.Align() == Alignment::Right;
    return isAtEnd != mControl.OwnerForm().RightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
  }

  /// The widget that the label describes: that of the next control that takes the focus.
  QWidget* Buddy() const {
    const std::vector<Control*> all = mControl.OwnerForm().All();
    const auto next = std::find_if(std::find(all.begin(), all.end(), &mControl), all.end(),
                                   [](const Control* control) { return control->TakesFocus(); });
    return next != all.end() && PeerOf(**next) ? &PeerOf(**next)->FocusWidget() : &Window();
  }

  void Mirror(Aspect aspect) override {
    Peer::Mirror(aspect);
    if (aspect == Aspect::Text || aspect == Aspect::Place) MirrorText();
  }

  void MirrorText() {
    // Qt underlines the mnemonic only in a label that has a buddy, and shows the marks as they are in the others.
    const bool marked = mControl.Mnemonic() != 0;
    mNative.setBuddy(marked ? Buddy() : nullptr);
    const QString text = ToQt(marked ? mControl.Caption() : WithoutMnemonic(mControl.Caption()));
    const bool isLine = !mControl.Wraps();
    mNative.setText(isLine ? Fitted(text, mNative.width(), marked ? Qt::TextShowMnemonic : 0) : text);
  }

  Label& mControl;
  QLabel& mNative;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(Label& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<LabelPeer>(control, dialog, new QLabel(&parent));
}

}  // namespace orx::qt
