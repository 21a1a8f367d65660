#include "maplibrary/drawing/MapView.h"

#include "maplibrary/files/GridData.h"

#include <algorithm>
#include <cmath>

namespace orx::maplibrary {

namespace {

int Rounded(double length, int most) {
  return std::clamp(static_cast<int>(std::lround(std::clamp(length, 1.0, static_cast<double>(most)))), 1, most);
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

bool MapView::Contains(const GroundPoint& point) const {
  return !IsEmpty() && point.X >= mWindow.Left && point.X <= mWindow.Right && point.Y >= mWindow.Bottom &&
         point.Y <= mWindow.Top;
}

MapView ViewOf(const Map& map, Size size) {
  return MapView(map.Window().Current(), size);
}

}  // namespace orx::maplibrary
