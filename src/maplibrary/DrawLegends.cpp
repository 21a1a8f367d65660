#include "maplibrary/DrawLegends.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <memory>

#include "maplibrary/CharacterText.h"
#include "maplibrary/ColorRamp.h"
#include "maplibrary/DrawPeaks.h"

namespace orx::maplibrary {

namespace {

constexpr int kMargin = 10;
constexpr int kPadding = 8;
constexpr int kSpace = 6;
constexpr Color kInk = {40, 40, 40};
constexpr Color kPaper = {255, 255, 255};
constexpr Color kEdge = {120, 120, 120};

/// Whole pixels; a text of endless length is as wide as any picture.
int Ceiled(double length) {
  constexpr double kFar = 1e6;
  return static_cast<int>(std::ceil(std::min(length, kFar)));
}

void DrawBox(Canvas& canvas, const Rect& place, Color pen) {
  const int right = place.Right() - 1;
  const int bottom = place.Bottom() - 1;
  canvas.Draw(LineMark{
      {{place.Left, place.Top}, {right, place.Top}, {right, bottom}, {place.Left, bottom}, {place.Left, place.Top}},
      pen});
}

/// The size and drawing that both kinds of legend share: a title above rows, in one font.
class LegendDrawing {
 public:
  LegendDrawing(const Legend& legend, Canvas& canvas, Lettering& lettering)
      : mLegend(legend), mCanvas(canvas), mLettering(lettering) {
    mFont = {.Name = "Arial", .Size = legend.TextSize()};
    mTitleFont = mFont;
    mTitleFont.Bold = true;
    mRow = Ceiled(lettering.HeightOf(mFont) * 1.15);
  }
  virtual ~LegendDrawing() = default;

  virtual bool IsEmpty() const = 0;
  Size Measure() const {
    const int titleWidth = Ceiled(mLettering.WidthOf(mLegend.Title(), mTitleFont));
    const Size body = MeasureBody();
    return {std::max(titleWidth, body.Width) + 2 * kPadding, TitleHeight() + body.Height + 2 * kPadding};
  }
  void Draw(const Rect& place) {
    if (mLegend.Framed()) {
      mCanvas.Draw(FillMark{place, kPaper});
      DrawBox(mCanvas, place, kEdge);
    }
    const Point start = {place.Left + kPadding, place.Top + kPadding};
    if (TitleHeight() > 0) DrawText({start.X, start.Y}, mLegend.Title(), mTitleFont);
    DrawBody({start.X, start.Y + TitleHeight()});
  }

 protected:
  virtual Size MeasureBody() const = 0;
  virtual void DrawBody(const Point& start) = 0;

  /// Draws a text from `start`, the upper left of its row. Without a frame it stands on the map itself and needs a
  /// halo.
  void DrawText(const Point& start, const std::string& text, const Font& font) {
    DrawCentered({start.X + mLettering.WidthOf(text, font) / 2, start.Y + mRow / 2.0}, text, font, kInk, 0);
  }
  void DrawCentered(const PixelPoint& center, const std::string& text, const Font& font, Color pen, double rotation) {
    if (mLegend.Framed()) {
      mLettering.Draw(center, text, font, pen, rotation);
    } else {
      mLettering.DrawHaloed(center, text, font, pen, rotation);
    }
  }
  int TitleHeight() const { return mLegend.Title().empty() ? 0 : mRow + kSpace / 2; }

  const Legend& mLegend;
  Canvas& mCanvas;
  Lettering& mLettering;
  Font mFont;
  Font mTitleFont;
  int mRow = 0;
};

/// A bar of the colours with the highest value at its top and the lowest at its bottom.
class ElevationDrawing : public LegendDrawing {
 public:
  ElevationDrawing(const Legend& legend, const std::optional<ValueRange>& range, Canvas& canvas, Lettering& lettering)
      : LegendDrawing(legend, canvas, lettering), mRange(range) {}

  bool IsEmpty() const override { return !mRange; }

 protected:
  Size MeasureBody() const override {
    double widest = 0;
    for (const std::string& text : Texts()) widest = std::max(widest, mLettering.WidthOf(text, mFont));
    return {BarWidth() + kSpace + Ceiled(widest), BarHeight() + mRow};
  }
  void DrawBody(const Point& start) override {
    const Rect bar = {start.X, start.Y + mRow / 2, BarWidth(), BarHeight()};
    for (int y = 0; y < bar.Height; ++y) {
      const double share = 1 - (y + 0.5) / bar.Height;
      mCanvas.Draw(FillMark{{bar.Left, bar.Top + y, bar.Width, 1}, ColorAt(share)});
    }
    DrawBox(mCanvas, bar, kEdge);
    const std::array<std::string, 3> texts = Texts();
    for (int i = 0; i < 3; ++i) {
      DrawText({bar.Right() + kSpace, start.Y + i * bar.Height / 2}, texts[static_cast<std::size_t>(i)], mFont);
    }
  }

 private:
  int BarWidth() const { return mRow; }
  int BarHeight() const { return 6 * mRow; }
  std::array<std::string, 3> Texts() const {
    return {ValueText(mRange->High), ValueText(mRange->Low / 2 + mRange->High / 2), ValueText(mRange->Low)};
  }

  std::optional<ValueRange> mRange;
};

/// The names of the visible layers, each behind its symbol.
class LayersDrawing : public LegendDrawing {
 public:
  LayersDrawing(const Legend& legend, const Map& map, Canvas& canvas, Lettering& lettering)
      : LegendDrawing(legend, canvas, lettering) {
    for (const auto& layer : map.Stack().All()) {
      if (layer->Visible()) mLayers.push_back(layer.get());
    }
  }

  bool IsEmpty() const override { return mLayers.empty(); }

 protected:
  Size MeasureBody() const override {
    double widest = 0;
    for (const MapLayer* layer : mLayers) widest = std::max(widest, mLettering.WidthOf(layer->Name(), mFont));
    return {mRow + kSpace + Ceiled(widest), mRow * static_cast<int>(mLayers.size())};
  }
  void DrawBody(const Point& start) override {
    Point row = start;
    for (const MapLayer* layer : mLayers) {
      DrawSymbol({row.X + mRow / 2.0, row.Y + mRow / 2.0}, *layer);
      if (!layer->Name().empty()) DrawText({row.X + mRow + kSpace, row.Y}, layer->Name(), mFont);
      row.Y += mRow;
    }
  }

 private:
  /// As on the map, but no larger than its row.
  void DrawSymbol(const PixelPoint& center, const MapLayer& layer) {
    const std::string text = CharacterText(layer.SymbolCharacter());
    if (text.empty() || layer.SymbolSize() <= 0) return;
    const Font font = {.Name = layer.SymbolFont(), .Size = std::min(layer.SymbolSize(), mLegend.TextSize() * 1.2)};
    DrawCentered(center, text, font, kSymbolColor, layer.SymbolRotation());
  }

  std::vector<const MapLayer*> mLayers;
};

std::unique_ptr<LegendDrawing> DrawingOf(const Legend& legend, const Map& map, const std::optional<ValueRange>& range,
                                         Canvas& canvas, Lettering& lettering) {
  if (legend.Explains() == LegendKind::Elevation) {
    return std::make_unique<ElevationDrawing>(legend, range, canvas, lettering);
  }
  return std::make_unique<LayersDrawing>(legend, map, canvas, lettering);
}

/// The place of a legend in its corner, `used` pixels of which are taken already.
Rect PlaceIn(LegendCorner corner, Size legend, Size picture, int used) {
  const bool right = corner == LegendCorner::TopRight || corner == LegendCorner::BottomRight;
  const bool bottom = corner == LegendCorner::BottomLeft || corner == LegendCorner::BottomRight;
  const int left = right ? picture.Width - kMargin - legend.Width : kMargin;
  const int top = bottom ? picture.Height - kMargin - used - legend.Height : kMargin + used;
  return {left, top, legend.Width, legend.Height};
}

}  // namespace

void DrawLegends(const Map& map, const std::optional<ValueRange>& range, Canvas& canvas, Size size,
                 Lettering& lettering) {
  std::map<LegendCorner, int> used;
  for (const auto& legend : map.Legends()) {
    if (!legend->Visible() || legend->TextSize() <= 0) continue;
    const auto drawing = DrawingOf(*legend, map, range, canvas, lettering);
    if (drawing->IsEmpty()) continue;
    const Size measured = drawing->Measure();
    drawing->Draw(PlaceIn(legend->Corner(), measured, size, used[legend->Corner()]));
    used[legend->Corner()] += measured.Height + kMargin;
  }
}

}  // namespace orx::maplibrary
