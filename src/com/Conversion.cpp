#include "com/Conversion.h"

#include <algorithm>

#include "com/LateBound.h"

namespace orx::com {
namespace {

bool IsNothing(const VARIANT& value) {
  return value.vt == VT_EMPTY || value.vt == VT_NULL;
}

/// No object is said in many ways: Nothing, Empty, Null, and 0 by those who have none of these.
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

/// Puts a value of exactly the element's type into an array.
HRESULT PutElement(SAFEARRAY* array, LONG index, const Variant& value) {
  const bool isPointer = value.vt == VT_BSTR || value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN;
  void* const place = isPointer ? static_cast<void*>(value.bstrVal) : const_cast<LONG*>(&value.lVal);
  return SafeArrayPutElement(array, &index, place);
}

/// Owns an array until it is given away in a variant.
class Array {
 public:
  Array(VARTYPE element, LONG first, ULONG count) : mArray(SafeArrayCreateVector(element, first, count)) {}
  ~Array() {
    if (mArray) SafeArrayDestroy(mArray);
  }
  Array(const Array&) = delete;
  Array& operator=(const Array&) = delete;

  SAFEARRAY* Get() const { return mArray; }
  void MoveTo(VARTYPE element, Variant& to) {
    VariantClear(&to);
    to.vt = static_cast<VARTYPE>(VT_ARRAY | element);
    to.parray = std::exchange(mArray, nullptr);
  }

 private:
  SAFEARRAY* mArray;
};

struct Bounds {
  LONG First = 0;
  ULONG Count = 0;
};

HRESULT BoundsOf(SAFEARRAY* array, Bounds& bounds) {
  bounds = {};
  if (!array) return S_OK;
  if (SafeArrayGetDim(array) != 1) return DISP_E_TYPEMISMATCH;
  LONG last = 0;
  HRESULT result = SafeArrayGetLBound(array, 1, &bounds.First);
  if (SUCCEEDED(result)) result = SafeArrayGetUBound(array, 1, &last);
  if (SUCCEEDED(result)) bounds.Count = static_cast<ULONG>(last - bounds.First + 1);
  return result;
}

HRESULT GetElement(SAFEARRAY* array, VARTYPE element, LONG index, Variant& value) {
  VariantClear(&value);
  if (element == VT_VARIANT) return SafeArrayGetElement(array, &index, static_cast<VARIANT*>(&value));
  const HRESULT result = SafeArrayGetElement(array, &index, &value.lVal);
  if (SUCCEEDED(result)) value.vt = element;
  return result;
}

HRESULT FromArray(SAFEARRAY* from, VARTYPE fromElement, VARTYPE element, LCID locale, Variant& to) {
  Bounds bounds;
  HRESULT result = BoundsOf(from, bounds);
  if (FAILED(result)) return result;
  Array made(element, bounds.First, bounds.Count);
  if (!made.Get()) return E_OUTOFMEMORY;
  for (LONG index = bounds.First; index < bounds.First + static_cast<LONG>(bounds.Count); ++index) {
    Variant value;
    Variant converted;
    result = GetElement(from, fromElement, index, value);
    if (SUCCEEDED(result)) result = ConvertValue(value, element, locale, converted);
    if (SUCCEEDED(result)) result = PutElement(made.Get(), index, converted);
    if (FAILED(result)) return result;
  }
  made.MoveTo(element, to);
  return S_OK;
}

/// The bytes of a plain value of that type inside a variant; 0 for all others.
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

/// As such objects may be sparse, any length costs the script nothing, but an array of it has to be made here.
constexpr std::int32_t kLongestScriptArray = 10'000'000;

/// The arrays of some script languages are objects with the members "length", "0", "1", ...
HRESULT FromScriptObject(IDispatch* from, VARTYPE element, LCID locale, Variant& to) {
  const LateBound object(from);
  if (!object.Has("length")) return DISP_E_TYPEMISMATCH;
  const std::int32_t count = object.GetLong("length");
  if (count < 0) return DISP_E_TYPEMISMATCH;
  if (count > kLongestScriptArray) return E_OUTOFMEMORY;
  Array made(element, 0, static_cast<ULONG>(count));
  if (!made.Get()) return E_OUTOFMEMORY;
  for (LONG index = 0; index < count; ++index) {
    const std::string name = std::to_string(index);
    Variant converted;
    // Elements that were never set are not there.
    const Variant value = object.Has(name) ? object.Get(name) : Variant();
    HRESULT result = ConvertValue(value, element, locale, converted);
    if (SUCCEEDED(result)) result = PutElement(made.Get(), index, converted);
    if (FAILED(result)) return result;
  }
  made.MoveTo(element, to);
  return S_OK;
}

}  // namespace

VARIANT* ValueBehind(VARIANT* given) {
  while (given && given->vt == (VT_BYREF | VT_VARIANT)) given = given->pvarVal;
  return given;
}

bool IsMissing(const VARIANT& given) {
  return given.vt == VT_ERROR && given.scode == DISP_E_PARAMNOTFOUND;
}

HRESULT ConvertValue(const VARIANT& from, VARTYPE type, LCID locale, Variant& to) {
  Variant value;
  const HRESULT copied = VariantCopyInd(&value, const_cast<VARIANT*>(&from));
  if (FAILED(copied)) return copied;
  VariantClear(&to);
  if (type == VT_VARIANT) {
    to = std::move(value);
    return S_OK;
  }
  if (type == VT_DISPATCH) return ConvertObject(value, to);
  // Null converts to nothing by the system's rules; here it is a value that was left empty.
  if (value.vt == VT_NULL) value.vt = VT_EMPTY;
  return VariantChangeTypeEx(&to, &value, locale, VARIANT_ALPHABOOL, type);
}

HRESULT ConvertArray(const VARIANT& from, VARTYPE element, LCID locale, Variant& to) {
  if (from.vt & VT_ARRAY) {
    SAFEARRAY* const array = from.vt & VT_BYREF ? *from.pparray : from.parray;
    return FromArray(array, static_cast<VARTYPE>(from.vt & VT_TYPEMASK), element, locale, to);
  }
  if (IsNothing(from)) return FromArray(nullptr, element, element, locale, to);
  if (from.vt == VT_DISPATCH && from.pdispVal) return FromScriptObject(from.pdispVal, element, locale, to);
  Variant converted;
  HRESULT result = ConvertValue(from, element, locale, converted);
  if (FAILED(result)) return result;
  Array made(element, 0, 1);
  if (!made.Get()) return E_OUTOFMEMORY;
  result = PutElement(made.Get(), 0, converted);
  if (SUCCEEDED(result)) made.MoveTo(element, to);
  return result;
}

HRESULT StoreBehind(const VARIANT& reference, Variant& value) {
  const std::size_t size = SizeOf(value.vt);
  if (reference.vt != (VT_BYREF | value.vt) || size == 0) return DISP_E_TYPEMISMATCH;
  auto* const there = static_cast<unsigned char*>(reference.byref);
  std::swap_ranges(there, there + size, reinterpret_cast<unsigned char*>(&value.llVal));
  return S_OK;
}

HRESULT ToScriptArray(const VARIANT& from, Variant& to) {
  if (!(from.vt & VT_ARRAY)) return DISP_E_TYPEMISMATCH;
  SAFEARRAY* const array = from.vt & VT_BYREF ? *from.pparray : from.parray;
  Bounds bounds;
  HRESULT result = BoundsOf(array, bounds);
  if (FAILED(result)) return result;
  Array made(VT_VARIANT, bounds.First, bounds.Count);
  if (!made.Get()) return E_OUTOFMEMORY;
  for (LONG index = bounds.First; index < bounds.First + static_cast<LONG>(bounds.Count); ++index) {
    Variant value;
    result = GetElement(array, static_cast<VARTYPE>(from.vt & VT_TYPEMASK), index, value);
    if (SUCCEEDED(result)) result = SafeArrayPutElement(made.Get(), &index, static_cast<VARIANT*>(&value));
    if (FAILED(result)) return result;
  }
  made.MoveTo(VT_VARIANT, to);
  return S_OK;
}

}  // namespace orx::com
