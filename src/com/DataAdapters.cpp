#include "com/DataAdapters.h"

#include "com/Colors.h"
#include "hostobjects/RunTimeError.h"

namespace orx::com {
namespace {

/// "Object variable not set", in the numbers of the older Basic.
constexpr std::int32_t kNoSpecialValue = 91;

}  // namespace

orx::Color SpecialValueAdapter::Color() const {
  return ColorMember(mObject);
}

void SpecialValueAdapter::Color(orx::Color value) {
  ColorMember(mObject, value);
}

ISpecialValue& DataOptionsAdapter::Special(const char* member) {
  const ComPtr<IDispatch> object = mObject.GetObject(member);
  if (!object) throw RunTimeError(kNoSpecialValue, std::string(member) + " is Nothing.");
  std::unique_ptr<SpecialValueAdapter>& known = mSpecial[member];
  known = std::make_unique<SpecialValueAdapter>(object);
  return *known;
}

}  // namespace orx::com
