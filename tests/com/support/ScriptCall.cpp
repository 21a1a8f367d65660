#include "tests/com/support/ScriptCall.h"

#include <algorithm>

namespace orx::com::test {

ScriptCall& ScriptCall::Value(Variant value) {
  return Lent(mOwned.emplace_back(std::move(value)));
}

ScriptCall& ScriptCall::Variable(VARIANT& variable) {
  return Lent(ReferenceTo(VT_VARIANT, variable));
}

ScriptCall& ScriptCall::Missing() {
  VARIANT missing;
  VariantInit(&missing);
  missing.vt = VT_ERROR;
  missing.scode = DISP_E_PARAMNOTFOUND;
  return Lent(missing);
}

ScriptCall& ScriptCall::Lent(const VARIANT& argument) {
  mArguments.push_back(argument);
  return *this;
}

ScriptCall& ScriptCall::Named(const char* name, Variant value) {
  mNames.push_back(Widened(name));
  return Value(std::move(value));
}

HRESULT ScriptCall::Call(WORD flags, LCID locale) {
  std::vector<std::wstring> texts = mNames;
  texts.insert(texts.begin(), Widened(mMember));
  std::vector<LPOLESTR> names;
  for (std::wstring& text : texts) names.push_back(text.data());
  std::vector<DISPID> numbers(names.size());
  const HRESULT found =
      mObject->GetIDsOfNames(IID_NULL, names.data(), static_cast<UINT>(names.size()), locale, numbers.data());
  return FAILED(found) ? found : Invoke(flags, locale, std::move(numbers));
}

HRESULT ScriptCall::Put(WORD flags) {
  std::wstring name = Widened(mMember);
  LPOLESTR names[] = {name.data()};
  DISPID member = 0;
  const HRESULT found = mObject->GetIDsOfNames(IID_NULL, names, 1, LOCALE_INVARIANT, &member);
  return FAILED(found) ? found : Invoke(flags, LOCALE_INVARIANT, {member, DISPID_PROPERTYPUT});
}

HRESULT ScriptCall::Invoke(WORD flags, LCID locale, std::vector<DISPID> named) {
  const DISPID member = named.front();
  named.erase(named.begin());
  std::vector<VARIANT> reversed = mArguments;
  std::ranges::reverse(reversed);
  std::ranges::reverse(named);
  DISPPARAMS parameters = {reversed.data(), named.data(), static_cast<UINT>(reversed.size()),
                           static_cast<UINT>(named.size())};
  ExceptionInfo error;
  const HRESULT result =
      mObject->Invoke(member, IID_NULL, locale, flags, &parameters, Result.Out(), &error, &WrongArgument);
  Description = TextOf(error.bstrDescription);
  Source = TextOf(error.bstrSource);
  Code = error.scode;
  return result;
}

}  // namespace orx::com::test
