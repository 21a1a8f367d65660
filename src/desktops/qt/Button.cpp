#include "forms/Button.h"

#include <QEvent>
#include <QIcon>
#include <QPixmap>
#include <QPushButton>
#include <QStyleOption>

#include "desktops/qt/Colors.h"
#include "desktops/qt/Peers.h"
#include "desktops/qt/Text.h"
#include "forms/Contrast.h"
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
    ShowPicture();
    connect(&mNative, &QPushButton::clicked, this, [this] { Report([this] { mControl.UserPress(); }); });
  }

 private:
  void ShowPicture() {
    if (!mControl.Picture()) return;
    const int size = mControl.OwnerForm().OwnerDesktop().ToPixels(kGlyphGrid * kTwipsPerPixel);
    // Widgets measure in points of the window, each of which is several pixels on a high-resolution screen.
    const double density = mNative.devicePixelRatioF();
    const int pixels = static_cast<int>(std::lround(size * density));
    const auto pixmap = [&](Color color) {
      const Image image = DrawGlyph(*mControl.Picture(), pixels, color);
      QPixmap made = QPixmap::fromImage(QImage(image.Pixels.data(), pixels, pixels, QImage::Format_RGBA8888).copy());
      made.setDevicePixelRatio(density);
      return made;
    };
    const QPalette palette = mNative.palette();
    const Color ink = FromQt(palette.color(QPalette::Active, QPalette::ButtonText));
    QIcon icon;
    icon.addPixmap(pixmap(ink), QIcon::Normal);
    icon.addPixmap(pixmap(FadedInk(ink, FromQt(palette.color(QPalette::Active, QPalette::Button)))), QIcon::Disabled);
    mNative.setIcon(icon);
    mNative.setIconSize({size, size});
  }

  void Mirror(Aspect aspect) override {
    Peer::Mirror(aspect);
    if (!mControl.ShowsCaption() || (aspect != Aspect::Text && aspect != Aspect::Place)) return;
    mNative.setText(Fitted(ToQt(mControl.Caption()), Room()));
  }

  int Room() const {
    QStyleOptionButton option;
    option.initFrom(&mNative);
    return mNative.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &mNative).width();
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::PaletteChange) ShowPicture();
    return Peer::eventFilter(watched, event);
  }

  Button& mControl;
  QPushButton& mNative;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(Button& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<ButtonPeer>(control, dialog, new QPushButton(&parent));
}

}  // namespace orx::qt
