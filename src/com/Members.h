// Calls members of a host's object, named as in the type library: through the slots of a published interface where the
// object has it, else by name, which is the only way of script languages.
#pragma once

#include <initializer_list>
#include <map>
#include <string>

#include "com/Errors.h"
#include "com/Handles.h"

namespace orx::com {

/// Holds a reference. Each name is looked up once; whether case matters is up to the object. An error that a member
/// raises is thrown as RunTimeError with its number and description, and so is a missing member (kErrorNoSuchMember).
class Members {
 public:
  /// The members by name alone. A null `object` has none.
  explicit Members(IDispatch* object = nullptr) : mObject(object) {}
  /// The members of a published interface through its slots, so that the object's own IDispatch is not asked for
  /// anything; by name when the object lacks the interface.
  template <class Published>
  static Members Of(IDispatch* object) {
    return {object, __uuidof(Published)};
  }

  explicit operator bool() const { return static_cast<bool>(mObject); }
  /// What tells the object from all others while it lives.
  ComPtr<IUnknown> Identity() const { return mObject.As<IUnknown>(); }
  /// True when the object has the published interface that was asked for.
  bool IsPublished() const { return static_cast<bool>(mDescription); }
  /// True when the object has a member of that name.
  bool Has(const std::string& name) const;

  /// The values of properties, converted. Throw RunTimeError when a value has no conversion.
  Variant Get(const std::string& name, std::initializer_list<std::int32_t> arguments = {}) const;
  std::int32_t GetLong(const std::string& name, std::initializer_list<std::int32_t> arguments = {}) const;
  double GetDouble(const std::string& name) const;
  bool GetBool(const std::string& name) const;
  std::string GetText(const std::string& name, std::initializer_list<std::int32_t> arguments = {}) const;
  /// Null for Nothing.
  ComPtr<IDispatch> GetObject(const std::string& name, std::initializer_list<std::int32_t> arguments = {}) const;
  /// Throws RunTimeError (kErrorNotLoaded) for Nothing.
  ComPtr<IDispatch> RequireObject(const std::string& name) const;

  /// Sets a property; objects by reference.
  void Put(const std::string& name, Variant value) const;
  template <class Value>
  void Put(const std::string& name, const Value& value) const {
    Put(name, Variant(value));
  }

  /// Calls a method with arguments in their order. To pass one by reference, make it a variant of VT_BYREF.
  Variant Call(const std::string& name, VARIANT* arguments = nullptr, UINT count = 0) const;
  Variant Call(const std::string& name, Variant argument) const { return Call(name, &argument, 1); }

 private:
  Members(IDispatch* object, const IID& published);
  static constexpr DISPID kNone = DISPID_UNKNOWN;
  DISPID Find(const std::string& name) const;
  DISPID LookUp(const std::string& name) const;
  DISPID Require(const std::string& name) const;
  HRESULT Invoke(DISPID member, WORD flags, DISPPARAMS& parameters, VARIANT* result, EXCEPINFO& error) const;
  HRESULT TryInvoke(DISPID member, WORD flags, DISPPARAMS& parameters, Variant* result, ErrorTexts& raised) const;
  Variant Converted(const Variant& value, VARTYPE type, const std::string& name) const;

  ComPtr<IDispatch> mObject;
  /// The type library's description of the interface that mObject points to; null for calls by name.
  ComPtr<ITypeInfo> mDescription;
  mutable std::map<std::string, DISPID> mMembers;
};

}  // namespace orx::com
