#include "com/OwnerArgument.h"

#include <cmath>

#include "com/Conversion.h"
#include "com/Members.h"
#include "hostobjects/RunTimeError.h"

namespace orx::com {
namespace {

constexpr char kExplanation[] =
    "OwnerForm is neither a window handle nor an object with the property hWnd. Leave it out for a dialog without an "
    "owner.";

std::uintptr_t HandleOf(const VARIANT& number) {
  Variant handle;
  Variant exact;
  if (number.vt == VT_BOOL || FAILED(ConvertValue(number, VT_R8, LOCALE_INVARIANT, exact)) ||
      exact.dblVal != std::trunc(exact.dblVal))
    throw RunTimeError(kErrorTypeMismatch, kExplanation);
  // Window handles of 64-bit programs fit 32 bits, but only some hosts sign-extend them.
  if (FAILED(ConvertValue(number, VT_I8, LOCALE_INVARIANT, handle)))
    throw RunTimeError(kErrorTypeMismatch, kExplanation);
  return static_cast<std::uintptr_t>(static_cast<std::intptr_t>(static_cast<std::int32_t>(handle.llVal)));
}

}  // namespace

OwnerWindow OwnerOf(const VARIANT* owner) {
  if (!owner) return {};
  Variant value;
  if (FAILED(CopyBehind(*ValueBehind(const_cast<VARIANT*>(owner)), value)))
    throw RunTimeError(kErrorTypeMismatch, kExplanation);
  if (IsMissing(value) || value.vt == VT_EMPTY || value.vt == VT_NULL) return {};
  if (value.vt != VT_DISPATCH && value.vt != VT_UNKNOWN) {
    if (value.vt == VT_BSTR || (value.vt & VT_ARRAY) || value.vt == VT_ERROR)
      throw RunTimeError(kErrorTypeMismatch, kExplanation);
    return {nullptr, HandleOf(value)};
  }
  if (!value.punkVal) return {};
  const Members form(ComPtr<IDispatch>::From(value.punkVal).Get());
  if (!form.Has("hWnd")) throw RunTimeError(kErrorTypeMismatch, kExplanation);
  return {nullptr, HandleOf(form.Get("hWnd"))};
}

}  // namespace orx::com
