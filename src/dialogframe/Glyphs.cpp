#include "dialogframe/Glyphs.h"

namespace orx::glyphs {
namespace {

GlyphOutline Box(double left, double top, double right, double bottom) {
  return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

}  // namespace

const Glyph kPage{{{{3, 1}, {10, 1}, {14, 5}, {14, 15}, {3, 15}},
                   {{4.5, 2.5}, {9, 2.5}, {9, 6}, {12.5, 6}, {12.5, 13.5}, {4.5, 13.5}}}};

const Glyph kDisk{{{{1, 1}, {13, 1}, {15, 3}, {15, 15}, {1, 15}},
                   Box(4, 2, 11, 6),
                   Box(8, 3, 10, 5),
                   Box(4, 8, 12, 14),
                   Box(5, 9.5, 11, 10.5),
                   Box(5, 11.5, 11, 12.5)}};

const Glyph kCross{
    {{{4, 2}, {8, 6}, {12, 2}, {14, 4}, {10, 8}, {14, 12}, {12, 14}, {8, 10}, {4, 14}, {2, 12}, {6, 8}, {2, 4}}}};

const Glyph kSheet{{Box(2, 1, 14, 15), Box(3.5, 2.5, 12.5, 13.5), Box(4.5, 4, 6.5, 6), Box(7.5, 4.5, 11.5, 5.5),
                    Box(4.5, 7, 6.5, 9), Box(7.5, 7.5, 11.5, 8.5), Box(4.5, 10, 6.5, 12), Box(7.5, 10.5, 11.5, 11.5)}};

const Glyph kPlus{{{{6.5, 2},
                    {9.5, 2},
                    {9.5, 6.5},
                    {14, 6.5},
                    {14, 9.5},
                    {9.5, 9.5},
                    {9.5, 14},
                    {6.5, 14},
                    {6.5, 9.5},
                    {2, 9.5},
                    {2, 6.5},
                    {6.5, 6.5}}}};

const Glyph kUp{{{{8, 2}, {14, 8.5}, {10, 8.5}, {10, 14}, {6, 14}, {6, 8.5}, {2, 8.5}}}};

const Glyph kDown{{{{8, 14}, {14, 7.5}, {10, 7.5}, {10, 2}, {6, 2}, {6, 7.5}, {2, 7.5}}}};

}  // namespace orx::glyphs
