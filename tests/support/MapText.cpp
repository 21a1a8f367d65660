#include "tests/support/MapText.h"

#include <bit>
#include <cstdint>

#include "maplibrary/files/GridData.h"
#include "maplibrary/model/LayerData.h"
#include "maplibrary/model/TiledLayer.h"
#include "tests/support/ExactText.h"

namespace orx::test {
namespace {

using namespace maplibrary;

std::string Edges(const GroundRect& rect) {
  return Text(rect.Left) + " " + Text(rect.Right) + " " + Text(rect.Bottom) + " " + Text(rect.Top);
}

template <class Enum>
std::string Number(Enum value) {
  return std::to_string(static_cast<int>(value));
}

std::uint64_t CheckSum(const std::vector<double>& values) {
  std::uint64_t sum = 14695981039346656037u;
  for (const double value : values) sum = (sum ^ std::bit_cast<std::uint64_t>(value)) * 1099511628211u;
  return sum;
}

/// Collects lines "<object> <member> <value>".
class Lines {
 public:
  void Begin(const std::string& object) { mObject = object; }
  void Add(const char* member, const std::string& value) { mText += mObject + " " + member + " " + value + "\n"; }
  void AddExtent(const PlacedExtent& extent) {
    Add("Extent", Edges(extent.Current()) + (extent.IsPlaced() ? " placed" : " natural"));
  }
  const std::string& All() const { return mText; }

 private:
  std::string mObject;
  std::string mText;
};

void AddGrid(Lines& lines, const GridData& grid) {
  lines.Add("Grid", std::to_string(grid.Rows) + " " + std::to_string(grid.Columns) + " " + Edges(grid.Edges()) + " " +
                        std::to_string(CheckSum(grid.Values)));
}

void AddSpecial(Lines& lines, const std::string& kind, const SpecialValue& value) {
  lines.Add((kind + ".Color").c_str(), Text(value.Color()));
  lines.Add((kind + ".Enabled").c_str(), Number(value.Enabled()));
  lines.Add((kind + ".InLegend").c_str(), Number(value.InLegend()));
  lines.Add((kind + ".UpperBound").c_str(), Text(value.UpperBound()));
  lines.Add((kind + ".LowerBound").c_str(), Text(value.LowerBound()));
  lines.Add((kind + ".TextValue").c_str(), Text(value.TextValue()));
  lines.Add((kind + ".Transparent").c_str(), Number(value.Transparent()));
}

void AddShade(Lines& lines, const GridShade& shade) {
  lines.Add("ScaleAutomatic", Number(shade.ScaleAutomatic()));
  lines.Add("CombineColors", Number(shade.CombineColors()));
  lines.Add("Altitude", Number(shade.Altitude()));
  lines.Add("FirstShadeIndex", Number(shade.FirstShadeIndex()));
  lines.Add("Azimuth", Number(shade.Azimuth()));
  lines.Add("NrOfShades", Number(shade.NrOfShades()));
  lines.Add("MinIntensity", Text(shade.MinIntensity()));
  lines.Add("ScaleFactor", Text(shade.ScaleFactor()));
  lines.Add("ScaleMultiplier", Text(shade.ScaleMultiplier()));
  lines.Add("AltitudeDefault", Number(shade.AltitudeDefault()));
  lines.Add("MidIndexAutomatic", Number(shade.MidIndexAutomatic()));
  lines.Add("MaxIntensity", Text(shade.MaxIntensity()));
  lines.Add("MidIntensity", Text(shade.MidIntensity()));
  lines.Add("ShadeVersion", Number(shade.ShadeVersion()));
}

void AddIsolines(Lines& lines, const GridIsolines& isolines) {
  lines.Add("UseRangeColor", Number(isolines.UseRangeColor()));
  lines.Add("UseRangeWidth", Number(isolines.UseRangeWidth()));
  lines.Add("MaxWidth", Number(isolines.MaxWidth()));
  lines.Add("LabelDistance", Text(isolines.LabelDistance()));
  lines.Add("LabelUseRangeColor", Number(isolines.LabelUseRangeColor()));
  lines.Add("LabelVisible", Number(isolines.LabelVisible()));
  lines.Add("RangeStep", Number(isolines.RangeStep()));
  lines.Add("LabelAllIsolines", Number(isolines.LabelAllIsolines()));
  lines.Add("Line",
            Number(isolines.Pen().Style()) + " " + Number(isolines.Pen().Width()) + " " + Text(isolines.Pen().Color()));
  lines.Add("LabelFont", Text(isolines.Lettering().Face()) + " " + Text(isolines.Lettering().Color()));
}

void AddData(Lines& lines, const LayerData& data) {
  AddGrid(lines, *data.Grid());
  lines.Add("ValueFormat", Text(data.ValueFormat()));
  lines.Add("ShowParameterName", Number(data.ShowParameterName()));
  lines.Add("ClassifyMethod", Number(data.ClassifyMethod()));
  lines.Add("NumberOfClasses", Number(data.NumberOfClasses()));
  lines.Add("MinValue", Text(data.MinValue()));
  lines.Add("MaxValue", Text(data.MaxValue()));
  lines.Add("OutsideAsMissing", Number(data.OutsideAsMissing()));
  lines.Add("LegendStyle", Number(data.LegendStyle()));
  lines.Add("FirstClassSize", Text(data.FirstClassSize()));
  lines.Add("LastClassSize", Text(data.LastClassSize()));
  AddShade(lines, data.Shade());
  AddIsolines(lines, data.Lines());
  AddSpecial(lines, "MissingValue", data.Missing());
  AddSpecial(lines, "ZeroValue", data.Zero());
  AddSpecial(lines, "NoDataValue", data.NoData());
}

void AddSettings(Lines& lines, const MapLayer& layer) {
  lines.Add("Name", Text(layer.Name()));
  lines.Add("Source", Text(layer.Source()));
  lines.Add("Visible", Number(layer.Visible()));
  lines.Add("SymbolFont", Text(layer.SymbolFont()));
  lines.Add("SymbolCharacter", std::to_string(layer.SymbolCharacter()));
  lines.Add("SymbolRotation", Text(layer.SymbolRotation()));
  lines.Add("SymbolSize", Text(layer.SymbolSize()));
  lines.Add("ShowLabels", Number(layer.ShowLabels()));
  lines.Add("Content", Number(layer.Content()));
  lines.Add("Position", Number(layer.Position()));
  lines.Add("LabelFont", Text(layer.LabelFont()));
  lines.Add("LabelColor", Text(layer.LabelColor()));
  lines.Add("LabelRotation", Text(layer.LabelRotation()));
  lines.AddExtent(layer);
}

void AddLayer(Lines& lines, const std::string& object, const MapLayer& layer) {
  lines.Begin(object);
  AddSettings(lines, layer);
  if (const auto* single = dynamic_cast<const Layer*>(&layer)) AddData(lines, single->Data());
  const auto* tiled = dynamic_cast<const TiledLayer*>(&layer);
  if (!tiled) return;
  lines.Add("Frame", Edges(tiled->Frame()));
  for (std::int32_t i = 1; i <= tiled->Tiles().Count(); ++i) {
    AddLayer(lines, object + "." + std::to_string(i), tiled->Tiles().At(i));
  }
}

void AddLegend(Lines& lines, const Legend& legend) {
  lines.Add("Explains", Number(legend.Explains()));
  lines.Add("Title", Text(legend.Title()));
  lines.Add("Visible", Number(legend.Visible()));
  lines.Add("Corner", Number(legend.Corner()));
  lines.Add("Framed", Number(legend.Framed()));
  lines.Add("TextSize", Text(legend.TextSize()));
}

}  // namespace

std::string Serialise(const Map& map) {
  Lines lines;
  lines.Begin("Map");
  lines.Add("Name", Text(map.Name()));
  lines.AddExtent(map.Window());
  for (std::size_t i = 0; i < map.Legends().size(); ++i) {
    lines.Begin("Legend " + std::to_string(i));
    AddLegend(lines, *map.Legends()[i]);
  }
  for (std::int32_t i = 1; i <= map.Stack().Count(); ++i) {
    AddLayer(lines, "Layer " + std::to_string(i), map.Stack().At(i));
  }
  return lines.All();
}

}  // namespace orx::test
