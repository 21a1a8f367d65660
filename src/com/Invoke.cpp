#include "com/Invoke.h"

#include <algorithm>
#include <vector>

#include "com/Arguments.h"
#include "com/TypeDescriptions.h"

namespace orx::com {
namespace {

/// The kinds of members that the flags may mean, in the order in which they are tried. Script hosts do not distinguish
/// methods from reading a property, nor setting a value from setting an object.
std::vector<INVOKEKIND> KindsFor(WORD flags) {
  if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
    if (flags & DISPATCH_PROPERTYPUTREF) return {INVOKE_PROPERTYPUTREF, INVOKE_PROPERTYPUT};
    return {INVOKE_PROPERTYPUT, INVOKE_PROPERTYPUTREF};
  }
  if (flags == DISPATCH_PROPERTYGET) return {INVOKE_PROPERTYGET};
  return {INVOKE_FUNC, INVOKE_PROPERTYGET};
}

/// Looks through all members: systems differ in whether a look-up by identifier counts inherited ones.
FunctionDescription FindMember(ITypeInfo& info, DISPID member, INVOKEKIND kind) {
  for (UINT index = 0;; ++index) {
    FunctionDescription found = FunctionOf(info, index);
    if (!found || (found->memid == member && found->invkind == kind)) return found;
  }
}

/// The given arguments in the order of the parameters.
HRESULT InOrder(const DISPPARAMS& given, std::size_t parameters, bool isPut, std::vector<VARIANT*>& ordered) {
  if (given.cNamedArgs > given.cArgs) return DISP_E_BADPARAMCOUNT;
  ordered.assign(std::max<std::size_t>(parameters, given.cArgs - given.cNamedArgs), nullptr);
  for (UINT i = 0; i < given.cNamedArgs; ++i) {
    const DISPID name = given.rgdispidNamedArgs[i];
    const std::size_t at = name == DISPID_PROPERTYPUT && isPut ? parameters - 1 : static_cast<std::size_t>(name);
    if (at >= parameters) return DISP_E_PARAMNOTFOUND;
    ordered[at] = &given.rgvarg[i];
  }
  // Arguments without names follow, the last one first.
  for (UINT i = given.cNamedArgs; i < given.cArgs; ++i) ordered[given.cArgs - 1 - i] = &given.rgvarg[i];
  return S_OK;
}

HRESULT CallMember(ITypeInfo& info, void* instance, const MemberCall& call, const FUNCDESC& member) {
  const bool isPut = (member.invkind & (INVOKE_PROPERTYPUT | INVOKE_PROPERTYPUTREF)) != 0;
  std::vector<Parameter> parameters;
  for (SHORT i = 0; i < member.cParams; ++i) parameters.push_back(ParameterOf(info, member.lprgelemdescParam[i]));
  std::vector<VARIANT*> ordered;
  HRESULT result = InOrder(*call.Parameters, parameters.size(), isPut, ordered);
  if (FAILED(result)) return result;
  Arguments arguments(std::move(ordered), call.Locale);
  UINT wrong = 0;
  result = arguments.Fit(parameters, wrong);
  if (FAILED(result)) {
    if (call.WrongArgument)
      *call.WrongArgument = call.Parameters->cArgs > wrong ? call.Parameters->cArgs - 1 - wrong : 0;
    return result;
  }
  std::vector<VARIANT> reversed = arguments.Fitted();
  std::reverse(reversed.begin(), reversed.end());
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS handed = {reversed.data(), isPut ? &put : nullptr, static_cast<UINT>(reversed.size()), isPut ? 1U : 0U};
  result = info.Invoke(instance, member.memid, static_cast<WORD>(member.invkind), &handed, call.Result, call.Error,
                       call.WrongArgument);
  return FAILED(result) ? result : arguments.WriteBack();
}

/// An index after a property that takes none is meant for the collection that the property returns.
HRESULT CallItem(ITypeInfo& info, void* instance, const MemberCall& call, const FUNCDESC& member) {
  Variant collection;
  DISPPARAMS none = {};
  HRESULT result = CallMember(info, instance,
                              {call.Member, call.Locale, call.Flags, &none, &collection, call.Error, nullptr}, member);
  if (FAILED(result)) return result;
  if (collection.vt != VT_DISPATCH || !collection.pdispVal) return DISP_E_BADPARAMCOUNT;
  return collection.pdispVal->Invoke(DISPID_VALUE, IID_NULL, call.Locale, call.Flags, call.Parameters, call.Result,
                                     call.Error, call.WrongArgument);
}

bool AsksForItem(const MemberCall& call, const FUNCDESC& member) {
  return member.invkind == INVOKE_PROPERTYGET && member.cParams == 0 && call.Parameters->cArgs > 0;
}

}  // namespace

HRESULT InvokeMember(ITypeInfo& info, void* instance, const MemberCall& call) {
  for (const INVOKEKIND kind : KindsFor(call.Flags))
    if (const FunctionDescription member = FindMember(info, call.Member, kind))
      return AsksForItem(call, *member) ? CallItem(info, instance, call, *member)
                                        : CallMember(info, instance, call, *member);
  return DISP_E_MEMBERNOTFOUND;
}

}  // namespace orx::com
