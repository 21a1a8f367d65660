#include "com/Conversion.h"

#include <algorithm>

#include "com/Members.h"
#include "com/SafeArray.h"

namespace orx::com {
namespace {

/// A reference that refers to nothing, which the system's functions would follow.
bool IsNowhere(const VARIANT& value) {
  return (value.vt & VT_BYREF) && !value.byref;
}

bool IsNothing(const VARIANT& value) {
  return value.vt == VT_EMPTY || value.vt == VT_NULL;
}

/// Hosts express "no object" as Nothing, Empty or Null, and as 0 where the language has none of these.
HRESULT ConvertObject(const VARIANT& value, Variant& to) {
  if (value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN) {
    to.vt = VT_DISPATCH;
    to.pdispVal = ComPtr<IDispatch>::From(value.punkVal).Detach();
    return value.punkVal && !to.pdispVal ? DISP_E_TYPEMISMATCH : S_OK;
  }
  Variant number;
  const bool isZero = !IsNothing(value) && value.vt != VT_BSTR &&
                      SUCCEEDED(VariantChangeType(&number, const_cast<VARIANT*>(&value), 0, VT_I4)) && number.lVal == 0;
  if (!IsNothing(value) && !isZero) return DISP_E_TYPEMISMATCH;
  to.vt = VT_DISPATCH;
  to.pdispVal = nullptr;
  return S_OK;
}

/// Makes an array; `give` returns the value of each element by its position, counted from 0.
template <class Give>
HRESULT MakeArray(VARTYPE element, const ArrayBounds& bounds, Variant& to, Give&& give) {
  SafeArray made(element, bounds);
  for (ULONG place = 0; place < bounds.Count; ++place) {
    Variant value;
    const HRESULT result = give(place, value);
    if (FAILED(result)) return result;
    made.Put(bounds.First + static_cast<LONG>(place), std::move(value));
  }
  to = made.MoveToVariant(element);
  return S_OK;
}

HRESULT MakeEmpty(VARTYPE element, Variant& to) {
  return MakeArray(element, {}, to, [](ULONG, Variant&) { return S_OK; });
}

/// Converts the elements of an array. VT_VARIANT takes all values as they are.
HRESULT FromArray(const VARIANT& from, VARTYPE element, LCID locale, Variant& to) {
  SAFEARRAY* const array = from.vt & VT_BYREF ? *from.pparray : from.parray;
  ArrayBounds bounds;
  const HRESULT result = BoundsOf(array, bounds);
  if (FAILED(result)) return result;
  const auto given = static_cast<VARTYPE>(from.vt & VT_TYPEMASK);
  // A record cannot be copied without its description.
  if (given == VT_RECORD) return DISP_E_TYPEMISMATCH;
  if (!array) return MakeEmpty(element, to);
  const ArrayElements elements(array);
  return MakeArray(element, bounds, to, [&](ULONG place, Variant& converted) {
    VARIANT reference = {};
    reference.vt = static_cast<VARTYPE>(VT_BYREF | given);
    reference.byref = elements.At(place);
    return ConvertValue(reference, element, locale, converted);
  });
}

/// The size in bytes of a plain value of that type inside a variant; 0 for other types.
std::size_t SizeOf(VARTYPE type) {
  switch (type) {
    case VT_I1:
    case VT_UI1:
      return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
      return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
      return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_DATE:
    case VT_CY:
      return 8;
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return sizeof(void*);
    default:
      return 0;
  }
}

/// Such an object may be sparse: any length costs the script nothing, but here an array of that length is allocated.
constexpr std::int32_t kLongestScriptArray = 10'000'000;

/// The arrays of some script languages are objects with the members "length", "0", "1", ...
HRESULT FromScriptObject(IDispatch* from, VARTYPE element, LCID locale, Variant& to) {
  const Members object(from);
  if (!object.Has("length")) return DISP_E_TYPEMISMATCH;
  const std::int32_t count = object.GetLong("length");
  if (count < 0) return DISP_E_TYPEMISMATCH;
  if (count > kLongestScriptArray) return E_OUTOFMEMORY;
  return MakeArray(element, {0, static_cast<ULONG>(count)}, to, [&](ULONG place, Variant& converted) {
    const std::string name = std::to_string(place);
    // Elements that were never set are not there.
    const Variant value = object.Has(name) ? object.Get(name) : Variant();
    return ConvertValue(value, element, locale, converted);
  });
}

}  // namespace

VARIANT* ValueBehind(VARIANT* given) {
  // A variable can refer to itself; nobody nests them deeper than this.
  constexpr int kDeepest = 16;
  for (int depth = 0; given && given->vt == (VT_BYREF | VT_VARIANT) && given->pvarVal && depth < kDeepest; ++depth)
    given = given->pvarVal;
  return given;
}

HRESULT CopyBehind(const VARIANT& given, Variant& to) {
  if (IsNowhere(given)) return DISP_E_TYPEMISMATCH;
  return VariantCopyInd(&to, const_cast<VARIANT*>(&given));
}

bool IsMissing(const VARIANT& given) {
  if (given.vt == (VT_BYREF | VT_ERROR)) return given.pscode && *given.pscode == DISP_E_PARAMNOTFOUND;
  return given.vt == VT_ERROR && given.scode == DISP_E_PARAMNOTFOUND;
}

HRESULT ConvertValue(const VARIANT& from, VARTYPE type, LCID locale, Variant& to) {
  Variant value;
  const HRESULT copied = CopyBehind(from, value);
  if (FAILED(copied)) return copied;
  if (type == VT_VARIANT) {
    to = std::move(value);
    return S_OK;
  }
  to.Clear();
  if (type == VT_DISPATCH) return ConvertObject(value, to);
  // The system has no conversion for Null; here it is a value that was left empty.
  if (value.vt == VT_NULL) value.vt = VT_EMPTY;
  return VariantChangeTypeEx(&to, &value, locale, VARIANT_ALPHABOOL, type);
}

HRESULT ConvertArray(const VARIANT& from, VARTYPE element, LCID locale, Variant& to) {
  if (IsNowhere(from)) return DISP_E_TYPEMISMATCH;
  if (from.vt & VT_ARRAY) return FromArray(from, element, locale, to);
  if (IsNothing(from)) return MakeEmpty(element, to);
  if (from.vt == VT_DISPATCH && from.pdispVal) return FromScriptObject(from.pdispVal, element, locale, to);
  return MakeArray(element, {0, 1}, to,
                   [&](ULONG, Variant& converted) { return ConvertValue(from, element, locale, converted); });
}

HRESULT StoreBehind(const VARIANT& reference, Variant& value) {
  const std::size_t size = SizeOf(value.vt);
  if (reference.vt != (VT_BYREF | value.vt) || size == 0 || IsNowhere(reference)) return DISP_E_TYPEMISMATCH;
  auto* const there = static_cast<unsigned char*>(reference.byref);
  std::swap_ranges(there, there + size, reinterpret_cast<unsigned char*>(&value.llVal));
  return S_OK;
}

HRESULT ToScriptArray(const VARIANT& from, Variant& to) {
  return from.vt & VT_ARRAY ? FromArray(from, VT_VARIANT, LOCALE_INVARIANT, to) : DISP_E_TYPEMISMATCH;
}

}  // namespace orx::com
