// One call by name, as script hosts make it.
#pragma once

#include <list>
#include <string>
#include <vector>

#include "com/Handles.h"

namespace orx::com::test {

class ScriptCall {
 public:
  ScriptCall(IDispatch* object, const char* member) : mObject(object), mMember(member) {}

  /// Arguments in their order: a value, a variable of a script (a variant by reference), one left out, or anything lent
  /// for the call.
  ScriptCall& Value(Variant value);
  ScriptCall& Variable(VARIANT& variable);
  ScriptCall& Missing();
  ScriptCall& Lent(const VARIANT& argument);
  /// Name := value. After the others.
  ScriptCall& Named(const char* name, Variant value);

  HRESULT Call(WORD flags = DISPATCH_METHOD | DISPATCH_PROPERTYGET, LCID locale = LOCALE_INVARIANT);
  /// Sets a property: the last argument is the value.
  HRESULT Put(WORD flags = DISPATCH_PROPERTYPUT);

  Variant Result;
  /// The error's description and code when the member itself failed.
  std::string Description;
  std::string Source;
  HRESULT Code = S_OK;
  /// The argument that does not fit, counted from the last one.
  UINT WrongArgument = 99;

 private:
  HRESULT Invoke(WORD flags, LCID locale, std::vector<DISPID> named);

  IDispatch* mObject;
  std::string mMember;
  std::vector<std::wstring> mNames;
  std::list<Variant> mOwned;
  // In the order of the call; named ones at the end.
  std::vector<VARIANT> mArguments;
};

/// A variant that refers to a typed variable: VT_BYREF | type.
template <class Type>
VARIANT ReferenceTo(VARTYPE type, Type& variable) {
  VARIANT reference;
  VariantInit(&reference);
  reference.vt = static_cast<VARTYPE>(VT_BYREF | type);
  reference.byref = &variable;
  return reference;
}

}  // namespace orx::com::test
