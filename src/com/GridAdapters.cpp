#include "com/GridAdapters.h"

#include <OrvexMapDialogs2.h>

#include "com/Colors.h"
#include "com/Conversion.h"
#include "com/Errors.h"

namespace orx::com {
namespace {

VARIANT ReferenceTo(VARIANT& variable) {
  VARIANT reference = {};
  reference.vt = VT_BYREF | VT_VARIANT;
  reference.pvarVal = &variable;
  return reference;
}

}  // namespace

bool ShadeAdapter::SuggestScaleFactor(double& value) {
  if (const auto published = ComPtr<::ShadeSettings>::From(mObject.Object())) {
    VARIANT_BOOL success = VARIANT_FALSE;
    double suggested = 0;
    Check(published->SuggestScaleFactor(&suggested, &success), "SuggestScaleFactor");
    if (success != VARIANT_FALSE) value = suggested;
    return success != VARIANT_FALSE;
  }
  // Variables of scripts are untyped.
  Variant suggested(0.0);
  Variant success(false);
  VARIANT arguments[] = {ReferenceTo(suggested), ReferenceTo(success)};
  mObject.Call("SuggestScaleFactor", arguments, 2);
  Variant number;
  Variant flag;
  Check(ConvertValue(suggested, VT_R8, LOCALE_USER_DEFAULT, number), "SuggestScaleFactor");
  Check(ConvertValue(success, VT_BOOL, LOCALE_USER_DEFAULT, flag), "SuggestScaleFactor");
  if (flag.boolVal != VARIANT_FALSE) value = number.dblVal;
  return flag.boolVal != VARIANT_FALSE;
}

orx::Color LineStyleAdapter::Color() const {
  return ColorMember(mObject);
}

void LineStyleAdapter::Color(orx::Color value) {
  ColorMember(mObject, value);
}

orx::Color LabelFontAdapter::Color() const {
  return ColorMember(mObject);
}

void LabelFontAdapter::Color(orx::Color value) {
  ColorMember(mObject, value);
}

orx::ILineStyle& IsolinesAdapter::Line() {
  mLine = std::make_unique<LineStyleAdapter>(mOwner, mObject.RequireObject("Line"));
  return *mLine;
}

orx::ILabelFont& IsolinesAdapter::LabelFont() {
  mFont = std::make_unique<LabelFontAdapter>(mOwner, mObject.RequireObject("LabelFont"));
  return *mFont;
}

}  // namespace orx::com
