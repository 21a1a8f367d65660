#include "forms/PictureBox.h"

#include <QPainter>

#include "desktops/qt/CanvasPainter.h"
#include "desktops/qt/Peers.h"
#include "forms/Desktop.h"

namespace orx::qt {
namespace {

/// Paints through the peer, which empties the function when it goes.
class NativePicture final : public QWidget {
 public:
  using QWidget::QWidget;
  std::function<void(QPainter&)> Paint;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (Paint) Paint(painter);
  }
};

class PicturePeer final : public Peer {
 public:
  PicturePeer(PictureBox& control, Dialog& dialog, NativePicture* native)
      : Peer(control, dialog, native), mControl(control), mNative(*native) {
    mNative.setAttribute(Qt::WA_OpaquePaintEvent);
    mNative.Paint = [this](QPainter& painter) { Paint(painter); };
  }
  ~PicturePeer() override { mNative.Paint = nullptr; }

 private:
  void Paint(QPainter& painter) const {
    const Color back = mControl.BackColor();
    painter.fillRect(mNative.rect(), QColor(back.Red, back.Green, back.Blue));
    if (mControl.AutoRedraw()) PaintCanvas(painter, mControl.Drawing(), mNative.font());
  }

  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Colors || aspect == Aspect::Drawing) mNative.update();
    Peer::Mirror(aspect);
    // Drawings fill exactly the size that the control tells.
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
