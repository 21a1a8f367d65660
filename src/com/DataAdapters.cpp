#include "com/DataAdapters.h"

#include <OrvexMapDialogs2.h>

#include "com/Colors.h"

namespace orx::com {

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
