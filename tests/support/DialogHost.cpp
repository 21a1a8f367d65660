#include "tests/support/DialogHost.h"

#include "tests/support/ExactText.h"
#include "tests/support/MapText.h"

namespace orx::test {
namespace {

/// Values of one object, each on a line of its own.
template <class... Each>
std::string Values(const char* object, const Each&... values) {
  std::string text;
  ((text += object, text += ' ', text += Text(values), text += '\n'), ...);
  return text;
}

std::string StateOf(const char* kind, const RecordedSpecialValue& value) {
  return Values(kind, value.Fill, value.IsEnabled, value.IsInLegend, value.Upper, value.Lower, value.Words,
                value.IsTransparent);
}

std::string StateOf(const RecordedData& data) {
  return Values("data", data.Format, data.ShowsName, data.Method, data.Classes, data.Minimum, data.Maximum,
                data.Outside, data.Style, data.FirstSize, data.LastSize) +
         StateOf("missing", data.Missing) + StateOf("zero", data.Zero) + StateOf("no data", data.NoData);
}

std::string StateOf(const RecordedShade& shade) {
  return Values("shade", shade.HeldScaleAutomatic, shade.HeldCombineColors, shade.HeldAltitude,
                shade.HeldFirstShadeIndex, shade.HeldAzimuth, shade.HeldNrOfShades, shade.HeldMinIntensity,
                shade.HeldScaleFactor, shade.HeldScaleMultiplier, shade.HeldAltitudeDefault,
                shade.HeldMidIndexAutomatic, shade.HeldMaxIntensity, shade.HeldMidIntensity, shade.HeldShadeVersion,
                shade.Count);
}

std::string StateOf(const RecordedIsolines& lines) {
  return Values("isolines", lines.HeldUseRangeColor, lines.HeldUseRangeWidth, lines.HeldMaxWidth,
                lines.HeldLabelDistance, lines.HeldLabelUseRangeColor, lines.HeldLabelVisible, lines.HeldRangeStep,
                lines.HeldLabelAllIsolines, lines.Pen.HeldStyle, lines.Pen.HeldWidth, lines.Pen.HeldColor) +
         Values("lettering", lines.Face.HeldName, lines.Face.HeldSize, lines.Face.HeldBold, lines.Face.HeldItalic,
                lines.Face.HeldUnderline, lines.Face.HeldStrikethrough, lines.Face.HeldColor);
}

std::string StateOf(const RecordedLayer& layer) {
  return Values("layer", layer.HeldName, layer.HeldVisible, layer.HeldSymbolFont, layer.HeldSymbolCharacter,
                layer.HeldSymbolRotation, layer.HeldSymbolSize, layer.HeldShowLabels,
                static_cast<int>(layer.HeldContent), static_cast<int>(layer.HeldPosition), layer.HeldLabelFont,
                layer.HeldLabelColor, layer.HeldLabelRotation) +
         Values("extent", layer.Extent.HeldLeft, layer.Extent.HeldRight, layer.Extent.HeldBottom, layer.Extent.HeldTop);
}

std::string StateOf(const RecordedLegends& legends) {
  std::string text;
  for (const RecordedLegend& legend : legends.Legends)
    text += Values("legend", legend.HeldTitle, legend.HeldVisible, static_cast<int>(legend.HeldCorner),
                   legend.HeldFramed, legend.HeldTextSize);
  return text;
}

std::string StateOf(const ModelMap& map) {
  std::string text = Values("map", map.Name, map.Layers.size());
  for (const auto& layer : map.Layers) text += StateOf(*layer);
  return text;
}

}  // namespace

HostInterface* DialogHost::GridView(const std::type_info& wanted) {
  if (wanted == typeid(ShadeSettings) || wanted == typeid(ShadeSettings2)) return Shade.ViewFor(wanted);
  if (wanted == typeid(IIsolines)) return &Isolines;
  return static_cast<IData*>(&Data);
}

std::string DialogHost::State() const {
  return StateOf(Data) + StateOf(Shade) + StateOf(Isolines) + StateOf(Layer) + StateOf(Legends) +
         Values("ground", Ground.Left, Ground.Right, Ground.Bottom, Ground.Top) + StateOf(Map) + Serialise(*Small);
}

}  // namespace orx::test
