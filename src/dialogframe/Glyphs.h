// The pictures on the buttons of the dialogs.
#pragma once

#include "forms/Glyph.h"

namespace orx::glyphs {

/// A blank page with a turned corner: something new.
extern const Glyph kPage;
/// A disk: keep.
extern const Glyph kDisk;
/// A cross: take away.
extern const Glyph kCross;
/// A sheet with a list and marks before its lines: properties.
extern const Glyph kSheet;

/// A plus: add. Arrows: change places with the one above or below.
extern const Glyph kPlus;
extern const Glyph kUp;
extern const Glyph kDown;

}  // namespace orx::glyphs
