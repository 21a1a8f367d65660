#include "dialogframe/Glyphs.h"

namespace orx::glyphs {
namespace {

constexpr Color kInk{70, 70, 70};
constexpr Color kPaper{255, 255, 255};
constexpr Color kShade{205, 213, 222};
constexpr Color kBlue{44, 104, 176};
constexpr Color kRed{196, 48, 43};
constexpr Color kGreen{34, 132, 68};

GlyphShape Box(Color fill, double left, double top, double right, double bottom) {
  return {fill, {{left, top}, {right, top}, {right, bottom}, {left, bottom}}};
}

}  // namespace

const Glyph kPage{{{kInk, {{3, 1}, {10, 1}, {14, 5}, {14, 15}, {3, 15}}},
                   {kPaper, {{4, 2}, {9.5, 2}, {13, 5.5}, {13, 14}, {4, 14}}},
                   {kInk, {{9, 1.5}, {10, 1.5}, {13.5, 5}, {13.5, 6}, {9, 6}}},
                   {kShade, {{10, 2.5}, {12.5, 5}, {10, 5}}}}};

const Glyph kDisk{{{kInk, {{1, 1}, {13, 1}, {15, 3}, {15, 15}, {1, 15}}},
                   {kBlue, {{2, 2}, {12.6, 2}, {14, 3.4}, {14, 14}, {2, 14}}},
                   Box(kShade, 4, 2, 11, 6),
                   Box(kInk, 8, 3, 10, 5),
                   Box(kPaper, 4, 8, 12, 14),
                   Box(kShade, 5, 9.5, 11, 10.5),
                   Box(kShade, 5, 11.5, 11, 12.5)}};

const Glyph kCross{
    {{kRed,
      {{4, 2}, {8, 6}, {12, 2}, {14, 4}, {10, 8}, {14, 12}, {12, 14}, {8, 10}, {4, 14}, {2, 12}, {6, 8}, {2, 4}}}}};

const Glyph kSheet{{Box(kInk, 2, 1, 14, 15), Box(kPaper, 3, 2, 13, 14), Box(kBlue, 4, 4, 6, 6),
                    Box(kInk, 7, 4.5, 12, 5.5), Box(kBlue, 4, 7, 6, 9), Box(kInk, 7, 7.5, 12, 8.5),
                    Box(kBlue, 4, 10, 6, 12), Box(kInk, 7, 10.5, 12, 11.5)}};

const Glyph kPlus{{Box(kGreen, 6.5, 2, 9.5, 14), Box(kGreen, 2, 6.5, 14, 9.5)}};

const Glyph kUp{{{kBlue, {{8, 2}, {14, 8.5}, {10, 8.5}, {10, 14}, {6, 14}, {6, 8.5}, {2, 8.5}}}}};

const Glyph kDown{{{kBlue, {{8, 14}, {14, 7.5}, {10, 7.5}, {10, 2}, {6, 2}, {6, 7.5}, {2, 7.5}}}}};

}  // namespace orx::glyphs
