// Paints the marks of a drawing.
#pragma once

#include <QFont>

#include "forms/Canvas.h"

class QPainter;

namespace orx::qt {

/// Paints all marks, oldest first. Texts without a face name use that of `dialogFont`.
void PaintCanvas(QPainter& painter, const Canvas& canvas, const QFont& dialogFont);

/// The font that a drawing asks for, based on the dialog font where its name is empty.
QFont FontOf(const Font& face, QFont dialogFont);

}  // namespace orx::qt
