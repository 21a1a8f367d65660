#include "com/Colors.h"

#include "com/Conversion.h"
#include "com/Errors.h"

namespace orx::com {

Color ColorOf(const VARIANT& value) {
  Variant number;
  // Wider than a colour, because languages differ in the sign of a number with the highest bit set.
  Check(ConvertValue(value, VT_I8, LOCALE_USER_DEFAULT, number), "Color");
  auto code = static_cast<std::uint32_t>(number.llVal);
  if (code & 0x80000000U) code = GetSysColor(static_cast<int>(code & 0xFFU));
  return {GetRValue(code), GetGValue(code), GetBValue(code)};
}

std::int32_t OleColorOf(Color color) {
  return static_cast<std::int32_t>(RGB(color.Red, color.Green, color.Blue));
}

Color ColorMember(const Members& object) {
  return ColorOf(object.Get("Color"));
}

void ColorMember(const Members& object, Color value) {
  Variant held = object.Get("Color");
  object.Put("Color", ColorOf(held) == value ? std::move(held) : Variant(OleColorOf(value)));
}

}  // namespace orx::com
