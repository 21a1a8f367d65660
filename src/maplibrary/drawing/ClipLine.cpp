#include "maplibrary/drawing/ClipLine.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orx::maplibrary {
namespace {

struct Segment {
  PixelPoint From;
  PixelPoint To;
};

/// The part of a segment inside the frame, after Liang and Barsky: "A New Concept and Method for Line Clipping", ACM
/// Transactions on Graphics 3 (1984).
std::optional<Segment> Clipped(const Segment& whole, const Rect& frame) {
  const double dx = whole.To.X - whole.From.X;
  const double dy = whole.To.Y - whole.From.Y;
  // Places that were moved beyond all numbers stand nowhere.
  if (!std::isfinite(dx) || !std::isfinite(dy)) return std::nullopt;
  double start = 0;
  double end = 1;
  const auto cut = [&](double direction, double room) {
    if (direction == 0) return room >= 0;
    const double at = room / direction;
    if (direction < 0) start = std::max(start, at);
    if (direction > 0) end = std::min(end, at);
    return start <= end;
  };
  const bool isSeen = cut(-dx, whole.From.X - frame.Left) && cut(dx, frame.Right() - whole.From.X) &&
                      cut(-dy, whole.From.Y - frame.Top) && cut(dy, frame.Bottom() - whole.From.Y);
  if (!isSeen) return std::nullopt;
  // Where the ends are very far, what is calculated lies beside the frame.
  const auto at = [&](double share) {
    return PixelPoint{std::clamp<double>(whole.From.X + share * dx, frame.Left, frame.Right()),
                      std::clamp<double>(whole.From.Y + share * dy, frame.Top, frame.Bottom())};
  };
  return Segment{start > 0 ? at(start) : whole.From, end < 1 ? at(end) : whole.To};
}

bool AreOne(const PixelPoint& a, const PixelPoint& b) {
  return a.X == b.X && a.Y == b.Y;
}

}  // namespace

std::vector<std::vector<PixelPoint>> ClippedLine(const std::vector<PixelPoint>& line, const Rect& frame) {
  std::vector<std::vector<PixelPoint>> pieces;
  for (std::size_t i = 1; i < line.size(); ++i) {
    const std::optional<Segment> seen = Clipped({line[i - 1], line[i]}, frame);
    if (!seen) continue;
    if (pieces.empty() || !AreOne(pieces.back().back(), seen->From)) pieces.push_back({seen->From});
    pieces.back().push_back(seen->To);
  }
  return pieces;
}

}  // namespace orx::maplibrary
