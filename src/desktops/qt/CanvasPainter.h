// Paints what a picture box holds.
#pragma once

#include <QFont>

#include "forms/Canvas.h"

class QPainter;

namespace orx::qt {

/// Paints the marks, oldest first. `dialogFont` lends its face to texts without one.
void PaintCanvas(QPainter& painter, const Canvas& canvas, const QFont& dialogFont);

/// A font as drawings and dialogs name it, made of the dialog font where the name is empty.
QFont FontOf(const Font& face, QFont dialogFont);

}  // namespace orx::qt
