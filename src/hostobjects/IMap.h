// Interfaces of the host's map: the map, an extent, a layer with its labels, and legends.
#pragma once

#include <cstdint>
#include <string>

#include "forms/Appearance.h"
#include "hostobjects/HostObject.h"

namespace orx {

/// A rectangle on the ground, in the map's own unit (degrees or metres), y upwards.
class IExtent : public HostInterface {
 public:
  /// The edges. The library's page sets those that were changed, in an order in which left never passes right, nor
  /// bottom top. A setter may throw to refuse a value.
  virtual double Left() const = 0;
  virtual void Left(double value) = 0;
  virtual double Right() const = 0;
  virtual void Right(double value) = 0;
  virtual double Bottom() const = 0;
  virtual void Bottom(double value) = 0;
  virtual double Top() const = 0;
  virtual void Top(double value) = 0;
};

/// A map: layers in drawing order, numbered from 1, the first drawn first. An index outside the layers throws.
class IMap : public HostInterface {
 public:
  /// The layers: how many there are, and the name of one as the user sees it, UTF-8.
  virtual std::int32_t LayerCount() = 0;
  virtual std::string LayerName(std::int32_t index) = 0;
  /// The layer object; the map owns it.
  virtual HostObject* Layer(std::int32_t index) = 0;
  /// Reads a layer from a file and puts it on top. `options` is reserved and empty. Throws RunTimeError with file and
  /// reason when the file cannot be read.
  virtual HostObject* AddLayer(const std::string& path, const std::string& options) = 0;
  /// True when done.
  virtual bool RemoveLayer(std::int32_t index) = 0;
  virtual bool MoveLayerUp(std::int32_t index) = 0;
  virtual bool MoveLayerDown(std::int32_t index) = 0;
  /// The extent of the map as it is now; the map owns it.
  virtual IExtent* Extent() = 0;
};

/// The layers of a map under a name of their own.
class ILayers : public HostInterface {
 public:
  /// The name of the collection, UTF-8.
  virtual std::string Name() = 0;
  /// The map that the collection belongs to.
  virtual HostObject* Map() = 0;
};

/// General properties of a layer.
class ILayer : public HostInterface {
 public:
  /// The name as the user sees it, UTF-8; the library's page refuses a blank one.
  virtual std::string Name() const = 0;
  virtual void Name(const std::string& value) = 0;
  /// Whether the layer is drawn.
  virtual bool Visible() const = 0;
  virtual void Visible(bool value) = 0;
  /// The file that the layer was read from, for display; empty when there is none.
  virtual std::string Source() const = 0;
  /// The symbol that marks the layer's points: a character of a font, turned counter-clockwise by degrees.
  virtual std::string SymbolFont() const = 0;
  virtual void SymbolFont(const std::string& value) = 0;
  /// Unicode code point.
  virtual std::int32_t SymbolCharacter() const = 0;
  virtual void SymbolCharacter(std::int32_t value) = 0;
  virtual double SymbolRotation() const = 0;
  virtual void SymbolRotation(double value) = 0;
  /// Points.
  virtual double SymbolSize() const = 0;
  virtual void SymbolSize(double value) = 0;
  /// The data object (IData) behind the layer, null when it has none; the layer owns it.
  virtual HostObject* Data() { return nullptr; }
};

/// Where a label stands beside the symbol that it belongs to.
enum class LabelPosition { Center = 0, Above = 1, Below = 2, Left = 3, Right = 4 };
/// What a label says.
enum class LabelContent { Name = 0, Value = 1, NameAndValue = 2 };

/// The labels of a layer.
class ILabels : public HostInterface {
 public:
  /// Whether the labels are drawn, what they say, and where they stand.
  virtual bool ShowLabels() const = 0;
  virtual void ShowLabels(bool value) = 0;
  virtual LabelContent Content() const = 0;
  virtual void Content(LabelContent value) = 0;
  virtual LabelPosition Position() const = 0;
  virtual void Position(LabelPosition value) = 0;
  /// Font and colour of the text.
  virtual Font LabelFont() const = 0;
  virtual void LabelFont(const Font& value) = 0;
  virtual Color LabelColor() const = 0;
  virtual void LabelColor(Color value) = 0;
  /// Degrees counter-clockwise.
  virtual double LabelRotation() const = 0;
  virtual void LabelRotation(double value) = 0;
};

/// The corner of the map where a legend stands.
enum class LegendCorner { TopLeft = 0, TopRight = 1, BottomLeft = 2, BottomRight = 3 };

/// One legend of a map.
class ILegend {
 public:
  virtual ~ILegend() = default;
  /// The heading of the legend, UTF-8.
  virtual std::string Title() const = 0;
  virtual void Title(const std::string& value) = 0;
  /// Whether the legend is drawn, in which corner, and whether with a line around it.
  virtual bool Visible() const = 0;
  virtual void Visible(bool value) = 0;
  virtual LegendCorner Corner() const = 0;
  virtual void Corner(LegendCorner value) = 0;
  virtual bool Framed() const = 0;
  virtual void Framed(bool value) = 0;
  /// Font size of title and entries in points.
  virtual double TextSize() const = 0;
  virtual void TextSize(double value) = 0;
};

/// The legends of a map, numbered from 0. An index outside the legends throws.
class ILegends : public HostInterface {
 public:
  /// The number of legends, and one of them; the map owns it.
  virtual std::int32_t LegendCount() = 0;
  virtual ILegend& Legend(std::int32_t index) = 0;
};

}  // namespace orx
