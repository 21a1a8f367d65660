#include "com/DataAdapters.h"

#include "com/Colors.h"

namespace orx::com {

orx::Color SpecialValueAdapter::Color() const {
  return ColorMember(mObject);
}

void SpecialValueAdapter::Color(orx::Color value) {
  ColorMember(mObject, value);
}

ISpecialValue& DataOptionsAdapter::Special(const char* member) {
  std::unique_ptr<SpecialValueAdapter>& known = mSpecial[member];
  known = std::make_unique<SpecialValueAdapter>(mOwner, mObject.RequireObject(member));
  return *known;
}

}  // namespace orx::com
