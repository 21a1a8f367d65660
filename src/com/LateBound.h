// Calls members of a host's object by name. Objects of script languages have no other way, and since the published
// interfaces are dual this way serves all hosts.
#pragma once

#include <initializer_list>
#include <map>
#include <string>

#include "com/Handles.h"

namespace orx::com {

/// Holds a reference. Each name is looked up once; whether case matters is up to the object. An error that a member
/// raises is thrown as RunTimeError with its number and description, and so is a missing member (kErrorNoSuchMember).
class LateBound {
 public:
  /// A null `object` has no members.
  explicit LateBound(IDispatch* object) : mObject(object) {}

  IDispatch* Object() const { return mObject.Get(); }
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
  static constexpr DISPID kNone = DISPID_UNKNOWN;
  DISPID Find(const std::string& name) const;
  DISPID Require(const std::string& name) const;
  HRESULT TryInvoke(DISPID member, WORD flags, DISPPARAMS& parameters, Variant* result, std::string& description) const;
  Variant Converted(const Variant& value, VARTYPE type, const std::string& name) const;

  ComPtr<IDispatch> mObject;
  mutable std::map<std::string, DISPID> mMembers;
};

}  // namespace orx::com
