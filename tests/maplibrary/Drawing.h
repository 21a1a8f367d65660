// What stands on a canvas, for tests of drawn maps.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "forms/Canvas.h"
#include "maplibrary/drawing/DrawMap.h"
#include "tests/maplibrary/SmallGrids.h"

namespace orx::maplibrary {

/// A map that was drawn into 200 x 100 pixels.
struct Drawing {
  explicit Drawing(const Map& map, Size size = {200, 100}) { DrawMap(map, Drawn, size); }

  template <class Mark>
  std::vector<Mark> All() const {
    std::vector<Mark> marks;
    for (const auto& mark : Drawn.Marks()) {
      if (const auto* one = std::get_if<Mark>(&mark)) marks.push_back(*one);
    }
    return marks;
  }
  /// The texts that are no halo, in the order drawn.
  std::vector<TextMark> Texts() const {
    std::vector<TextMark> texts = All<TextMark>();
    std::erase_if(texts, [](const TextMark& text) { return text.Pen == Color{255, 255, 255}; });
    return texts;
  }
  bool Shows(const std::string& text) const {
    const auto texts = Texts();
    return std::any_of(texts.begin(), texts.end(), [&](const TextMark& one) { return one.Text == text; });
  }
  /// The first text of that wording; an empty mark when it was not drawn.
  TextMark Text(const std::string& text) const {
    for (const TextMark& one : Texts()) {
      if (one.Text == text) return one;
    }
    return {};
  }

  Canvas Drawn;
};

/// One layer "A" of 2 x 1 cells, the value 7 in its left half; no legends are visible.
inline std::unique_ptr<Map> OneLayer() {
  auto map = std::make_unique<Map>("One");
  map->AddLayer(SmallLayer("A", SmallGrid(1, 2, {7, 1})));
  map->Legend(0).Visible(false);
  map->Legend(1).Visible(false);
  return map;
}

inline const std::string kTriangle = "\xE2\x96\xB2";

}  // namespace orx::maplibrary
