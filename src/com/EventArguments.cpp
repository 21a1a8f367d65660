#include "com/EventArguments.h"

#include "com/Conversion.h"
#include "com/Errors.h"

namespace orx::com {
namespace {

Variant Converted(VARIANT& value, VARTYPE type) {
  Variant converted;
  Check(VariantChangeType(&converted, &value, 0, type), "The argument of an event has the wrong type");
  return converted;
}

}  // namespace

EventArguments::EventArguments(const DISPPARAMS& given, UINT needed) : mGiven(given) {
  if (given.cArgs < needed) throw RunTimeError(DISP_E_BADPARAMCOUNT, "An event has too few arguments.");
}

Variant EventArguments::Read(UINT position, VARTYPE type) const {
  Variant plain;
  Check(CopyBehind(*ValueBehind(&At(position)), plain), "The argument of an event cannot be read");
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

ComPtr<IDispatch> EventArguments::Object(UINT position) const {
  Variant plain;
  Check(CopyBehind(*ValueBehind(&At(position)), plain), "The argument of an event cannot be read");
  Variant object;
  Check(ConvertValue(plain, VT_DISPATCH, LOCALE_USER_DEFAULT, object), "The argument of an event has the wrong type");
  return ComPtr<IDispatch>(object.pdispVal);
}

void EventArguments::Answer(UINT position, Variant value) const {
  VARIANTARG* const given = &At(position);
  VARIANTARG* const target = ValueBehind(given);
  if (target->vt & VT_BYREF) {
    Variant converted = Converted(value, static_cast<VARTYPE>(target->vt & ~VT_BYREF));
    return Check(StoreBehind(*target, converted), "The argument of an event has the wrong type");
  }
  if (target != given) value.SwapWith(*target);
}

}  // namespace orx::com
