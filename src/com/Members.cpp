#include "com/Members.h"

#include <dispex.h>

#include <algorithm>
#include <vector>

#include "com/Conversion.h"
#include "com/Invoke.h"
#include "com/TypeLibrary.h"

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

Members::Members(IDispatch* object, const IID& published) : mObject(ComPtr<IDispatch>::From(object, published)) {
  if (mObject)
    mDescription = TypeInfoOf(published);
  else
    mObject = ComPtr<IDispatch>(object);
}

DISPID Members::LookUp(const std::string& name) const {
  std::wstring wide = Widened(name);
  LPOLESTR text = wide.data();
  DISPID member = kNone;
  const HRESULT result = mDescription ? mDescription->GetIDsOfNames(&text, 1, &member)
                                      : mObject->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &member);
  if (SUCCEEDED(result)) return member;
  // Some script objects implement only IDispatchEx.
  const auto extended = result == E_NOTIMPL ? mObject.As<IDispatchEx>() : ComPtr<IDispatchEx>();
  const bool isFound = extended && SUCCEEDED(extended->GetDispID(Bstr(name).Get(), fdexNameCaseInsensitive, &member));
  return isFound ? member : kNone;
}

DISPID Members::Find(const std::string& name) const {
  if (!mObject) return kNone;
  const auto known = mMembers.find(name);
  if (known != mMembers.end()) return known->second;
  return mMembers[name] = LookUp(name);
}

bool Members::Has(const std::string& name) const {
  return Find(name) != kNone;
}

DISPID Members::Require(const std::string& name) const {
  const DISPID member = Find(name);
  if (member == kNone) throw RunTimeError(kErrorNoSuchMember, "The object has no member \"" + name + "\".");
  return member;
}

HRESULT Members::Invoke(DISPID member, WORD flags, DISPPARAMS& parameters, VARIANT* result, EXCEPINFO& error) const {
  // What an earlier call has left is no description of an error of this one.
  SetErrorInfo(0, nullptr);
  UINT wrong = 0;
  if (mDescription)
    // Methods may have variables for results, which have to be made fit for their parameters.
    return flags == DISPATCH_METHOD
               ? InvokeMember(*mDescription.Get(), mObject.Get(),
                              {member, LOCALE_USER_DEFAULT, flags, &parameters, result, &error, &wrong})
               : mDescription->Invoke(mObject.Get(), member, flags, &parameters, result, &error, &wrong);
  return mObject->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result, &error, &wrong);
}

HRESULT Members::TryInvoke(DISPID member, WORD flags, DISPPARAMS& parameters, Variant* result,
                           ErrorTexts& raised) const {
  ExceptionInfo error;
  const HRESULT code = Invoke(member, flags, parameters, result ? result->Out() : nullptr, error);
  if (code != DISP_E_EXCEPTION) return code;
  const HRESULT number = error.Code();
  raised = {TextOf(error.bstrDescription), TextOf(error.bstrSource)};
  return number;
}

Variant Members::Get(const std::string& name, std::initializer_list<std::int32_t> arguments) const {
  const DISPID member = Require(name);
  std::vector<VARIANT> given = Numbers(arguments);
  DISPPARAMS parameters = {given.data(), nullptr, static_cast<UINT>(given.size()), 0};
  Variant result;
  ErrorTexts raised;
  // Functions take both flags together; the fields of some script objects take only the one for properties.
  HRESULT code = TryInvoke(member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, parameters, &result, raised);
  if (FAILED(code) && raised.Description.empty() && !mDescription) {
    ErrorTexts second;
    const HRESULT again = TryInvoke(member, DISPATCH_PROPERTYGET, parameters, &result, second);
    if (SUCCEEDED(again) || !second.Description.empty()) {
      code = again;
      raised = second;
    }
  }
  Check(code, name, raised);
  return result;
}

Variant Members::Converted(const Variant& value, VARTYPE type, const std::string& name) const {
  Variant converted;
  Check(ConvertValue(value, type, LOCALE_USER_DEFAULT, converted), name);
  return converted;
}

std::int32_t Members::GetLong(const std::string& name, std::initializer_list<std::int32_t> arguments) const {
  return Converted(Get(name, arguments), VT_I4, name).lVal;
}

double Members::GetDouble(const std::string& name) const {
  return Converted(Get(name), VT_R8, name).dblVal;
}

bool Members::GetBool(const std::string& name) const {
  return Converted(Get(name), VT_BOOL, name).boolVal != VARIANT_FALSE;
}

std::string Members::GetText(const std::string& name, std::initializer_list<std::int32_t> arguments) const {
  return TextOf(Converted(Get(name, arguments), VT_BSTR, name).bstrVal);
}

ComPtr<IDispatch> Members::GetObject(const std::string& name, std::initializer_list<std::int32_t> arguments) const {
  return ComPtr<IDispatch>(Converted(Get(name, arguments), VT_DISPATCH, name).pdispVal);
}

ComPtr<IDispatch> Members::RequireObject(const std::string& name) const {
  ComPtr<IDispatch> object = GetObject(name);
  if (!object) throw RunTimeError(kErrorNotLoaded, name + " is Nothing.");
  return object;
}

void Members::Put(const std::string& name, Variant value) const {
  const DISPID member = Require(name);
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS parameters = {&value, &put, 1, 1};
  ErrorTexts raised;
  const bool isObject = value.vt == VT_DISPATCH;
  HRESULT code =
      TryInvoke(member, isObject ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT, parameters, nullptr, raised);
  // Fields of script objects can be set in one way only, whatever the value.
  if (FAILED(code) && isObject && raised.Description.empty() && !mDescription)
    code = TryInvoke(member, DISPATCH_PROPERTYPUT, parameters, nullptr, raised);
  Check(code, name, raised);
}

Variant Members::Call(const std::string& name, VARIANT* arguments, UINT count) const {
  const DISPID member = Require(name);
  // The caller keeps ownership of the arguments.
  std::vector<VARIANT> reversed(arguments, arguments + count);
  std::reverse(reversed.begin(), reversed.end());
  DISPPARAMS parameters = {reversed.data(), nullptr, count, 0};
  Variant result;
  ErrorTexts raised;
  HRESULT code = TryInvoke(member, DISPATCH_METHOD, parameters, &result, raised);
  // Some languages expect functions to be called with both flags. Nothing has run when they report this.
  if (code == DISP_E_MEMBERNOTFOUND)
    code = TryInvoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, parameters, &result, raised);
  Check(code, name, raised);
  return result;
}

}  // namespace orx::com
