#include "maplibrary/drawing/PaintGrid.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "maplibrary/drawing/ValueColors.h"

namespace orx::maplibrary {

namespace {

/// Which cells along one axis the middle of a pixel lies between.
struct AxisSample {
  bool Inside = false;
  std::int32_t Nearest = 0;
  std::int32_t Before = 0;
  std::int32_t Behind = 0;
  double Share = 0;  // Of the cell behind.
};

/// `at` counts cells from the outer edge of the first one.
AxisSample SampleAt(double at, std::int32_t count, Sampling sampling) {
  AxisSample sample;
  sample.Inside = at >= 0 && at < count;
  if (!sample.Inside) return sample;
  sample.Nearest = sample.Before = sample.Behind = static_cast<std::int32_t>(at);
  if (sampling == Sampling::Nearest) return sample;
  // Half a cell at the edges has a centre on one side only, and keeps its value.
  const double center = std::floor(at - 0.5);
  sample.Before = std::max(static_cast<std::int32_t>(center), 0);
  sample.Behind = std::min(static_cast<std::int32_t>(center) + 1, count - 1);
  sample.Share = at - 0.5 - center;
  return sample;
}

/// The samples of `pixels` pixels that reach over the ground from `start` to `end`, for cells between two edges.
std::vector<AxisSample> SamplesOf(int pixels, double start, double end, double firstEdge, double lastEdge,
                                  std::int32_t count, Sampling sampling) {
  std::vector<AxisSample> samples;
  samples.reserve(static_cast<std::size_t>(pixels));
  for (int i = 0; i < pixels; ++i) {
    const double ground = start + (i + 0.5) / pixels * (end - start);
    samples.push_back(SampleAt((ground - firstEdge) / (lastEdge - firstEdge) * count, count, sampling));
  }
  return samples;
}

double Mixed(double before, double behind, double share) {
  return before + (behind - before) * share;
}

/// Blends four cells, of which `at` gives the values. A NaN among them makes the blend NaN.
template <class At>
double Blended(const AxisSample& row, const AxisSample& column, At&& at) {
  const double upper = Mixed(at(row.Before, column.Before), at(row.Before, column.Behind), column.Share);
  const double lower = Mixed(at(row.Behind, column.Before), at(row.Behind, column.Behind), column.Share);
  return Mixed(upper, lower, row.Share);
}

/// A missing or special neighbour makes the blend NaN; then the cell itself decides.
double ValueAt(const GridData& grid, const ValueColors& colors, const AxisSample& row, const AxisSample& column) {
  const double value = Blended(row, column, [&](std::int32_t r, std::int32_t c) {
    const double cell = grid.At(r, c);
    return colors.IsPlain(cell) ? cell : std::numeric_limits<double>::quiet_NaN();
  });
  return std::isnan(value) ? grid.At(row.Nearest, column.Nearest) : value;
}

/// Lays the shades of the relief over colours.
class Shader {
 public:
  explicit Shader(const PlacedGrid& placed) : mGrid(*placed.Grid) {
    if (!placed.Data || !placed.Data->Shade().IsOn()) return;
    const GridShade& shade = placed.Data->Shade();
    mOverDevice = shade.CombineColors() == combinecolors::kShadeAndDevice;
    mLight = LightSource(shade.Azimuth(), shade.Altitude()).On(mGrid, shade.HeightScale());
    for (int i = 0; i <= kSteps; ++i) mIntensity.push_back(shade.IntensityOf(static_cast<double>(i) / kSteps) / 100);
  }

  void Put(const Color& color, const AxisSample& row, const AxisSample& column, std::uint8_t* pixel) const {
    const double light = mLight.empty() ? std::numeric_limits<double>::quiet_NaN() : LightAt(row, column);
    // A filled place without data has no slope.
    if (std::isnan(light)) return Fill(pixel, color, 255);
    const double intensity = mIntensity[static_cast<std::size_t>(std::lround(light * kSteps))];
    if (!mOverDevice)
      return Fill(pixel, {Times(color.Red, intensity), Times(color.Green, intensity), Times(color.Blue, intensity)},
                  255);
    // Black darkens what was drawn below, white lightens it.
    const std::uint8_t veil = intensity < 1 ? 0 : 255;
    Fill(pixel, {veil, veil, veil}, Times(255, std::abs(1 - intensity)));
  }

 private:
  static constexpr int kSteps = 1024;

  static std::uint8_t Times(std::uint8_t part, double factor) {
    return static_cast<std::uint8_t>(std::lround(std::min(part * factor, 255.0)));
  }
  static void Fill(std::uint8_t* pixel, const Color& color, std::uint8_t alpha) {
    pixel[0] = color.Red;
    pixel[1] = color.Green;
    pixel[2] = color.Blue;
    pixel[3] = alpha;
  }
  float At(std::int32_t row, std::int32_t column) const {
    return mLight[static_cast<std::size_t>(row) * static_cast<std::size_t>(mGrid.Columns) +
                  static_cast<std::size_t>(column)];
  }
  /// NaN where the grid has no value.
  double LightAt(const AxisSample& row, const AxisSample& column) const {
    const double light = Blended(row, column, [&](std::int32_t r, std::int32_t c) -> double { return At(r, c); });
    return std::min<double>(std::isnan(light) ? At(row.Nearest, column.Nearest) : light, 1);
  }

  const GridData& mGrid;
  bool mOverDevice = false;
  std::vector<float> mLight;
  std::vector<double> mIntensity;
};

}  // namespace

void PaintGrid(Image& image, const GroundRect& window, const PlacedGrid& placed, const ValueRange& range,
               Sampling sampling) {
  if (window.IsEmpty() || placed.Place.IsEmpty()) return;
  const GridData& grid = *placed.Grid;
  const auto columns =
      SamplesOf(image.Width, window.Left, window.Right, placed.Place.Left, placed.Place.Right, grid.Columns, sampling);
  const auto rows =
      SamplesOf(image.Height, window.Top, window.Bottom, placed.Place.Top, placed.Place.Bottom, grid.Rows, sampling);
  const ValueColors colors(placed.Data, range);
  const Shader shader(placed);
  std::uint8_t* pixel = image.Pixels.data();
  for (const AxisSample& row : rows) {
    for (const AxisSample& column : columns) {
      std::uint8_t* const place = pixel;
      pixel += 4;
      if (!row.Inside || !column.Inside) continue;
      const Color* const color = colors.For(ValueAt(grid, colors, row, column));
      if (!color) continue;
      shader.Put(*color, row, column, place);
    }
  }
}

Image BlankImage(Size size) {
  Image image;
  if (size.Width <= 0 || size.Height <= 0) return image;
  image.Width = size.Width;
  image.Height = size.Height;
  image.Pixels.resize(static_cast<std::size_t>(size.Width) * static_cast<std::size_t>(size.Height) * 4);
  return image;
}

}  // namespace orx::maplibrary
