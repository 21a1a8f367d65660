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
  return mLines.Of(mOwner, Members::Of<::ILineStyle>(mObject.RequireObject("Line").Get()));
}

orx::ILabelFont& IsolinesAdapter::LabelFont() {
  return mFonts.Of(mOwner, Members::Of<::ILabelFont>(mObject.RequireObject("LabelFont").Get()));
}

}  // namespace orx::com
