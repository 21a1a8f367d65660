#include "maplibrary/drawing/Contours.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <unordered_map>

namespace orx::maplibrary {
namespace {

/// The side of a square between two neighbouring centres: twice the number of its first centre, plus one for a side
/// that runs down.
using Side = std::int64_t;

/// The sides that a crossed side is joined with, at most one on either hand.
struct Joint {
  std::array<Side, 2> With = {-1, -1};
  bool IsTaken = false;

  void Add(Side side) { With[With[0] < 0 ? 0 : 1] = side; }
  bool IsEnd() const { return With[1] < 0; }
};

class Tracer {
 public:
  Tracer(const GridData& grid, double level) : mGrid(grid), mLevel(level) {
    for (std::int32_t row = 0; row + 1 < grid.Rows; ++row)
      for (std::int32_t column = 0; column + 1 < grid.Columns; ++column) CrossSquare(row, column);
  }

  std::vector<Contour> Trace() {
    std::vector<Contour> contours;
    // Open lines first; what is left are rings.
    for (const bool open : {true, false})
      for (const Side side : mOrder)
        if (Joint& joint = mJoints[side]; !joint.IsTaken && (!open || joint.IsEnd())) contours.push_back(Follow(side));
    return contours;
  }

 private:
  Side AcrossRow(std::int32_t row, std::int32_t column) const {
    return 2 * (std::int64_t{row} * mGrid.Columns + column);
  }
  Side DownColumn(std::int32_t row, std::int32_t column) const { return AcrossRow(row, column) + 1; }

  void CrossSquare(std::int32_t row, std::int32_t column) {
    const double upperLeft = mGrid.At(row, column);
    const double upperRight = mGrid.At(row, column + 1);
    const double lowerRight = mGrid.At(row + 1, column + 1);
    const double lowerLeft = mGrid.At(row + 1, column);
    const double sum = upperLeft + upperRight + lowerRight + lowerLeft;
    if (std::isnan(sum)) return;
    const int code = (upperLeft >= mLevel ? 8 : 0) | (upperRight >= mLevel ? 4 : 0) | (lowerRight >= mLevel ? 2 : 0) |
                     (lowerLeft >= mLevel ? 1 : 0);
    if (code == 0 || code == 15) return;
    const Side top = AcrossRow(row, column);
    const Side right = DownColumn(row, column + 1);
    const Side bottom = AcrossRow(row + 1, column);
    const Side left = DownColumn(row, column);
    const bool isSaddle = code == 5 || code == 10;
    if (isSaddle) {
      const bool isHighInside = sum / 4 >= mLevel;
      // The two lines cut off the corners that are unlike the middle.
      if ((code == 10) == isHighInside) {
        Join(top, right);
        Join(bottom, left);
      } else {
        Join(left, top);
        Join(right, bottom);
      }
      return;
    }
    std::array<Side, 2> crossed = {};
    std::size_t count = 0;
    const auto differ = [code](int one, int other) { return ((code & one) != 0) != ((code & other) != 0); };
    if (differ(8, 4)) crossed[count++] = top;
    if (differ(4, 2)) crossed[count++] = right;
    if (differ(2, 1)) crossed[count++] = bottom;
    if (differ(1, 8)) crossed[count++] = left;
    Join(crossed[0], crossed[1]);
  }

  void Join(Side one, Side other) {
    for (const auto& [side, with] : {std::pair{one, other}, std::pair{other, one}}) {
      const auto [joint, isNew] = mJoints.try_emplace(side);
      if (isNew) mOrder.push_back(side);
      joint->second.Add(with);
    }
  }

  Contour Follow(Side start) {
    Contour contour;
    Side before = -1;
    for (Side at = start; at >= 0;) {
      Joint& joint = mJoints[at];
      contour.Points.push_back(PlaceOf(at));
      if (joint.IsTaken) break;  // Back at the start of a ring.
      joint.IsTaken = true;
      const Side next = joint.With[0] != before ? joint.With[0] : joint.With[1];
      before = at;
      at = next;
    }
    return contour;
  }

  GridPlace PlaceOf(Side side) const {
    const auto row = static_cast<std::int32_t>(side / 2 / mGrid.Columns);
    const auto column = static_cast<std::int32_t>(side / 2 % mGrid.Columns);
    const bool isDown = side % 2 != 0;
    const double from = mGrid.At(row, column);
    const double to = isDown ? mGrid.At(row + 1, column) : mGrid.At(row, column + 1);
    // Halves keep the difference of the largest doubles within a double.
    const double share = (mLevel / 2 - from / 2) / (to / 2 - from / 2);
    return {row + (isDown ? share : 0), column + (isDown ? 0 : share)};
  }

  const GridData& mGrid;
  double mLevel;
  std::unordered_map<Side, Joint> mJoints;
  std::vector<Side> mOrder;
};

}  // namespace

std::vector<Contour> ContoursOf(const GridData& grid, double level) {
  return Tracer(grid, level).Trace();
}

}  // namespace orx::maplibrary
