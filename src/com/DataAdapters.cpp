#include "com/DataAdapters.h"

#include <OrvexMapDialogs2.h>

#include "com/Colors.h"
#include "com/Conversion.h"
#include "com/Errors.h"

namespace orx::com {

bool FileCheckAdapter::CanOpen(const std::string& path) {
  Variant done;
  Check(ConvertValue(mObject.Call("CanOpen", Variant(path)), VT_BOOL, LOCALE_USER_DEFAULT, done), "CanOpen");
  return done.boolVal != VARIANT_FALSE;
}

orx::Color SpecialValueAdapter::Color() const {
  return ColorMember(mObject);
}

void SpecialValueAdapter::Color(orx::Color value) {
  ColorMember(mObject, value);
}

ISpecialValue& DataOptionsAdapter::Special(const char* member) {
  return mSpecial.Of(mOwner, Members::Of<::ISpecialValue>(mObject.RequireObject(member).Get()));
}

}  // namespace orx::com
