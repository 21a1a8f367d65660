// The legend that explains the colours of values: a bar, or a row for each class, and rows for special values.
#pragma once

#include <memory>
#include <optional>

#include "maplibrary/drawing/LegendDrawing.h"
#include "maplibrary/model/Layer.h"

namespace orx::maplibrary {

/// Explains `layer`, the topmost one that has data; null: none has. `range` is that of all colours without steps, none
/// when no value is shown. Up to 16 classes have a row each with their limits in the chosen format; more, and colours
/// without steps, are a bar with its ends and its middle. The sizes of the classes show in their rows.
std::unique_ptr<LegendDrawing> MakeValueLegend(const Legend& legend, const Layer* layer,
                                               const std::optional<ValueRange>& range, Canvas& canvas,
                                               Lettering& lettering);

}  // namespace orx::maplibrary
