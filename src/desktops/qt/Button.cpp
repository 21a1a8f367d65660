#include "forms/Button.h"

#include <QIcon>
#include <QPixmap>
#include <QPushButton>

#include "desktops/qt/Peers.h"
#include "desktops/qt/Text.h"
#include "forms/Desktop.h"
#include "forms/Form.h"

namespace orx::qt {
namespace {

class ButtonPeer final : public Peer {
 public:
  ButtonPeer(Button& control, Dialog& dialog, QPushButton* native)
      : Peer(control, dialog, native), mControl(control), mNative(*native) {
    mNative.setAutoDefault(false);
    mNative.setDefault(control.Role() == ButtonRole::Default);
    // A press of the mouse must not move the focus by itself: the field that loses it may refuse to let go.
    mNative.setFocusPolicy(Qt::TabFocus);
    if (control.Picture()) ShowPicture(*control.Picture());
    connect(&mNative, &QPushButton::clicked, this, [this] { Report([this] { mControl.UserPress(); }); });
  }

 private:
  void ShowPicture(const Glyph& picture) {
    const int size = mControl.OwnerForm().OwnerDesktop().ToPixels(kGlyphGrid * kTwipsPerPixel);
    // Widgets measure in points of the window, each of which is several pixels on a high-resolution screen.
    const double density = mNative.devicePixelRatioF();
    QIcon icon;
    for (const bool faded : {false, true}) {
      const int pixels = static_cast<int>(std::lround(size * density));
      const Image image = DrawGlyph(picture, pixels, faded);
      QPixmap pixmap = QPixmap::fromImage(QImage(image.Pixels.data(), pixels, pixels, QImage::Format_RGBA8888).copy());
      pixmap.setDevicePixelRatio(density);
      icon.addPixmap(pixmap, faded ? QIcon::Disabled : QIcon::Normal);
    }
    mNative.setIcon(icon);
    mNative.setIconSize({size, size});
  }

  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Text && mControl.ShowsCaption()) mNative.setText(ToQt(mControl.Caption()));
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
