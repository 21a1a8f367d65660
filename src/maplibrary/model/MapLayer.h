// What all layers of the embedded map have in common: name, symbol, labels and a place on the ground.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "hostobjects/HostObject.h"
#include "hostobjects/IMap.h"
#include "maplibrary/model/PlacedExtent.h"

namespace orx::maplibrary {

struct GridData;
class LayerData;

/// The peak that a layer marks with its symbol: the highest point, in the ground unit, and its value.
struct Peak {
  GroundPoint Place;
  double Value = 0;
};

/// A grid with the place where it is drawn.
struct PlacedGrid {
  std::shared_ptr<const GridData> Grid;
  GroundRect Place;
  /// How its values are drawn; null: in colours without steps.
  const LayerData* Data = nullptr;
};

class MapLayer;

/// A peak with the layer or tile whose symbol and label mark it.
struct MarkedPeak {
  const MapLayer* Marker = nullptr;
  Peak At;
};

/// The symbol stands on the highest point of the layer, the label beside the symbol. A symbol of size 0 is not drawn.
/// Setting a side of the extent moves the layer on the ground. Angles throw RunTimeError unless finite, sizes
/// unless from 0 to 1000 points.
class MapLayer : public HostObject, public ILayer, public ILabels, public PlacedExtent {
 public:
  /// The grids of the layer in drawing order; those of invisible tiles are left out.
  virtual std::vector<PlacedGrid> Grids() const = 0;
  /// The highest point of what Grids gives; none when no cell has a value.
  std::optional<Peak> HighestPoint() const;
  /// The peaks to mark, places as they stand on the map.
  virtual std::vector<MarkedPeak> MarkedPeaks() const;

  std::string Name() const override { return mName; }
  void Name(const std::string& value) override { mName = value; }
  bool Visible() const override { return mVisible; }
  void Visible(bool value) override { mVisible = value; }
  std::string Source() const override { return mSource; }
  std::string SymbolFont() const override { return mSymbolFont; }
  void SymbolFont(const std::string& value) override { mSymbolFont = value; }
  std::int32_t SymbolCharacter() const override { return mSymbolCharacter; }
  void SymbolCharacter(std::int32_t value) override;
  double SymbolRotation() const override { return mSymbolRotation; }
  void SymbolRotation(double value) override;
  double SymbolSize() const override { return mSymbolSize; }
  void SymbolSize(double value) override;

  bool ShowLabels() const override { return mShowLabels; }
  void ShowLabels(bool value) override { mShowLabels = value; }
  LabelContent Content() const override { return mContent; }
  void Content(LabelContent value) override { mContent = value; }
  LabelPosition Position() const override { return mPosition; }
  void Position(LabelPosition value) override { mPosition = value; }
  Font LabelFont() const override { return mLabelFont; }
  void LabelFont(const Font& value) override;
  Color LabelColor() const override { return mLabelColor; }
  void LabelColor(Color value) override { mLabelColor = value; }
  double LabelRotation() const override { return mLabelRotation; }
  void LabelRotation(double value) override;

 protected:
  MapLayer(std::string name, std::string source) : mName(std::move(name)), mSource(std::move(source)) {}

 private:
  std::string mName;
  std::string mSource;
  bool mVisible = true;
  std::string mSymbolFont = "Arial";
  std::int32_t mSymbolCharacter = 0x25B2;  // Upward triangle, the map sign of a peak.
  double mSymbolRotation = 0;
  double mSymbolSize = 11;
  bool mShowLabels = true;
  LabelContent mContent = LabelContent::Value;
  LabelPosition mPosition = LabelPosition::Right;
  Font mLabelFont = {.Name = "Arial", .Size = 9, .Bold = true};
  Color mLabelColor = {64, 32, 16};
  double mLabelRotation = 0;
};

}  // namespace orx::maplibrary
