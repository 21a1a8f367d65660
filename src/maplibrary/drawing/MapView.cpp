#include "maplibrary/drawing/MapView.h"

#include "maplibrary/files/GridData.h"

#include <algorithm>
#include <cmath>

namespace orx::maplibrary {

namespace {

int Rounded(double length, int most) {
  return std::clamp(static_cast<int>(std::lround(std::clamp(length, 1.0, static_cast<double>(most)))), 1, most);
}

/// The value of a grid at a point of the ground that its place covers.
std::optional<double> ValueIn(const PlacedGrid& placed, const GroundPoint& point) {
  if (placed.Place.IsEmpty()) return std::nullopt;
  const double column = (point.X - placed.Place.Left) / placed.Place.Width() * placed.Grid->Columns;
  const double row = (placed.Place.Top - point.Y) / placed.Place.Height() * placed.Grid->Rows;
  if (!(column >= 0 && column < placed.Grid->Columns && row >= 0 && row < placed.Grid->Rows)) return std::nullopt;
  const double value = placed.Grid->At(static_cast<std::int32_t>(row), static_cast<std::int32_t>(column));
  return std::isnan(value) ? std::nullopt : std::optional(value);
}

}  // namespace

MapView::MapView(const GroundRect& window, Size size) : mWindow(Normalised(window)) {
  if (mWindow.IsEmpty() || size.Width <= 0 || size.Height <= 0) return;
  const double scale = std::min(size.Width / mWindow.Width(), size.Height / mWindow.Height());
  mPixels.Width = Rounded(mWindow.Width() * scale, size.Width);
  mPixels.Height = Rounded(mWindow.Height() * scale, size.Height);
  mPixels.Left = (size.Width - mPixels.Width) / 2;
  mPixels.Top = (size.Height - mPixels.Height) / 2;
}

PixelPoint MapView::ToPixel(const GroundPoint& point) const {
  if (IsEmpty()) return {};
  return {mPixels.Left + (point.X - mWindow.Left) / mWindow.Width() * mPixels.Width,
          mPixels.Top + (mWindow.Top - point.Y) / mWindow.Height() * mPixels.Height};
}

GroundPoint MapView::ToGround(const Point& pixel) const {
  if (IsEmpty()) return {};
  return {mWindow.Left + (pixel.X + 0.5 - mPixels.Left) / mPixels.Width * mWindow.Width(),
          mWindow.Top - (pixel.Y + 0.5 - mPixels.Top) / mPixels.Height * mWindow.Height()};
}

bool MapView::Contains(const GroundPoint& point) const {
  return !IsEmpty() && point.X >= mWindow.Left && point.X <= mWindow.Right && point.Y >= mWindow.Bottom &&
         point.Y <= mWindow.Top;
}

MapView ViewOf(const Map& map, Size size) {
  return MapView(map.Window().Current(), size);
}

std::optional<double> ValueAt(const Map& map, const GroundPoint& point) {
  const auto& layers = map.Stack().All();
  for (auto layer = layers.rbegin(); layer != layers.rend(); ++layer) {
    if (!(*layer)->Visible()) continue;
    const std::vector<PlacedGrid> grids = (*layer)->Grids();
    for (auto grid = grids.rbegin(); grid != grids.rend(); ++grid) {
      if (const auto value = ValueIn(*grid, point)) return value;
    }
  }
  return std::nullopt;
}

}  // namespace orx::maplibrary
