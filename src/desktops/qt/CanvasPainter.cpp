#include "desktops/qt/CanvasPainter.h"

#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <optional>

#include "desktops/qt/Characters.h"
#include "desktops/qt/Colors.h"
#include "desktops/qt/Text.h"

namespace orx::qt {
namespace {

QRect RectOf(const Rect& place) {
  return {place.Left, place.Top, place.Width, place.Height};
}

/// Paints one mark; the painter is restored after each.
class MarkPainter {
 public:
  MarkPainter(QPainter& painter, const QFont& dialogFont) : mPainter(painter), mDialogFont(dialogFont) {}

  void operator()(const FillMark& mark) { mPainter.fillRect(RectOf(mark.Place), ToQt(mark.Fill)); }

  void operator()(const LineMark& mark) {
    // An odd width is sharp only when the line runs through the middle of the pixels.
    const double middle = mark.Width % 2 ? 0.5 : 0;
    QPolygonF points;
    for (const Point& point : mark.Points) points << QPointF(point.X + middle, point.Y + middle);
    mPainter.setPen(QPen(ToQt(mark.Pen), mark.Width, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    mPainter.drawPolyline(points);
  }

  void operator()(const TextMark& mark) {
    mPainter.setFont(FontOf(mark.Face, mDialogFont));
    mPainter.setPen(ToQt(mark.Pen));
    mPainter.translate(mark.Center.X, mark.Center.Y);
    mPainter.rotate(-mark.Rotation);
    mPainter.drawText(QRectF(), Qt::AlignCenter | Qt::TextDontClip | Qt::TextSingleLine, ToQt(mark.Text));
  }

  void operator()(const ImageMark& mark) {
    const Image& picture = *mark.Picture;
    const QImage image(picture.Pixels.data(), picture.Width, picture.Height, qsizetype{picture.Width} * 4,
                       QImage::Format_RGBA8888);
    mPainter.drawImage(RectOf(mark.Place), image);
  }

  void operator()(const FocusMark& mark) {
    mPainter.setRenderHint(QPainter::Antialiasing, false);
    mPainter.setPen(QPen(Qt::black, 1, Qt::DotLine));
    mPainter.drawRect(RectOf(mark.Place).adjusted(0, 0, -1, -1));
  }

  void operator()(const CharacterMark& mark) {
    // Characters come by the hundred, all in the same font.
    if (!mCharacters || mCharacters->Face() != mark.Face) mCharacters.emplace(mark.Face, mDialogFont);
    mPainter.setPen(ToQt(mark.Ink));
    mCharacters->Draw(mPainter, RectOf(mark.Cell), mark.Code);
  }

 private:
  QPainter& mPainter;
  const QFont& mDialogFont;
  std::optional<CharacterFont> mCharacters;
};

}  // namespace

QFont FontOf(const Font& face, QFont font) {
  if (!face.Name.empty()) font.setFamily(ToQt(face.Name));
  font.setPointSizeF(face.Size);
  font.setBold(face.Bold);
  font.setItalic(face.Italic);
  font.setUnderline(face.Underline);
  font.setStrikeOut(face.Strikethrough);
  return font;
}

void PaintCanvas(QPainter& painter, const Canvas& canvas, const QFont& dialogFont) {
  MarkPainter paint(painter, dialogFont);
  for (const Mark& mark : canvas.Marks()) {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    std::visit(paint, mark);
    painter.restore();
  }
}

}  // namespace orx::qt
