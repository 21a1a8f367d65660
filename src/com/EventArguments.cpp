#include "com/EventArguments.h"

#include <cstring>
#include <utility>

#include "com/Errors.h"

namespace orx::com {
namespace {

constexpr VARTYPE kVariantReference = VT_BYREF | VT_VARIANT;

std::size_t SizeOfScalar(VARTYPE type) {
  switch (type) {
    case VT_I1:
    case VT_UI1:
      return 1;
    case VT_BOOL:
    case VT_I2:
    case VT_UI2:
      return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
      return 4;
    case VT_R8:
    case VT_DATE:
    case VT_CY:
    case VT_I8:
    case VT_UI8:
      return 8;
    default:
      return 0;
  }
}

Variant Converted(VARIANT& value, VARTYPE type) {
  Variant converted;
  Check(VariantChangeType(&converted, &value, 0, type), "The argument of an event has the wrong type");
  return converted;
}

void WriteTyped(VARIANTARG& target, VARIANT& value) {
  const VARTYPE type = target.vt & ~VT_BYREF;
  Variant converted = Converted(value, type);
  if (type == VT_BSTR) {
    std::swap(*target.pbstrVal, converted.bstrVal);
    return;
  }
  const std::size_t size = SizeOfScalar(type);
  if (size == 0) ThrowError(DISP_E_TYPEMISMATCH, "The argument of an event has the wrong type.");
  std::memcpy(target.byref, &converted.bVal, size);
}

}  // namespace

EventArguments::EventArguments(const DISPPARAMS& given, UINT needed) : mGiven(given) {
  if (given.cArgs < needed) ThrowError(DISP_E_BADPARAMCOUNT, "An event has too few arguments.");
}

Variant EventArguments::Read(UINT position, VARTYPE type) const {
  VARIANTARG* from = &At(position);
  while (from->vt == kVariantReference) from = from->pvarVal;
  Variant plain;
  Check(VariantCopyInd(&plain, from), "The argument of an event cannot be read");
  return Converted(plain, type);
}

std::string EventArguments::Text(UINT position) const {
  return TextOf(Read(position, VT_BSTR).bstrVal);
}

std::int32_t EventArguments::Whole(UINT position) const {
  return Read(position, VT_I4).lVal;
}

double EventArguments::Number(UINT position) const {
  return Read(position, VT_R8).dblVal;
}

bool EventArguments::Flag(UINT position) const {
  return Read(position, VT_BOOL).boolVal != VARIANT_FALSE;
}

void EventArguments::Answer(UINT position, Variant value) const {
  VARIANTARG* target = &At(position);
  bool isVariant = false;
  while (target->vt == kVariantReference) {
    target = target->pvarVal;
    isVariant = true;
  }
  if (target->vt & VT_BYREF) return WriteTyped(*target, value);
  if (isVariant) std::swap(*target, static_cast<VARIANT&>(value));
}

}  // namespace orx::com
