#include "com/LateBound.h"

#include <dispex.h>

#include <algorithm>
#include <vector>

#include "com/Conversion.h"
#include "com/Errors.h"
#include "hostobjects/RunTimeError.h"

namespace orx::com {
namespace {

std::vector<VARIANT> Numbers(std::initializer_list<std::int32_t> arguments) {
  std::vector<VARIANT> numbers;
  for (const std::int32_t argument : arguments) {
    Variant number(argument);
    numbers.push_back(number);
  }
  // The platform expects the last argument first.
  std::reverse(numbers.begin(), numbers.end());
  return numbers;
}

}  // namespace

DISPID LateBound::Find(const std::string& name) const {
  if (!mObject) return kNone;
  const auto known = mMembers.find(name);
  if (known != mMembers.end()) return known->second;
  std::wstring wide = Widened(name);
  LPOLESTR text = wide.data();
  DISPID member = kNone;
  const HRESULT result = mObject->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &member);
  // Some script objects implement only IDispatchEx.
  const auto extended = result == E_NOTIMPL ? mObject.As<IDispatchEx>() : ComPtr<IDispatchEx>();
  if (extended) {
    if (FAILED(extended->GetDispID(Bstr(name).Get(), fdexNameCaseInsensitive, &member))) member = kNone;
  } else if (FAILED(result)) {
    member = kNone;
  }
  mMembers[name] = member;
  return member;
}

bool LateBound::Has(const std::string& name) const {
  return Find(name) != kNone;
}

DISPID LateBound::Require(const std::string& name) const {
  const DISPID member = Find(name);
  if (member == kNone) throw RunTimeError(kErrorNoSuchMember, "The object has no member \"" + name + "\".");
  return member;
}

HRESULT LateBound::TryInvoke(DISPID member, WORD flags, DISPPARAMS& parameters, Variant* result,
                             std::string& description) const {
  ExceptionInfo error;
  UINT wrong = 0;
  const HRESULT code = mObject->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                                       result ? result->Out() : nullptr, &error, &wrong);
  if (code != DISP_E_EXCEPTION) return code;
  const HRESULT raised = error.Code();
  description = TextOf(error.bstrDescription);
  return raised;
}

Variant LateBound::Get(const std::string& name, std::initializer_list<std::int32_t> arguments) const {
  const DISPID member = Require(name);
  std::vector<VARIANT> given = Numbers(arguments);
  DISPPARAMS parameters = {given.data(), nullptr, static_cast<UINT>(given.size()), 0};
  Variant result;
  std::string description;
  // Functions take both flags together; the fields of some script objects take only the one for properties.
  HRESULT code = TryInvoke(member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, parameters, &result, description);
  if (FAILED(code) && description.empty()) {
    std::string second;
    const HRESULT again = TryInvoke(member, DISPATCH_PROPERTYGET, parameters, &result, second);
    if (SUCCEEDED(again) || !second.empty()) {
      code = again;
      description = second;
    }
  }
  if (FAILED(code) && !description.empty()) ThrowError(code, description);
  Check(code, name);
  return result;
}

Variant LateBound::Converted(const Variant& value, VARTYPE type, const std::string& name) const {
  Variant converted;
  Check(ConvertValue(value, type, LOCALE_USER_DEFAULT, converted), name);
  return converted;
}

std::int32_t LateBound::GetLong(const std::string& name, std::initializer_list<std::int32_t> arguments) const {
  return Converted(Get(name, arguments), VT_I4, name).lVal;
}

double LateBound::GetDouble(const std::string& name) const {
  return Converted(Get(name), VT_R8, name).dblVal;
}

bool LateBound::GetBool(const std::string& name) const {
  return Converted(Get(name), VT_BOOL, name).boolVal != VARIANT_FALSE;
}

std::string LateBound::GetText(const std::string& name, std::initializer_list<std::int32_t> arguments) const {
  return TextOf(Converted(Get(name, arguments), VT_BSTR, name).bstrVal);
}

ComPtr<IDispatch> LateBound::GetObject(const std::string& name, std::initializer_list<std::int32_t> arguments) const {
  return ComPtr<IDispatch>(Converted(Get(name, arguments), VT_DISPATCH, name).pdispVal);
}

ComPtr<IDispatch> LateBound::RequireObject(const std::string& name) const {
  ComPtr<IDispatch> object = GetObject(name);
  if (!object) throw RunTimeError(kErrorNotLoaded, name + " is Nothing.");
  return object;
}

void LateBound::Put(const std::string& name, Variant value) const {
  const DISPID member = Require(name);
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS parameters = {&value, &put, 1, 1};
  std::string description;
  const bool isObject = value.vt == VT_DISPATCH;
  HRESULT code =
      TryInvoke(member, isObject ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT, parameters, nullptr, description);
  // Fields of script objects can be set in one way only, whatever the value.
  if (FAILED(code) && isObject && description.empty())
    code = TryInvoke(member, DISPATCH_PROPERTYPUT, parameters, nullptr, description);
  if (FAILED(code) && !description.empty()) ThrowError(code, description);
  Check(code, name);
}

Variant LateBound::Call(const std::string& name, VARIANT* arguments, UINT count) const {
  const DISPID member = Require(name);
  // The caller keeps ownership of the arguments.
  std::vector<VARIANT> reversed(arguments, arguments + count);
  std::reverse(reversed.begin(), reversed.end());
  DISPPARAMS parameters = {reversed.data(), nullptr, count, 0};
  Variant result;
  std::string description;
  HRESULT code = TryInvoke(member, DISPATCH_METHOD, parameters, &result, description);
  // Some languages expect functions to be called with both flags. Nothing has run when they report this.
  if (code == DISP_E_MEMBERNOTFOUND)
    code = TryInvoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, parameters, &result, description);
  if (FAILED(code) && !description.empty()) ThrowError(code, description);
  Check(code, name);
  return result;
}

}  // namespace orx::com
