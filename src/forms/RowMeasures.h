// How the rows of a list are laid out on a screen, and which of them its native list shows as selected; for desktops.
#pragma once

#include <functional>
#include <set>

#include "forms/Pixels.h"

namespace orx {

/// A span from left to right, in pixels.
struct PixelSpan {
  int Left = 0;
  int Width = 0;

  /// True when it holds that pixel.
  bool Holds(int x) const { return x >= Left && x < Left + Width; }
  bool operator==(const PixelSpan&) const = default;
};

/// How rows are drawn up on a screen, in pixels.
class RowMeasures {
 public:
  /// For a screen with that scale (see Desktop::Scale).
  explicit RowMeasures(double scale) : mScale(scale) {}

  /// The height of a row whose text is that high.
  int Height(int textHeight) const { return textHeight + TwipsToPixels(60, mScale); }
  /// The width of `levels` levels, which is what the text of a row stands in by.
  int Indent(int levels) const { return levels * TwipsToPixels(240, mScale); }
  /// Where the mark for folding stands in a row whose text stands in by so many levels: at the last of them.
  PixelSpan MarkAt(int levels) const { return {Indent(levels - 1), Indent(1)}; }
  /// The free space around a text, where the platform has no rule of its own.
  int TextGap() const { return TwipsToPixels(45, mScale); }

 private:
  double mScale;
};

/// The rows that a native list shows as selected, so that it is told only of changes: a long list may have many.
class ShownSelection {
 public:
  /// Tells of each row that is selected no longer, then of each that is selected now.
  void Show(std::set<int> selected, const std::function<void(int row, bool isSelected)>& tell);
  /// The native list shows none any more.
  void Clear() { mShown.clear(); }

 private:
  std::set<int> mShown;
};

}  // namespace orx
