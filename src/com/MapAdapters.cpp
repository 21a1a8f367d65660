#include "com/MapAdapters.h"

#include <OrvexMapDialogs2.h>

#include "com/Colors.h"
#include "com/Conversion.h"
#include "com/Errors.h"
#include "hostobjects/RunTimeError.h"

namespace orx::com {
namespace {

/// A value of an enumeration that starts at 0 and ends with `last`.
template <class Enumeration>
Enumeration EnumOf(const Members& object, const char* member, Enumeration last) {
  const std::int32_t value = object.GetLong(member);
  if (value < 0 || value > static_cast<std::int32_t>(last))
    throw RunTimeError(kErrorInvalidValue, std::string(member) + " is " + std::to_string(value) +
                                               ", but must be from 0 to " +
                                               std::to_string(static_cast<std::int32_t>(last)) + ".");
  return static_cast<Enumeration>(value);
}

}  // namespace

HostObject* MapAdapter::AddLayer(const std::string& path, const std::string& options) {
  Variant arguments[] = {Variant(path), Variant(options)};
  const Variant added = mObject.Call("AddLayer", arguments, 2);
  Variant layer;
  Check(ConvertValue(added, VT_DISPATCH, LOCALE_USER_DEFAULT, layer), "AddLayer");
  return mOwner.Adopt(ComPtr<IDispatch>(layer.pdispVal));
}

bool MapAdapter::Succeeds(const char* member, std::int32_t index) const {
  Variant done;
  Check(ConvertValue(mObject.Call(member, Variant(index)), VT_BOOL, LOCALE_USER_DEFAULT, done), member);
  return done.boolVal != VARIANT_FALSE;
}

LabelContent LabelsAdapter::Content() const {
  return EnumOf(mObject, "Content", LabelContent::NameAndValue);
}

LabelPosition LabelsAdapter::Position() const {
  return EnumOf(mObject, "Position", LabelPosition::Right);
}

Members LabelsAdapter::Face() const {
  return Members::Of<::ILabelFont>(mObject.GetObject("LabelFont").Get());
}

Font LabelsAdapter::LabelFont() const {
  const Members face = Face();
  return {.Name = face.GetText("Name"),
          .Size = face.GetDouble("Size"),
          .Bold = face.GetBool("Bold"),
          .Italic = face.GetBool("Italic"),
          .Underline = face.GetBool("Underline"),
          .Strikethrough = face.GetBool("Strikethrough")};
}

void LabelsAdapter::LabelFont(const Font& value) {
  const Members face = Face();
  const Font before = LabelFont();
  if (value.Name != before.Name) face.Put("Name", value.Name);
  if (value.Size != before.Size) face.Put("Size", value.Size);
  if (value.Bold != before.Bold) face.Put("Bold", value.Bold);
  if (value.Italic != before.Italic) face.Put("Italic", value.Italic);
  if (value.Underline != before.Underline) face.Put("Underline", value.Underline);
  if (value.Strikethrough != before.Strikethrough) face.Put("Strikethrough", value.Strikethrough);
}

Color LabelsAdapter::LabelColor() const {
  return ColorOf(Face().Get("Color"));
}

void LabelsAdapter::LabelColor(Color value) {
  Face().Put("Color", OleColorOf(value));
}

LegendCorner LegendAdapter::Corner() const {
  return EnumOf(mObject, "Corner", LegendCorner::BottomRight);
}

ILegend& LegendsAdapter::Legend(std::int32_t index) {
  const ComPtr<IDispatch> legend = mObject.GetObject("Legend", {index});
  if (!legend) throw RunTimeError(kErrorNotLoaded, "There is no legend " + std::to_string(index) + ".");
  return mLegends.Of(mOwner, Members::Of<::ILegend>(legend.Get()));
}

}  // namespace orx::com
