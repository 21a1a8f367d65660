#include "com/Arguments.h"

#include "com/Conversion.h"
#include "com/SafeArray.h"
#include "com/TypeDescriptions.h"

namespace orx::com {
namespace {

VARTYPE UserType(ITypeInfo& info, HREFTYPE reference);

VARTYPE PlainType(ITypeInfo& info, const TYPEDESC& type) {
  switch (type.vt) {
    case VT_USERDEFINED:
      return UserType(info, type.hreftype);
    case VT_INT:
      return VT_I4;
    case VT_UINT:
      return VT_UI4;
    case VT_PTR:
      // A pointer to a described interface.
      return PlainType(info, *type.lptdesc);
    default:
      return type.vt;
  }
}

VARTYPE UserType(ITypeInfo& info, HREFTYPE reference) {
  ComPtr<ITypeInfo> described;
  if (FAILED(info.GetRefTypeInfo(reference, described.Out()))) return VT_I4;
  const TypeAttributes attributes = AttributesOf(*described.Get());
  if (!attributes) return VT_I4;
  switch (attributes->typekind) {
    case TKIND_ALIAS:
      return PlainType(*described.Get(), attributes->tdescAlias);
    case TKIND_DISPATCH:
    case TKIND_INTERFACE:
    case TKIND_COCLASS:
      return VT_DISPATCH;
    default:
      return VT_I4;
  }
}

bool IsInterface(ITypeInfo& info, const TYPEDESC& type) {
  return type.vt == VT_USERDEFINED && UserType(info, type.hreftype) == VT_DISPATCH;
}

/// True when elements of the type `to` hold every value of the type `from`.
bool Holds(VARTYPE to, VARTYPE from) {
  if (to == from || to == VT_VARIANT || to == VT_BSTR) return true;
  return from == VT_I4 && (to == VT_INT || to == VT_I8 || to == VT_R8 || to == VT_CY);
}

/// True when an array with such elements can be given to the caller's variable.
bool TakesArray(const VARIANT& origin, VARTYPE element) {
  if (!(origin.vt & VT_BYREF)) return !(origin.vt & VT_ARRAY) || !origin.parray || origin.parray->cLocks == 0;
  if (!(origin.vt & VT_ARRAY)) return false;
  return IsReplaceable(*origin.pparray) && Holds(static_cast<VARTYPE>(origin.vt & VT_TYPEMASK), element);
}

}  // namespace

Parameter ParameterOf(ITypeInfo& info, const ELEMDESC& description) {
  Parameter parameter;
  const PARAMDESC& notes = description.paramdesc;
  const TYPEDESC* type = &description.tdesc;
  if (type->vt == VT_PTR && !IsInterface(info, *type->lptdesc)) {
    parameter.IsByReference = true;
    type = type->lptdesc;
  }
  if (type->vt == VT_SAFEARRAY) {
    parameter.IsArray = true;
    type = type->lptdesc;
  }
  parameter.Type = PlainType(info, *type);
  parameter.IsOut = (notes.wParamFlags & (PARAMFLAG_FIN | PARAMFLAG_FOUT)) == PARAMFLAG_FOUT;
  parameter.IsOptional = (notes.wParamFlags & (PARAMFLAG_FOPT | PARAMFLAG_FHASDEFAULT)) != 0;
  if ((notes.wParamFlags & PARAMFLAG_FHASDEFAULT) && notes.pparamdescex)
    parameter.Default = &notes.pparamdescex->varDefaultValue;
  return parameter;
}

HRESULT Arguments::Fit(const std::vector<Parameter>& parameters, UINT& wrong) {
  if (mGiven.size() > parameters.size()) return DISP_E_BADPARAMCOUNT;
  mGiven.resize(parameters.size());
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    const HRESULT result = FitOne(parameters[i], mGiven[i]);
    wrong = static_cast<UINT>(i);
    if (FAILED(result)) return result;
  }
  return S_OK;
}

HRESULT Arguments::FitOne(const Parameter& parameter, VARIANT* given) {
  const bool isVariable = given && given->vt == (VT_BYREF | VT_VARIANT);
  VARIANT* const value = ValueBehind(given);
  if (parameter.Type == VT_VARIANT && !parameter.IsArray) return FitVariant(parameter, value);
  const auto exact = static_cast<VARTYPE>(VT_BYREF | (parameter.IsArray ? VT_ARRAY : 0) | parameter.Type);
  if (parameter.IsByReference && value && value->vt == exact) {
    mFitted.push_back(*value);
    return S_OK;
  }
  auto& temporary = *mTemporaries.emplace_back(std::make_unique<Temporary>());
  temporary.What = parameter;
  const bool isMissing = !value || IsMissing(*value);
  // A variable in which the caller hands on that it was given nothing keeps telling so.
  if (!isMissing && (isVariable || (value->vt & VT_BYREF))) temporary.Origin = value;
  HRESULT result = S_OK;
  if (isMissing) {
    result = FillMissing(parameter, temporary.Value);
  } else if (parameter.IsArray) {
    result = ConvertArray(parameter.IsOut ? Variant() : *value, parameter.Type, mLocale, temporary.Value);
  } else {
    result = ConvertValue(parameter.IsOut ? Variant() : *value, parameter.Type, mLocale, temporary.Value);
  }
  if (SUCCEEDED(result)) HandOver(temporary);
  return result;
}

HRESULT Arguments::FitVariant(const Parameter& parameter, VARIANT* given) {
  VARIANT fitted;
  VariantInit(&fitted);
  if (given && parameter.IsByReference) {
    fitted.vt = VT_BYREF | VT_VARIANT;
    fitted.pvarVal = given;
  } else if (given) {
    fitted = *given;
  } else {
    if (!parameter.IsOptional) return DISP_E_PARAMNOTOPTIONAL;
    auto& temporary = *mTemporaries.emplace_back(std::make_unique<Temporary>());
    temporary.What = parameter;
    temporary.Value.vt = VT_ERROR;
    temporary.Value.scode = DISP_E_PARAMNOTFOUND;
    fitted = temporary.Value;
    if (parameter.IsByReference) {
      fitted.vt = VT_BYREF | VT_VARIANT;
      fitted.pvarVal = &temporary.Value;
    }
  }
  mFitted.push_back(fitted);
  return S_OK;
}

HRESULT Arguments::FillMissing(const Parameter& parameter, Variant& value) const {
  if (!parameter.IsOptional) return DISP_E_PARAMNOTOPTIONAL;
  const Variant empty;
  const VARIANT& from = parameter.Default ? *parameter.Default : empty;
  if (parameter.IsArray) return ConvertArray(from, parameter.Type, mLocale, value);
  return ConvertValue(from, parameter.Type, mLocale, value);
}

void Arguments::HandOver(Temporary& temporary) {
  if (temporary.What.IsArray) {
    temporary.Handed = temporary.Value.parray;
    // A callee that would replace the array then refuses it before it does anything, as it does the caller's own.
    if (temporary.Origin && !TakesArray(*temporary.Origin, temporary.What.Type))
      temporary.Value.parray->fFeatures |= FADF_FIXEDSIZE;
  }
  VARIANT fitted = temporary.Value;
  if (temporary.What.IsByReference) {
    fitted.vt = static_cast<VARTYPE>(VT_BYREF | temporary.Value.vt);
    // All plain values start at the same place of a variant.
    fitted.byref = &temporary.Value.byref;
  }
  mFitted.push_back(fitted);
}

Arguments::Temporary::~Temporary() {
  // What marks the array for the callee must not keep it from being freed.
  if ((Value.vt & VT_ARRAY) && Value.parray) Value.parray->fFeatures &= static_cast<USHORT>(~FADF_FIXEDSIZE);
}

HRESULT Arguments::WriteBackArray(Temporary& temporary) {
  if (temporary.Value.parray == temporary.Handed) return S_OK;
  VARIANT& origin = *temporary.Origin;
  if (!TakesArray(origin, temporary.What.Type)) return DISP_E_ARRAYISLOCKED;
  Variant result;
  if (!(origin.vt & VT_BYREF)) {
    // Script hosts can read arrays of variants only.
    const HRESULT code = ToScriptArray(temporary.Value, result);
    if (SUCCEEDED(code)) result.SwapWith(origin);
    return code;
  }
  const HRESULT code = ConvertArray(temporary.Value, static_cast<VARTYPE>(origin.vt & VT_TYPEMASK), mLocale, result);
  if (SUCCEEDED(code)) std::swap(result.parray, *origin.pparray);
  return code;
}

HRESULT Arguments::WriteBack() {
  for (const std::unique_ptr<Temporary>& temporary : mTemporaries) {
    if (!temporary->Origin || !temporary->What.IsByReference) continue;
    VARIANT& origin = *temporary->Origin;
    HRESULT code = S_OK;
    if (temporary->What.IsArray) {
      code = WriteBackArray(*temporary);
    } else if (!(origin.vt & VT_BYREF)) {
      temporary->Value.SwapWith(origin);
    } else {
      Variant converted;
      code = ConvertValue(temporary->Value, static_cast<VARTYPE>(origin.vt & VT_TYPEMASK), mLocale, converted);
      if (SUCCEEDED(code)) code = StoreBehind(origin, converted);
    }
    if (FAILED(code)) return code;
  }
  return S_OK;
}

}  // namespace orx::com
