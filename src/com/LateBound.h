// Members of a host's object, reached by name. Objects of script languages have no other way, and the published
// interfaces are dual, so that this one way serves all.
#pragma once

#include <initializer_list>
#include <map>
#include <string>

#include "com/Handles.h"

namespace orx::com {

/// Keeps a counted reference. Names are looked up once each; letters of either case are the same where the object has
/// it so. What a member raises is thrown as RunTimeError with its number and description; a member that the object does
/// not have is one that names it.
class LateBound {
 public:
  /// `object` may be null: then it has no members.
  explicit LateBound(IDispatch* object) : mObject(object) {}

  IDispatch* Object() const { return mObject.Get(); }
  /// True when the object has a member of that name.
  bool Has(const std::string& name) const;

  /// Values of properties, converted. A member that gives something of another kind throws.
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

  /// Calls a method. Arguments stand in their order; one that travels by reference is a variant of VT_BYREF.
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
