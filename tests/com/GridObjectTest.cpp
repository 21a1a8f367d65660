// Shading and contour lines of hosts' objects, known by their members or published interfaces.
#include <gtest/gtest.h>

#include "com/HostAdapters.h"
#include "hostobjects/IGridSettings.h"
#include "hostobjects/RunTimeError.h"
#include "tests/com/support/MapDialogsTest.h"

namespace orx::com::test {
namespace {

using GridHeader = std::map<std::string, Variant>;

/// The settings of a shade object; an extended one has the newer ones too.
GridHeader ShadeFields(bool isExtended) {
  GridHeader fields;
  for (const char* const name : {"ScaleAutomatic", "MidIndexAutomatic"}) fields[name] = Variant(false);
  for (const char* const name : {"CombineColors", "Altitude", "FirstShadeIndex", "ShadeCount", "Azimuth", "NrOfShades"})
    fields[name] = Variant(std::int32_t{1});
  for (const char* const name : {"MinIntensity", "ScaleFactor", "ScaleMultiplier"}) fields[name] = Variant(0.5);
  if (!isExtended) return fields;
  for (const char* const name : {"AltitudeDefault", "ShadeVersion"}) fields[name] = Variant(std::int32_t{20});
  for (const char* const name : {"MaxIntensity", "MidIntensity"}) fields[name] = Variant(100.0);
  return fields;
}

ComPtr<ScriptObject> MakeLine() {
  GridHeader fields;
  fields["Style"] = Variant(std::int32_t{2});
  fields["Width"] = Variant(std::int32_t{3});
  fields["Color"] = Variant(std::int32_t{0x0000FF});
  return MakeCounted<ScriptObject>(std::move(fields));
}

ComPtr<ScriptObject> MakeLabelFont() {
  GridHeader fields;
  fields["Name"] = Variant("Arial");
  fields["Size"] = Variant(8.25);
  for (const char* const name : {"Bold", "Italic", "Underline", "Strikethrough"}) fields[name] = Variant(false);
  fields["Color"] = Variant(std::int32_t{0});
  return MakeCounted<ScriptObject>(std::move(fields));
}

GridHeader IsolineFields(IDispatch* line, IDispatch* font) {
  GridHeader fields;
  for (const char* const name :
       {"UseRangeColor", "UseRangeWidth", "LabelUseRangeColor", "LabelVisible", "LabelAllIsolines"})
    fields[name] = Variant(true);
  fields["MaxWidth"] = Variant(std::int32_t{4});
  fields["RangeStep"] = Variant(std::int32_t{2});
  fields["LabelDistance"] = Variant(0.25);
  fields["Line"] = Variant(line);
  fields["LabelFont"] = Variant(font);
  return fields;
}

TEST(GridAdapter, TheGenerationOfAShadeObjectIsKnownByItsMembers) {
  const auto basic = MakeCounted<ScriptObject>(ShadeFields(false));
  const auto older = AdaptHostObject(basic.Get());
  EXPECT_TRUE(QueryKind<orx::ShadeSettings>(older.get()));
  EXPECT_FALSE(QueryKind<orx::ShadeSettings2>(older.get()));
  const auto extended = MakeCounted<ScriptObject>(ShadeFields(true));
  const auto newer = AdaptHostObject(extended.Get());
  ASSERT_TRUE(QueryKind<orx::ShadeSettings2>(newer.get()));
  EXPECT_EQ(QueryKind<orx::ShadeSettings2>(newer.get())->ShadeVersion(), 20);
  EXPECT_EQ(QueryKind<orx::ShadeSettings>(newer.get())->ScaleFactor(), 0.5);
  EXPECT_FALSE(QueryKind<orx::IIsolines>(newer.get()));
}

TEST(GridAdapter, EveryShadeSettingIsWrittenToItsMember) {
  const auto object = MakeCounted<ScriptObject>(ShadeFields(true));
  const auto adapter = AdaptHostObject(object.Get());
  orx::ShadeSettings2& shade = *QueryKind<orx::ShadeSettings2>(adapter.get());
  shade.ScaleAutomatic(true);
  shade.CombineColors(2);
  shade.Altitude(45);
  shade.FirstShadeIndex(3);
  shade.ShadeCount(77);
  shade.Azimuth(315);
  shade.NrOfShades(99);
  shade.MinIntensity(12.5);
  shade.ScaleFactor(0.25);
  shade.ScaleMultiplier(4);
  shade.AltitudeDefault(30);
  shade.MidIndexAutomatic(true);
  shade.MaxIntensity(150);
  shade.MidIntensity(90);
  shade.ShadeVersion(10);
  EXPECT_EQ(object->Written.size(), 15u);
  EXPECT_EQ(object->Field("ShadeCount").lVal, 77);
  EXPECT_EQ(object->Field("CombineColors").vt, VT_I2);
  EXPECT_EQ(shade.CombineColors(), 2);
  EXPECT_EQ(shade.Azimuth(), 315);
  EXPECT_TRUE(shade.MidIndexAutomatic());
  EXPECT_EQ(shade.MaxIntensity(), 150);
}

TEST(GridAdapter, ADataObjectGivesItsViews) {
  const auto shade = MakeCounted<ScriptObject>(ShadeFields(true));
  const auto line = MakeLine();
  const auto font = MakeLabelFont();
  const auto isolines = MakeCounted<ScriptObject>(IsolineFields(line.Get(), font.Get()));
  GridHeader fields;
  fields["Shade"] = Variant(shade.Get());
  fields["Isolines"] = Variant(isolines.Get());
  const auto object = MakeCounted<ScriptObject>(std::move(fields));
  const auto adapter = AdaptHostObject(object.Get());
  EXPECT_TRUE(QueryKind<orx::ShadeSettings2>(adapter.get()));
  ASSERT_TRUE(QueryKind<orx::IIsolines>(adapter.get()));
  EXPECT_EQ(QueryKind<orx::IIsolines>(adapter.get())->Line().Width(), 3);
  EXPECT_EQ(QueryKind<orx::IIsolines>(adapter.get())->LabelFont().Size(), 8.25F);
}

TEST(GridAdapter, IsolinesWithTheirLineAndFontAreReadAndWritten) {
  const auto line = MakeLine();
  const auto font = MakeLabelFont();
  const auto object = MakeCounted<ScriptObject>(IsolineFields(line.Get(), font.Get()));
  const auto adapter = AdaptHostObject(object.Get());
  orx::IIsolines& isolines = *QueryKind<orx::IIsolines>(adapter.get());
  isolines.RangeStep(5);
  isolines.LabelDistance(0.5);
  isolines.UseRangeColor(false);
  orx::ILineStyle& pen = isolines.Line();
  EXPECT_EQ(pen.Color(), (Color{255, 0, 0}));
  pen.Color({0, 0, 255});
  pen.Style(4);
  orx::ILabelFont& face = isolines.LabelFont();
  face.Name("Times");
  face.Size(11.5F);
  face.Bold(true);
  EXPECT_EQ(object->Field("RangeStep").lVal, 5);
  EXPECT_EQ(line->Field("Color").lVal, 0xFF0000);
  EXPECT_EQ(line->Field("Style").lVal, 4);
  EXPECT_EQ(TextOf(font->Field("Name").bstrVal), "Times");
  EXPECT_EQ(font->Field("Size").dblVal, 11.5);
  EXPECT_EQ(font->Field("Bold").boolVal, VARIANT_TRUE);
}

TEST(GridAdapter, ALineThatIsNothingIsAnErrorThatNamesIt) {
  const auto font = MakeLabelFont();
  const auto object = MakeCounted<ScriptObject>(IsolineFields(nullptr, font.Get()));
  const auto adapter = AdaptHostObject(object.Get());
  try {
    QueryKind<orx::IIsolines>(adapter.get())->Line();
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(std::string(error.what()), "Line is Nothing.");
  }
}

TEST(GridAdapter, WithoutAMethodForItNoFactorIsSuggested) {
  const auto object = MakeCounted<ScriptObject>(ShadeFields(false));
  const auto adapter = AdaptHostObject(object.Get());
  double factor = 7;
  EXPECT_THROW(QueryKind<orx::ShadeSettings>(adapter.get())->SuggestScaleFactor(factor), RunTimeError);
  EXPECT_EQ(factor, 7);
}

}  // namespace
}  // namespace orx::com::test
