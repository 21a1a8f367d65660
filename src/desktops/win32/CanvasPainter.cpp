#include "desktops/win32/CanvasPainter.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "desktops/win32/Characters.h"
#include "desktops/win32/Fonts.h"
#include "desktops/win32/Handles.h"
#include "desktops/win32/Text.h"

namespace orx::win32 {
namespace {

COLORREF ColorOf(Color color) {
  return RGB(color.Red, color.Green, color.Blue);
}

RECT RectOf(const Rect& place) {
  return {place.Left, place.Top, place.Right(), place.Bottom()};
}

/// A bitmap in memory, in the platform's format: blue, green, red and premultiplied alpha, rows from the top.
class PixelContext {
 public:
  explicit PixelContext(HDC like, const Image& image) : mContext(CreateCompatibleDC(like)) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), image.Width, -image.Height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    mBitmap.reset(CreateDIBSection(like, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!mBitmap) return;
    Fill(static_cast<std::uint8_t*>(bits), image);
    mSelection = std::make_unique<Selection>(mContext, mBitmap.get());
  }
  ~PixelContext() {
    mSelection.reset();
    DeleteDC(mContext);
  }
  PixelContext(const PixelContext&) = delete;
  PixelContext& operator=(const PixelContext&) = delete;

  HDC Get() const { return mContext; }

 private:
  static void Fill(std::uint8_t* to, const Image& image) {
    for (std::size_t at = 0; at + 3 < image.Pixels.size(); at += 4) {
      const unsigned alpha = image.Pixels[at + 3];
      const auto weighed = [alpha](unsigned part) { return static_cast<std::uint8_t>(part * alpha / 255); };
      to[at] = weighed(image.Pixels[at + 2]);
      to[at + 1] = weighed(image.Pixels[at + 1]);
      to[at + 2] = weighed(image.Pixels[at]);
      to[at + 3] = static_cast<std::uint8_t>(alpha);
    }
  }

  HDC mContext;
  GdiObject<HBITMAP> mBitmap;
  std::unique_ptr<Selection> mSelection;
};

/// Paints one mark; the context is restored after each.
class MarkPainter {
 public:
  explicit MarkPainter(HDC context) : mContext(context) {}

  void operator()(const FillMark& mark) const { FillWith(mContext, RectOf(mark.Place), mark.Fill); }

  void operator()(const LineMark& mark) const {
    const LOGBRUSH brush = {BS_SOLID, ColorOf(mark.Pen), 0};
    const GdiObject<HPEN> pen(ExtCreatePen(PS_GEOMETRIC | PS_ENDCAP_SQUARE | PS_JOIN_ROUND,
                                           static_cast<DWORD>(std::max(mark.Width, 1)), &brush, 0, nullptr));
    const Selection selection(mContext, pen.get());
    std::vector<POINT> points;
    for (const Point& point : mark.Points) points.push_back({point.X, point.Y});
    Polyline(mContext, points.data(), static_cast<int>(points.size()));
  }

  void operator()(const TextMark& mark) const {
    const std::wstring text = Widened(mark.Text);
    const auto length = static_cast<int>(text.size());
    SIZE size = {};
    TEXTMETRICW font = {};
    {
      // Measured before it is turned: rotated texts have other extents.
      const GdiObject<HFONT> upright = MakeFont(mark.Face);
      const Selection selection(mContext, upright.get());
      GetTextExtentPoint32W(mContext, text.c_str(), length, &size);
      GetTextMetricsW(mContext, &font);
    }
    const GdiObject<HFONT> turned = MakeFont(mark.Face, mark.Rotation);
    const Selection selection(mContext, turned.get());
    SetTextColor(mContext, ColorOf(mark.Pen));
    SetBkMode(mContext, TRANSPARENT);
    SetTextAlign(mContext, TA_LEFT | TA_BASELINE);
    // The start of the base line relative to the centre; the screen's y axis points down.
    const double right = -size.cx / 2.0;
    const double down = font.tmAscent - size.cy / 2.0;
    const double angle = mark.Rotation * std::numbers::pi / 180;
    const double x = mark.Center.X + right * std::cos(angle) + down * std::sin(angle);
    const double y = mark.Center.Y - right * std::sin(angle) + down * std::cos(angle);
    TextOutW(mContext, static_cast<int>(std::lround(x)), static_cast<int>(std::lround(y)), text.c_str(), length);
  }

  void operator()(const ImageMark& mark) const {
    const Image& image = *mark.Picture;
    if (image.Width <= 0 || image.Height <= 0) return;
    const PixelContext pixels(mContext, image);
    const BLENDFUNCTION blend = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    AlphaBlend(mContext, mark.Place.Left, mark.Place.Top, mark.Place.Width, mark.Place.Height, pixels.Get(), 0, 0,
               image.Width, image.Height, blend);
  }

  void operator()(const FocusMark& mark) const {
    const RECT place = RectOf(mark.Place);
    SetTextColor(mContext, RGB(0, 0, 0));
    SetBkColor(mContext, RGB(255, 255, 255));
    DrawFocusRect(mContext, &place);
  }

  void operator()(const CharacterMark& mark) {
    // Characters come by the hundred, all in the same font.
    if (mCharacterFace != mark.Face) {
      mCharacterFont = MakeCharacterFont(mContext, mark.Face);
      mCharacterFace = mark.Face;
    }
    DrawCharacter(mContext, mark, mCharacterFont.get());
  }

 private:
  HDC mContext;
  GdiObject<HFONT> mCharacterFont;
  std::optional<Font> mCharacterFace;
};

}  // namespace

void FillWith(HDC context, const RECT& place, Color color) {
  const GdiObject<HBRUSH> brush(CreateSolidBrush(ColorOf(color)));
  FillRect(context, &place, brush.get());
}

void PaintCanvas(HDC context, const Canvas& canvas) {
  MarkPainter paint(context);
  for (const Mark& mark : canvas.Marks()) {
    const int saved = SaveDC(context);
    std::visit(paint, mark);
    RestoreDC(context, saved);
  }
}

}  // namespace orx::win32
