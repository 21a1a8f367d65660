#include "forms/PictureBox.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "desktops/qt/CanvasPainter.h"
#include "desktops/qt/Colors.h"
#include "desktops/qt/Peers.h"
#include "desktops/qt/Text.h"
#include "forms/Desktop.h"

namespace orx::qt {
namespace {

/// Paints through the peer, which empties the function when it goes.
class NativePicture final : public QWidget {
 public:
  using QWidget::QWidget;
  std::function<void(QPainter&)> Paint;
  std::function<void(QPoint)> Pressed;
  std::function<void(QPoint)> DoublePressed;
  std::function<void()> Clicked;
  std::function<void(int)> KeyDown;

 protected:
  void mousePressEvent(QMouseEvent* event) override { Press(*event, Pressed); }
  void mouseDoubleClickEvent(QMouseEvent* event) override { Press(*event, DoublePressed); }
  void mouseReleaseEvent(QMouseEvent* event) override {
    const auto clicked = Clicked;
    const bool isClick = clicked && event->button() == Qt::LeftButton;
    if (isClick && rect().contains(event->position().toPoint())) clicked();
  }
  void keyPressEvent(QKeyEvent* event) override {
    const auto keyDown = KeyDown;
    if (!keyDown || event->modifiers().testFlag(Qt::AltModifier) || KeyCodeOf(*event) == 0)
      return QWidget::keyPressEvent(event);
    keyDown(KeyCodeOf(*event));
  }
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (Paint) Paint(painter);
  }

 private:
  /// The handlers of the press may reset the functions.
  static void Press(const QMouseEvent& event, const std::function<void(QPoint)>& member) {
    const auto pressed = member;
    if (pressed && event.button() == Qt::LeftButton) pressed(event.position().toPoint());
  }
};

class PicturePeer final : public Peer {
 public:
  PicturePeer(PictureBox& control, Dialog& dialog, NativePicture* native)
      : Peer(control, dialog, native), mControl(control), mNative(*native) {
    mNative.setAttribute(Qt::WA_OpaquePaintEvent);
    mNative.Paint = [this](QPainter& painter) { Paint(painter); };
    if (!control.TakesFocus()) return;
    mNative.setFocusPolicy(Qt::TabFocus);
    mNative.Pressed = [&control, &dialog](QPoint at) {
      dialog.Report([&] { control.UserMouseDown({at.x(), at.y()}); });
    };
    mNative.DoublePressed = [&control, &dialog](QPoint at) {
      dialog.Report([&] { control.UserDoubleClick({at.x(), at.y()}); });
    };
    mNative.Clicked = [&control, &dialog] { dialog.Report([&] { control.UserClick(); }); };
    mNative.KeyDown = [&control, &dialog](int code) { dialog.Report([&] { control.UserKeyDown(code); }); };
  }
  ~PicturePeer() override {
    mNative.Paint = nullptr;
    mNative.Pressed = nullptr;
    mNative.DoublePressed = nullptr;
    mNative.Clicked = nullptr;
    mNative.KeyDown = nullptr;
  }

 private:
  void Paint(QPainter& painter) const {
    painter.fillRect(mNative.rect(), ToQt(mControl.ShownBackColor()));
    if (mControl.AutoRedraw()) PaintCanvas(painter, mControl.Drawing(), mNative.font());
  }

  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Colors || aspect == Aspect::Drawing || aspect == Aspect::Enabled) mNative.update();
    Peer::Mirror(aspect);
    // Drawings fill exactly the size that the control reports.
    if (aspect == Aspect::Place) mNative.resize(mControl.PixelSize().Width, mControl.PixelSize().Height);
  }

  PictureBox& mControl;
  NativePicture& mNative;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(PictureBox& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<PicturePeer>(control, dialog, new NativePicture(&parent));
}

}  // namespace orx::qt
