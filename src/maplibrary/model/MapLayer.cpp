#include "maplibrary/model/MapLayer.h"

#include "maplibrary/files/GridData.h"
#include "maplibrary/model/Errors.h"
#include "maplibrary/model/LayerData.h"

namespace orx::maplibrary {

namespace {

bool IsCharacterCode(std::int32_t code) {
  const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
  return code >= 0 && code <= 0x10FFFF && !isSurrogate;
}

}  // namespace

std::optional<Peak> MapLayer::HighestPoint() const {
  std::optional<Peak> highest;
  for (const PlacedGrid& placed : Grids()) {
    const std::optional<GridCell> cell = HighestCell(*placed.Grid);
    if (!cell) continue;
    const double value = placed.Grid->At(cell->Row, cell->Column);
    if (highest && highest->Value >= value) continue;
    highest = Peak{Moved(placed.Grid->CenterOf(*cell), placed.Grid->Edges(), placed.Place), value};
  }
  return highest;
}

std::vector<MarkedPeak> MapLayer::MarkedPeaks() const {
  const std::optional<Peak> highest = HighestPoint();
  if (!highest) return {};
  return {{this, *highest}};
}

void MapLayer::SymbolCharacter(std::int32_t value) {
  if (!IsCharacterCode(value)) {
    throw RunTimeError(kErrorInvalidValue,
                       "SymbolCharacter must be a character code, found " + std::to_string(value) + ".");
  }
  mSymbolCharacter = value;
}

void MapLayer::SymbolRotation(double value) {
  RequireFinite("SymbolRotation", value);
  mSymbolRotation = value;
}

void MapLayer::SymbolSize(double value) {
  RequireSize("SymbolSize", value);
  mSymbolSize = value;
}

void MapLayer::LabelFont(const Font& value) {
  RequireSize("The size of LabelFont", value.Size);
  mLabelFont = value;
}

void MapLayer::LabelRotation(double value) {
  RequireFinite("LabelRotation", value);
  mLabelRotation = value;
}

}  // namespace orx::maplibrary
