#include "maplibrary/drawing/DrawIsolines.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>

#include "maplibrary/drawing/ClipLine.h"
#include "maplibrary/drawing/Contours.h"
#include "maplibrary/drawing/ValueColors.h"
#include "numbers/Numbers.h"

namespace orx::maplibrary {
namespace {

constexpr std::int32_t kMostLevels = 256;
/// A label needs this many times its width of line.
constexpr double kRoom = 1.5;
/// Pixels between labels at least, however small they are.
constexpr double kLeastDistance = 16;

/// What of a line is drawn and left out, in turn, in pixels; the platform's pen styles.
std::span<const double> PatternOf(std::int32_t style) {
  static constexpr std::array<double, 2> kDash = {9, 5};
  static constexpr std::array<double, 2> kDot = {2, 4};
  static constexpr std::array<double, 4> kDashDot = {9, 4, 2, 4};
  static constexpr std::array<double, 6> kDashDotDot = {9, 4, 2, 4, 2, 4};
  switch (style) {
    case 1:
      return kDash;
    case 2:
      return kDot;
    case 3:
      return kDashDot;
    case 4:
      return kDashDotDot;
    default:
      return {};
  }
}

double Distance(const PixelPoint& a, const PixelPoint& b) {
  return std::hypot(b.X - a.X, b.Y - a.Y);
}

double LengthOf(const std::vector<PixelPoint>& line) {
  double length = 0;
  for (std::size_t i = 1; i < line.size(); ++i) length += Distance(line[i - 1], line[i]);
  return length;
}

/// The point of a line at a distance from its start, in pixels.
PixelPoint PointAt(const std::vector<PixelPoint>& line, double at) {
  for (std::size_t i = 1; i < line.size(); ++i) {
    const double part = Distance(line[i - 1], line[i]);
    if (at <= part && part > 0)
      return {line[i - 1].X + (line[i].X - line[i - 1].X) * at / part,
              line[i - 1].Y + (line[i].Y - line[i - 1].Y) * at / part};
    at -= part;
  }
  return line.back();
}

Point Rounded(const PixelPoint& point) {
  return {static_cast<int>(std::lround(point.X)), static_cast<int>(std::lround(point.Y))};
}

/// Cuts a line into the pieces that a pattern draws.
std::vector<std::vector<PixelPoint>> PiecesOf(const std::vector<PixelPoint>& line, std::span<const double> pattern) {
  if (pattern.empty()) return {line};
  std::vector<std::vector<PixelPoint>> pieces = {{line.front()}};
  std::size_t step = 0;
  double left = pattern[0];
  for (std::size_t i = 1; i < line.size(); ++i) {
    PixelPoint at = line[i - 1];
    double part = Distance(at, line[i]);
    while (part > left) {
      at = {at.X + (line[i].X - at.X) * left / part, at.Y + (line[i].Y - at.Y) * left / part};
      part -= left;
      if (step % 2 == 0) {
        pieces.back().push_back(at);
      } else {
        pieces.push_back({at});
      }
      step = (step + 1) % pattern.size();
      left = pattern[step];
    }
    left -= part;
    if (step % 2 == 0) pieces.back().push_back(line[i]);
  }
  return pieces;
}

class IsolineDrawing {
 public:
  IsolineDrawing(const PlacedGrid& placed, const MapView& view, Canvas& canvas, Lettering& lettering)
      : mPlaced(placed), mData(*placed.Data), mView(view), mCanvas(canvas), mLettering(lettering) {}

  void DrawLevel(double level, double share) {
    std::vector<std::vector<PixelPoint>> lines;
    for (const Contour& contour : ContoursOf(*mPlaced.Grid, level))
      for (auto& piece : OnPicture(contour)) lines.push_back(std::move(piece));
    if (lines.empty()) return;
    const GridIsolines& settings = mData.Lines();
    const Color ranged = ClassColor(static_cast<std::int32_t>(std::lround(share * (kShades - 1))), kShades);
    if (settings.Pen().Style() != LineStyle::kInvisible) {
      const LineMark pen{{}, settings.UseRangeColor() ? ranged : settings.Pen().Color(), WidthAt(share)};
      for (const auto& line : lines) DrawLine(line, pen);
    }
    if (!settings.LabelVisible()) return;
    const Color ink = settings.LabelUseRangeColor() ? ranged : settings.Lettering().Color();
    const std::string text = numbers::FormatNumber(level, mData.ValueFormat());
    if (!settings.LabelAllIsolines()) {
      const auto longest = std::ranges::max_element(lines, {}, LengthOf);
      return DrawLabels(*longest, text, ink);
    }
    for (const auto& line : lines) DrawLabels(line, text, ink);
  }

 private:
  static constexpr std::int32_t kShades = 1024;

  int WidthAt(double share) const {
    const GridIsolines& settings = mData.Lines();
    const double width = settings.Pen().Width();
    const double most = settings.UseRangeWidth() ? settings.MaxWidth() : width;
    return std::max(1, static_cast<int>(std::lround(width + (most - width) * share)));
  }

  /// What of a contour the picture shows.
  std::vector<std::vector<PixelPoint>> OnPicture(const Contour& contour) const {
    const GridData& grid = *mPlaced.Grid;
    const GroundRect& place = mPlaced.Place;
    std::vector<PixelPoint> line;
    line.reserve(contour.Points.size());
    for (const GridPlace& point : contour.Points)
      line.push_back(mView.ToPixel({place.Left + (point.Column + 0.5) / grid.Columns * place.Width(),
                                    place.Top - (point.Row + 0.5) / grid.Rows * place.Height()}));
    return ClippedLine(line, mView.Pixels());
  }

  void DrawLine(const std::vector<PixelPoint>& line, const LineMark& pen) {
    for (const auto& piece : PiecesOf(line, PatternOf(mData.Lines().Pen().Style()))) {
      LineMark mark = pen;
      for (const PixelPoint& point : piece) {
        const Point rounded = Rounded(point);
        if (mark.Points.empty() || mark.Points.back() != rounded) mark.Points.push_back(rounded);
      }
      if (mark.Points.size() > 1) mCanvas.Draw(std::move(mark));
    }
  }

  void DrawLabels(const std::vector<PixelPoint>& line, const std::string& text, Color ink) {
    const Font font = mData.Lines().Lettering().Face();
    const double width = mLettering.WidthOf(text, font);
    const double length = LengthOf(line);
    if (font.Size <= 0 || length < kRoom * width) return;
    const double distance = std::max({mData.Lines().LabelDistance() * mView.Pixels().Width, 2 * width, kLeastDistance});
    for (double at = std::min(distance, length) / 2; at + width / 2 <= length; at += distance) {
      const PixelPoint from = PointAt(line, std::max(at - width / 2, 0.0));
      const PixelPoint to = PointAt(line, at + width / 2);
      const PixelPoint middle = PointAt(line, at);
      mLettering.DrawHaloed(middle, text, font, ink, Upright(std::atan2(from.Y - to.Y, to.X - from.X)));
    }
  }

  /// Degrees counterclockwise for a direction in radians, turned so that the text does not stand on its head.
  static double Upright(double direction) {
    const double degrees = direction * 180 / std::numbers::pi;
    if (degrees > 90) return degrees - 180;
    return degrees < -90 ? degrees + 180 : degrees;
  }

  const PlacedGrid& mPlaced;
  const LayerData& mData;
  const MapView& mView;
  Canvas& mCanvas;
  Lettering& mLettering;
};

}  // namespace

std::vector<double> IsolineLevels(const LayerData& data) {
  const std::int64_t classes = data.NumberOfClasses();
  std::int64_t step = data.Lines().RangeStep();
  while (classes / step > kMostLevels) step += data.Lines().RangeStep();
  std::vector<double> levels;
  for (std::int64_t i = step; i < classes; i += step) levels.push_back(data.LimitsOf(static_cast<std::int32_t>(i)).Low);
  return levels;
}

void DrawIsolines(const PlacedGrid& placed, const MapView& view, Canvas& canvas, Lettering& lettering) {
  if (!placed.Data || placed.Data->Lines().IsInvisible() || placed.Place.IsEmpty()) return;
  IsolineDrawing drawing(placed, view, canvas, lettering);
  const double width = placed.Data->MaxValue() - placed.Data->MinValue();
  for (const double level : IsolineLevels(*placed.Data))
    drawing.DrawLevel(level, width > 0 ? std::clamp((level - placed.Data->MinValue()) / width, 0.0, 1.0) : 0);
}

}  // namespace orx::maplibrary
