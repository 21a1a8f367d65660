// Paints the marks of a drawing.
#pragma once

#include <windows.h>

#include "forms/Canvas.h"

namespace orx::win32 {

/// Paints all marks, oldest first; places are pixels of the context.
void PaintCanvas(HDC context, const Canvas& canvas);

/// Fills a rectangle with one colour.
void FillWith(HDC context, const RECT& place, Color color);

}  // namespace orx::win32
