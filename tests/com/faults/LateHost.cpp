#include "tests/com/faults/LateHost.h"

#include "com/MapDialogs.h"
#include "tests/com/support/ScriptCall.h"

namespace orx::com::test {
namespace {

using Fields = LateHost::Fields;

Fields FaceFields() {
  return {{"Name", Variant("Arial")},
          {"Size", Variant(9.0)},
          {"Bold", Variant(false)},
          {"Italic", Variant(false)},
          {"Underline", Variant(false)},
          {"Strikethrough", Variant(false)},
          {"Color", Variant(std::int32_t{0x0000FF})}};
}

Fields SpecialFields() {
  return {{"Color", Variant(std::int32_t{0x0000FF})},
          {"Enabled", Variant(true)},
          {"InLegend", Variant(false)},
          {"UpperBound", Variant(2.0)},
          {"LowerBound", Variant(1.0)},
          {"TextValue", Variant("own")},
          {"Transparent", Variant(false)}};
}

Fields ClassificationFields() {
  return {{"ClassCount", Variant(std::int32_t{4})},
          {"ValueFormat", Variant("0.00")},
          {"ShowParameterName", Variant(false)},
          {"ClassifyMethod", Variant(std::int32_t{0})},
          {"NumberOfClasses", Variant(std::int32_t{4})},
          {"MinValue", Variant(0.0)},
          {"MaxValue", Variant(100.0)},
          {"StepSize", Variant(25.0)},
          {"OutsideAsMissing", Variant(false)},
          {"LegendStyle", Variant(std::int32_t{0})},
          {"FirstClassSize", Variant(2.0)},
          {"LastClassSize", Variant(40.0)}};
}

Fields ShadeFields() {
  return {{"ScaleAutomatic", Variant(false)},
          {"MidIndexAutomatic", Variant(false)},
          {"CombineColors", Variant(std::int32_t{1})},
          {"Altitude", Variant(std::int32_t{45})},
          {"FirstShadeIndex", Variant(std::int32_t{1})},
          {"ShadeCount", Variant(std::int32_t{1})},
          {"Azimuth", Variant(std::int32_t{315})},
          {"NrOfShades", Variant(std::int32_t{64})},
          {"MinIntensity", Variant(0.5)},
          {"ScaleFactor", Variant(0.5)},
          {"ScaleMultiplier", Variant(1.0)},
          {"AltitudeDefault", Variant(std::int32_t{20})},
          {"ShadeVersion", Variant(std::int32_t{20})},
          {"MaxIntensity", Variant(100.0)},
          {"MidIntensity", Variant(50.0)}};
}

Fields IsolineFields() {
  return {{"UseRangeColor", Variant(true)},        {"UseRangeWidth", Variant(true)},
          {"LabelUseRangeColor", Variant(true)},   {"LabelVisible", Variant(true)},
          {"LabelAllIsolines", Variant(true)},     {"MaxWidth", Variant(std::int32_t{4})},
          {"RangeStep", Variant(std::int32_t{2})}, {"LabelDistance", Variant(0.25)}};
}

Fields LegendFields() {
  return {{"Title", Variant("Elevation")},
          {"Visible", Variant(true)},
          {"Corner", Variant(std::int32_t{1})},
          {"Framed", Variant(false)},
          {"TextSize", Variant(8.0)}};
}

}  // namespace

LateHost::LateHost(orx::test::FaultPlan& plan) : Service(MakeCounted<MapDialogs>().Get()) {
  ScriptCall(Service.Get(), "Language").Value(LinkTo(Language)).Put(DISPATCH_PROPERTYPUTREF);
  ScriptCall(Service.Get(), "CallBack").Value(LinkTo(CallBack)).Put(DISPATCH_PROPERTYPUTREF);
  for (const auto& object : mAll) object->Faults = &plan;
}

std::vector<ULONG> LateHost::References() const {
  std::vector<ULONG> references;
  for (const auto& object : mAll) references.push_back(ReferencesOf(object.Get()));
  return references;
}

std::vector<std::string> LateHost::Writes() const {
  std::vector<std::string> writes;
  for (const auto& object : mAll) writes.insert(writes.end(), object->Written.begin(), object->Written.end());
  return writes;
}

ComPtr<ScriptObject> LateHost::Make(FieldLists kinds) {
  Fields fields;
  for (const Fields& kind : kinds) fields.insert(kind.begin(), kind.end());
  return mAll.emplace_back(MakeCounted<ScriptObject>(std::move(fields)));
}

ComPtr<ScriptObject> LateHost::MakeData() {
  const auto line = Make({{{"Style", Variant(std::int32_t{2})},
                           {"Width", Variant(std::int32_t{3})},
                           {"Color", Variant(std::int32_t{0x0000FF})}}});
  return Make({ClassificationFields(),
               ShadeFields(),
               IsolineFields(),
               {{"MissingValue", LinkTo(Make({SpecialFields()}))},
                {"ZeroValue", LinkTo(Make({SpecialFields()}))},
                {"NoDataValue", LinkTo(Make({SpecialFields()}))},
                {"Line", LinkTo(line)},
                {"LabelFont", LinkTo(Make({FaceFields()}))},
                {"FileName", Variant("relief.bil")},
                {"MinimumOfData", Variant(-7.0)},
                {"MaximumOfData", Variant(1012.0)}}});
}

ComPtr<ScriptObject> LateHost::MakeLayer() {
  return Make({{{"Name", Variant("Relief")},
                {"Visible", Variant(true)},
                {"Source", Variant("relief.bil")},
                {"SymbolFont", Variant("Wingdings")},
                {"SymbolCharacter", Variant(std::int32_t{108})},
                {"SymbolRotation", Variant(0.5)},
                {"SymbolSize", Variant(12.0)},
                {"Data", LinkTo(Data)},
                {"ShowLabels", Variant(true)},
                {"Content", Variant(std::int32_t{1})},
                {"Position", Variant(std::int32_t{2})},
                {"LabelFont", LinkTo(Make({FaceFields()}))},
                {"LabelRotation", Variant(0.0)}}});
}

ComPtr<ScriptObject> LateHost::MakeMap() {
  const auto extent =
      Make({{{"Left", Variant(0.0)}, {"Right", Variant(100.0)}, {"Bottom", Variant(0.0)}, {"Top", Variant(50.0)}}});
  return Make({{{"LayerCount", Variant(std::int32_t{2})},
                {"LayerName", Variant("Relief")},
                {"Layer", LinkTo(Layer)},
                {"AddLayer", LinkTo(Layer)},
                {"RemoveLayer", Variant(true)},
                {"MoveLayerUp", Variant(true)},
                {"MoveLayerDown", Variant(true)},
                {"Extent", LinkTo(extent)},
                {"LegendCount", Variant(std::int32_t{1})},
                {"Legend", LinkTo(Make({LegendFields()}))}}});
}

}  // namespace orx::com::test
