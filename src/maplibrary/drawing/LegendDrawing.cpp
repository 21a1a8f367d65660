#include "maplibrary/drawing/LegendDrawing.h"

#include <algorithm>
#include <cmath>

namespace orx::maplibrary {
namespace {

constexpr Color kInk = {40, 40, 40};
constexpr Color kPaper = {255, 255, 255};

}  // namespace

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

LegendDrawing::LegendDrawing(const Legend& legend, Canvas& canvas, Lettering& lettering)
    : mLegend(legend), mCanvas(canvas), mLettering(lettering) {
  mFont = {.Name = "Arial", .Size = legend.TextSize()};
  mTitleFont = mFont;
  mTitleFont.Bold = true;
  mRow = Ceiled(lettering.HeightOf(mFont) * 1.15);
}

Size LegendDrawing::Measure() const {
  const int titleWidth = Ceiled(mLettering.WidthOf(mLegend.Title(), mTitleFont));
  const Size body = MeasureBody();
  return {std::max(titleWidth, body.Width) + 2 * kLegendPadding, TitleHeight() + body.Height + 2 * kLegendPadding};
}

void LegendDrawing::Draw(const Rect& place) {
  if (mLegend.Framed()) {
    mCanvas.Draw(FillMark{place, kPaper});
    DrawBox(mCanvas, place, kLegendEdge);
  }
  const Point start = {place.Left + kLegendPadding, place.Top + kLegendPadding};
  if (TitleHeight() > 0) DrawText({start.X, start.Y}, mLegend.Title(), mTitleFont);
  DrawBody({start.X, start.Y + TitleHeight()});
}

void LegendDrawing::DrawText(const Point& start, const std::string& text, const Font& font) {
  DrawCentered({start.X + mLettering.WidthOf(text, font) / 2, start.Y + mRow / 2.0}, text, font, kInk, 0);
}

void LegendDrawing::DrawCentered(const PixelPoint& center, const std::string& text, const Font& font, Color pen,
                                 double rotation) {
  if (mLegend.Framed()) {
    mLettering.Draw(center, text, font, pen, rotation);
  } else {
    mLettering.DrawHaloed(center, text, font, pen, rotation);
  }
}

}  // namespace orx::maplibrary
