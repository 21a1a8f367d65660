// The pictures on the buttons of the dialogs.
#pragma once

#include "forms/Glyph.h"

namespace orx::glyphs {

/// A blank page with a turned corner: something new.
extern const Glyph kPage;
/// A disk: save.
extern const Glyph kDisk;
/// A cross: remove.
extern const Glyph kCross;
/// A sheet with a bulleted list: properties.
extern const Glyph kSheet;

/// A plus: add. Arrows: swap with the neighbour above or below.
extern const Glyph kPlus;
extern const Glyph kUp;
extern const Glyph kDown;

}  // namespace orx::glyphs
