#include "tests/fuzz/MapFuzz.h"

#include "hostobjects/IGridSettings.h"
#include "hostobjects/RunTimeError.h"
#include "maplibrary/drawing/DrawMap.h"
#include "maplibrary/model/LayerFile.h"
#include "maplibrary/model/Map.h"
#include "maplibrary/model/TiledLayer.h"

namespace orx::fuzz {
namespace {

constexpr Size kPicture{48, 32};

template <class Setting>
void Offer(Setting&& setting) {
  try {
    setting();
  } catch (const RunTimeError& refused) {
    Require(refused.what()[0] != '\0');
  }
}

std::string AnyText(FuzzedDataProvider& data) {
  return data.ConsumeRandomLengthString(24);
}

void SetLayer(FuzzedDataProvider& data, maplibrary::MapLayer& layer) {
  Offer([&] { layer.Name(AnyText(data)); });
  Offer([&] { layer.SymbolFont(AnyText(data)); });
  Offer([&] { layer.SymbolCharacter(AnyWhole<std::int32_t>(data)); });
  Offer([&] { layer.SymbolRotation(AnyNumber(data)); });
  Offer([&] { layer.SymbolSize(AnyNumber(data)); });
  Offer([&] {
    layer.Content(data.PickValueInArray({LabelContent::Name, LabelContent::Value, LabelContent::NameAndValue}));
  });
  Offer([&] {
    layer.Position(data.PickValueInArray({LabelPosition::Center, LabelPosition::Above, LabelPosition::Left}));
  });
  Offer([&] { layer.LabelFont({.Name = AnyText(data), .Size = AnyNumber(data)}); });
  Offer([&] { layer.LabelRotation(AnyNumber(data)); });
}

void SetExtent(FuzzedDataProvider& data, IExtent& extent) {
  if (data.ConsumeBool()) Offer([&] { extent.Left(AnyNumber(data)); });
  if (data.ConsumeBool()) Offer([&] { extent.Right(AnyNumber(data)); });
  if (data.ConsumeBool()) Offer([&] { extent.Bottom(AnyNumber(data)); });
  if (data.ConsumeBool()) Offer([&] { extent.Top(AnyNumber(data)); });
}

void SetClasses(FuzzedDataProvider& data, IClassification& classes) {
  Offer([&] { classes.ValueFormat(AnyText(data)); });
  Offer([&] { classes.ClassifyMethod(data.ConsumeIntegralInRange(0, 8)); });
  // A legend of all classes that are allowed takes its time.
  Offer([&] { classes.NumberOfClasses(data.ConsumeIntegralInRange(-1, 40)); });
  Offer([&] { classes.MinValue(AnyNumber(data)); });
  Offer([&] { classes.MaxValue(AnyNumber(data)); });
  Offer([&] { classes.OutsideAsMissing(data.ConsumeBool()); });
  Offer([&] { classes.LegendStyle(data.ConsumeIntegralInRange(-1, 3)); });
  Offer([&] { classes.FirstClassSize(AnyNumber(data)); });
  Offer([&] { classes.LastClassSize(AnyNumber(data)); });
}

void SetShade(FuzzedDataProvider& data, ShadeSettings2& shade) {
  Offer([&] { shade.ScaleAutomatic(data.ConsumeBool()); });
  Offer([&] { shade.CombineColors(AnyWhole<std::int16_t>(data)); });
  Offer([&] { shade.Altitude(AnyWhole<std::int32_t>(data)); });
  Offer([&] { shade.Azimuth(AnyWhole<std::int32_t>(data)); });
  Offer([&] { shade.FirstShadeIndex(AnyWhole<std::int32_t>(data)); });
  Offer([&] { shade.ShadeCount(AnyWhole<std::int32_t>(data)); });
  Offer([&] { shade.NrOfShades(AnyWhole<std::int32_t>(data)); });
  Offer([&] { shade.MinIntensity(AnyNumber(data)); });
  Offer([&] { shade.MidIntensity(AnyNumber(data)); });
  Offer([&] { shade.MaxIntensity(AnyNumber(data)); });
  Offer([&] { shade.ScaleFactor(AnyNumber(data)); });
  Offer([&] { shade.ScaleMultiplier(AnyNumber(data)); });
  Offer([&] { shade.MidIndexAutomatic(data.ConsumeBool()); });
  Offer([&] { shade.ShadeVersion(AnyWhole<std::int32_t>(data)); });
}

void SetIsolines(FuzzedDataProvider& data, IIsolines& lines) {
  Offer([&] { lines.UseRangeColor(data.ConsumeBool()); });
  Offer([&] { lines.UseRangeWidth(data.ConsumeBool()); });
  Offer([&] { lines.MaxWidth(AnyWhole<std::int32_t>(data)); });
  Offer([&] { lines.LabelVisible(data.ConsumeBool()); });
  Offer([&] { lines.LabelDistance(AnyNumber(data)); });
  Offer([&] { lines.RangeStep(AnyWhole<std::int32_t>(data)); });
  Offer([&] { lines.LabelAllIsolines(data.ConsumeBool()); });
  Offer([&] { lines.Line().Width(AnyWhole<std::int32_t>(data)); });
  Offer([&] { lines.Line().Style(AnyWhole<std::int32_t>(data)); });
}

void SetSpecial(FuzzedDataProvider& data, ISpecialValue& special) {
  Offer([&] { special.Enabled(data.ConsumeBool()); });
  Offer([&] { special.Transparent(data.ConsumeBool()); });
  Offer([&] { special.LowerBound(AnyNumber(data)); });
  Offer([&] { special.UpperBound(AnyNumber(data)); });
}

void SetData(FuzzedDataProvider& data, HostObject* object) {
  if (auto* const classes = QueryKind<IClassification>(object)) SetClasses(data, *classes);
  if (auto* const shade = QueryKind<ShadeSettings2>(object)) SetShade(data, *shade);
  if (auto* const lines = QueryKind<IIsolines>(object)) SetIsolines(data, *lines);
  if (auto* const options = QueryKind<IDataOptions>(object))
    for (ISpecialValue* const special : {&options->MissingValue(), &options->ZeroValue(), &options->NoDataValue()})
      SetSpecial(data, *special);
}

}  // namespace

void DrawWithAnySettings(FuzzedDataProvider& data, std::unique_ptr<maplibrary::MapLayer> layer) {
  maplibrary::Map map(AnyText(data));
  maplibrary::MapLayer& added = map.AddLayer(std::move(layer));
  if (data.remaining_bytes() > 0) {
    SetLayer(data, added);
    SetData(data, added.Data());
    if (auto* const tiles = dynamic_cast<maplibrary::TiledLayer*>(&added)) {
      SetLayer(data, *tiles->Layer(1));
      SetData(data, tiles->Layer(1)->Data());
      SetExtent(data, *tiles->Layer(1));
    }
    SetExtent(data, added);
    SetExtent(data, *map.Extent());
    for (std::int32_t i = 0; i < map.LegendCount(); ++i) {
      Offer([&] { map.Legend(i).Title(AnyText(data)); });
      Offer([&] { map.Legend(i).TextSize(AnyNumber(data)); });
    }
  }
  Canvas canvas;
  DrawMap(map, canvas, kPicture);
}

void ReadAndDraw(FuzzedDataProvider& data, const std::string& path) {
  try {
    DrawWithAnySettings(data, maplibrary::ReadLayerFile(path));
  } catch (const RunTimeError& refused) {
    Require(refused.what()[0] != '\0');
  }
}

}  // namespace orx::fuzz
