// The state of a map as text: each single setting shows in it, and reading changes nothing.
#include "tests/support/MapText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "tests/maplibrary/SmallGrids.h"

namespace orx::maplibrary {
namespace {

using test::Serialise;

struct Change {
  const char* Setting;
  std::function<void(Map&)> Make;
};

double Next(double value) {
  return std::nextafter(value, 1e300);
}

/// Changes of a layer's settings, each by the least possible step.
std::vector<Change> LayerChanges(const std::function<MapLayer&(Map&)>& layer) {
  const auto with = [layer](auto action) { return [=](Map& map) { action(layer(map)); }; };
  const auto font = [with](auto action) {
    return with([=](MapLayer& l) {
      Font changed = l.LabelFont();
      action(changed);
      l.LabelFont(changed);
    });
  };
  return {{"Name", with([](MapLayer& l) { l.Name(l.Name() + " "); })},
          {"Visible", with([](MapLayer& l) { l.Visible(!l.Visible()); })},
          {"SymbolFont", with([](MapLayer& l) { l.SymbolFont("Symbol"); })},
          {"SymbolCharacter", with([](MapLayer& l) { l.SymbolCharacter(l.SymbolCharacter() + 1); })},
          {"SymbolRotation", with([](MapLayer& l) { l.SymbolRotation(Next(l.SymbolRotation())); })},
          {"SymbolSize", with([](MapLayer& l) { l.SymbolSize(Next(l.SymbolSize())); })},
          {"ShowLabels", with([](MapLayer& l) { l.ShowLabels(!l.ShowLabels()); })},
          {"Content", with([](MapLayer& l) { l.Content(LabelContent::Name); })},
          {"Position", with([](MapLayer& l) { l.Position(LabelPosition::Below); })},
          {"LabelFont.Name", font([](Font& f) { f.Name = "Times"; })},
          {"LabelFont.Size", font([](Font& f) { f.Size = Next(f.Size); })},
          {"LabelFont.Bold", font([](Font& f) { f.Bold = !f.Bold; })},
          {"LabelFont.Italic", font([](Font& f) { f.Italic = !f.Italic; })},
          {"LabelFont.Underline", font([](Font& f) { f.Underline = !f.Underline; })},
          {"LabelFont.Strikethrough", font([](Font& f) { f.Strikethrough = !f.Strikethrough; })},
          {"LabelColor.Red", with([](MapLayer& l) {
             l.LabelColor({65, 32, 16});
           })},
          {"LabelColor.Green", with([](MapLayer& l) {
             l.LabelColor({64, 33, 16});
           })},
          {"LabelColor.Blue", with([](MapLayer& l) {
             l.LabelColor({64, 32, 17});
           })},
          {"LabelRotation", with([](MapLayer& l) { l.LabelRotation(Next(l.LabelRotation())); })},
          {"Left", with([](MapLayer& l) { l.Left(Next(l.Left())); })},
          {"Right", with([](MapLayer& l) { l.Right(Next(l.Right())); })},
          {"Bottom", with([](MapLayer& l) { l.Bottom(Next(l.Bottom())); })},
          {"Top", with([](MapLayer& l) { l.Top(Next(l.Top())); })}};
}

/// Changes of a kind of special values.
std::vector<Change> SpecialChanges(const std::string& name, SpecialValue& (LayerData::*kind)()) {
  std::vector<Change> changes;
  const auto add = [&](auto action) {
    changes.push_back({name.c_str(), [=](Map& map) {
                         auto& data = *dynamic_cast<Layer&>(*map.Layer(1)).Data();
                         action((data.*kind)());
                       }});
  };
  add([](SpecialValue& v) { v.Color({255, 255, 193}); });
  add([](SpecialValue& v) { v.Enabled(!v.Enabled()); });
  add([](SpecialValue& v) { v.InLegend(true); });
  add([](SpecialValue& v) { v.UpperBound(Next(v.UpperBound())); });
  add([](SpecialValue& v) { v.LowerBound(Next(v.LowerBound())); });
  add([](SpecialValue& v) { v.TextValue("x"); });
  add([](SpecialValue& v) { v.Transparent(false); });
  return changes;
}

std::vector<Change> DataChanges() {
  const auto with = [](auto action) { return [=](Map& map) { action(*dynamic_cast<Layer&>(*map.Layer(1)).Data()); }; };
  return {{"ValueFormat", with([](LayerData& d) { d.ValueFormat("0"); })},
          {"ShowParameterName", with([](LayerData& d) { d.ShowParameterName(true); })},
          {"ClassifyMethod", with([](LayerData& d) { d.ClassifyMethod(7); })},
          {"NumberOfClasses", with([](LayerData& d) { d.NumberOfClasses(11); })},
          {"MinValue", with([](LayerData& d) { d.MinValue(Next(d.MinValue())); })},
          {"MaxValue", with([](LayerData& d) { d.MaxValue(Next(d.MaxValue())); })},
          {"OutsideAsMissing", with([](LayerData& d) { d.OutsideAsMissing(true); })},
          {"LegendStyle", with([](LayerData& d) { d.LegendStyle(2); })},
          {"FirstClassSize", with([](LayerData& d) { d.FirstClassSize(Next(d.FirstClassSize())); })},
          {"LastClassSize", with([](LayerData& d) { d.LastClassSize(Next(d.LastClassSize())); })},
          {"ScaleAutomatic", with([](LayerData& d) { d.Shade().ScaleAutomatic(false); })},
          {"CombineColors", with([](LayerData& d) { d.Shade().CombineColors(2); })},
          {"Altitude", with([](LayerData& d) { d.Shade().Altitude(46); })},
          {"FirstShadeIndex", with([](LayerData& d) { d.Shade().FirstShadeIndex(2); })},
          {"Azimuth", with([](LayerData& d) { d.Shade().Azimuth(316); })},
          {"NrOfShades", with([](LayerData& d) { d.Shade().NrOfShades(129); })},
          {"MinIntensity", with([](LayerData& d) { d.Shade().MinIntensity(Next(50)); })},
          {"ScaleFactor", with([](LayerData& d) { d.Shade().ScaleFactor(Next(0.001)); })},
          {"ScaleMultiplier", with([](LayerData& d) { d.Shade().ScaleMultiplier(Next(1)); })},
          {"AltitudeDefault", with([](LayerData& d) { d.Shade().AltitudeDefault(46); })},
          {"MidIndexAutomatic", with([](LayerData& d) { d.Shade().MidIndexAutomatic(true); })},
          {"MaxIntensity", with([](LayerData& d) { d.Shade().MaxIntensity(Next(150)); })},
          {"MidIntensity", with([](LayerData& d) { d.Shade().MidIntensity(Next(100)); })},
          {"ShadeVersion", with([](LayerData& d) { d.Shade().ShadeVersion(10); })},
          {"UseRangeColor", with([](LayerData& d) { d.Lines().UseRangeColor(true); })},
          {"UseRangeWidth", with([](LayerData& d) { d.Lines().UseRangeWidth(true); })},
          {"MaxWidth", with([](LayerData& d) { d.Lines().MaxWidth(4); })},
          {"LabelDistance", with([](LayerData& d) { d.Lines().LabelDistance(Next(0.25)); })},
          {"LabelUseRangeColor", with([](LayerData& d) { d.Lines().LabelUseRangeColor(true); })},
          {"LabelVisible", with([](LayerData& d) { d.Lines().LabelVisible(true); })},
          {"RangeStep", with([](LayerData& d) { d.Lines().RangeStep(2); })},
          {"LabelAllIsolines", with([](LayerData& d) { d.Lines().LabelAllIsolines(true); })},
          {"Line.Style", with([](LayerData& d) { d.Lines().Line().Style(0); })},
          {"Line.Width", with([](LayerData& d) { d.Lines().Line().Width(2); })},
          {"Line.Color", with([](LayerData& d) {
             d.Lines().Line().Color({120, 72, 33});
           })},
          {"Isoline font name", with([](LayerData& d) { d.Lines().LabelFont().Name("Times"); })},
          {"Isoline font size", with([](LayerData& d) { d.Lines().LabelFont().Size(8.5F); })},
          {"Isoline font bold", with([](LayerData& d) { d.Lines().LabelFont().Bold(true); })},
          {"Isoline font italic", with([](LayerData& d) { d.Lines().LabelFont().Italic(true); })},
          {"Isoline font underline", with([](LayerData& d) { d.Lines().LabelFont().Underline(true); })},
          {"Isoline font strikethrough", with([](LayerData& d) { d.Lines().LabelFont().Strikethrough(true); })},
          {"Isoline font color", with([](LayerData& d) {
             d.Lines().LabelFont().Color({80, 48, 25});
           })}};
}

std::vector<Change> MapChanges() {
  return {{"map name", [](Map& m) { m.Name("Other"); }},
          {"map left", [](Map& m) { m.Extent()->Left(Next(m.Extent()->Left())); }},
          {"map right", [](Map& m) { m.Extent()->Right(Next(m.Extent()->Right())); }},
          {"map bottom", [](Map& m) { m.Extent()->Bottom(Next(m.Extent()->Bottom())); }},
          {"map top", [](Map& m) { m.Extent()->Top(Next(m.Extent()->Top())); }},
          {"legend title", [](Map& m) { m.Legend(1).Title("Key"); }},
          {"legend visible", [](Map& m) { m.Legend(1).Visible(false); }},
          {"legend corner", [](Map& m) { m.Legend(1).Corner(LegendCorner::TopRight); }},
          {"legend framed", [](Map& m) { m.Legend(1).Framed(false); }},
          {"legend text size", [](Map& m) { m.Legend(1).TextSize(Next(m.Legend(1).TextSize())); }},
          {"legend added", [](Map& m) { m.AddLegend(LegendKind::Layers, "More", LegendCorner::TopLeft); }},
          {"layers reordered", [](Map& m) { m.MoveLayerUp(2); }},
          {"layer removed", [](Map& m) { m.RemoveLayer(2); }},
          {"tile removed", [](Map& m) { dynamic_cast<TiledLayer&>(*m.Layer(3)).RemoveLayer(1); }},
          {"tiles reordered", [](Map& m) { dynamic_cast<TiledLayer&>(*m.Layer(3)).MoveLayerUp(2); }},
          {"cell value", [](Map& m) {
             m.RemoveLayer(3);
             m.AddLayer(MakeQuarters("Tiles", "", SmallGrid(2, 2, {10, 20, 40, Next(30)})));
           }}};
}

void ExpectThatEachChangeShows(const std::vector<Change>& changes) {
  const std::string before = Serialise(*SmallMap());
  for (const Change& change : changes) {
    const auto map = SmallMap();
    change.Make(*map);
    EXPECT_NE(Serialise(*map), before) << change.Setting;
  }
}

TEST(MapLibraryMapText, EachSettingOfMapAndLegendsShows) {
  ExpectThatEachChangeShows(MapChanges());
}

TEST(MapLibraryMapText, EachSettingOfALayerShows) {
  ExpectThatEachChangeShows(LayerChanges([](Map& map) -> MapLayer& { return *map.Layer(1); }));
}

TEST(MapLibraryMapText, EachSettingOfTheDataShows) {
  ExpectThatEachChangeShows(DataChanges());
  ExpectThatEachChangeShows(SpecialChanges("MissingValue", &LayerData::MissingValue));
  ExpectThatEachChangeShows(SpecialChanges("ZeroValue", &LayerData::ZeroValue));
  ExpectThatEachChangeShows(SpecialChanges("NoDataValue", &LayerData::NoDataValue));
}

TEST(MapLibraryMapText, EachSettingOfATiledLayerShows) {
  ExpectThatEachChangeShows(LayerChanges([](Map& map) -> MapLayer& { return *map.Layer(3); }));
}

TEST(MapLibraryMapText, EachSettingOfATileShows) {
  ExpectThatEachChangeShows(
      LayerChanges([](Map& map) -> MapLayer& { return *dynamic_cast<TiledLayer&>(*map.Layer(3)).Layer(4); }));
}

/// Reads and writes back every setting, as a dialog does on OK when nothing was edited.
void WriteBack(ILayer& layer, ILabels& labels, IExtent& extent) {
  layer.Name(layer.Name());
  layer.Visible(layer.Visible());
  layer.SymbolFont(layer.SymbolFont());
  layer.SymbolCharacter(layer.SymbolCharacter());
  layer.SymbolRotation(layer.SymbolRotation());
  layer.SymbolSize(layer.SymbolSize());
  labels.ShowLabels(labels.ShowLabels());
  labels.Content(labels.Content());
  labels.Position(labels.Position());
  labels.LabelFont(labels.LabelFont());
  labels.LabelColor(labels.LabelColor());
  labels.LabelRotation(labels.LabelRotation());
  extent.Left(extent.Left());
  extent.Right(extent.Right());
  extent.Bottom(extent.Bottom());
  extent.Top(extent.Top());
}

TEST(MapLibraryMapText, WritingBackWhatWasReadKeepsEveryBit) {
  const auto map = SmallMap();
  const std::string before = Serialise(*map);
  for (std::int32_t i = 1; i <= 3; ++i) WriteBack(*map->Layer(i), *map->Layer(i), *map->Layer(i));
  map->Extent()->Place(map->Extent()->Current());
  for (std::int32_t i = 0; i < 2; ++i) map->Legend(i).TextSize(map->Legend(i).TextSize());
  EXPECT_EQ(Serialise(*map), before);
}

TEST(MapLibraryMapText, NumbersStandInHexadecimalAndTextsInQuotes) {
  const auto map = SmallMap();
  map->Name("a \"b\"\nc");
  map->Extent()->Right(2.5);
  const std::string text = Serialise(*map);
  EXPECT_EQ(text.substr(0, text.find("Legend 0")),
            "Map Name \"a \\\"b\\\"\\nc\"\nMap Extent 0p+0 1.4p+1 0p+0 1p+1 placed\n");
}

}  // namespace
}  // namespace orx::maplibrary
