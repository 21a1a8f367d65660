// Objects as script languages make them: members by name alone, each language in its own manner.
#pragma once

#include <dispex.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "com/Counted.h"
#include "hostobjects/RunTimeError.h"
#include "tests/support/Faults.h"

namespace orx::com::test {

/// How an object tells the numbers of its members.
enum class Naming {
  Plain,
  /// GetIDsOfNames is not there; names are asked by IDispatchEx.
  ExtendedOnly
};

/// An object with fields, which keep the type of what is put into them. Letters of either case are different, as in the
/// stricter languages.
class ScriptObject final : public Counted<IDispatchEx> {
 public:
  explicit ScriptObject(std::map<std::string, Variant> fields = {}, Naming naming = Naming::Plain);

  /// An array as the languages without real ones have it: "length", "0", "1", ...
  static ComPtr<ScriptObject> ArrayOf(const std::vector<std::string>& elements);

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                   EXCEPINFO* error, UINT*) noexcept override;
  HRESULT STDMETHODCALLTYPE GetDispID(BSTR name, DWORD, DISPID* id) noexcept override;
  HRESULT STDMETHODCALLTYPE InvokeEx(DISPID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     IServiceProvider*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE DeleteMemberByName(BSTR, DWORD) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeleteMemberByDispID(DISPID) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMemberProperties(DISPID, DWORD, DWORD*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMemberName(DISPID, BSTR*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNextDispID(DWORD, DISPID, DISPID*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNameSpaceParent(IUnknown**) noexcept override { return E_NOTIMPL; }

  Variant& Field(const std::string& name) { return mFields.at(name); }

  /// Names of the fields that were read and written, in order.
  std::vector<std::string> Read;
  std::vector<std::string> Written;
  /// The field that raises kErrorFileFormat with the description "<field> is broken" whenever it is touched.
  std::string Broken;
  /// Asked in every call, unless null: an error is raised with its description, a number is a bare error code, and null
  /// gives Nothing for an object and Null for any other value.
  orx::test::FaultPlan* Faults = nullptr;

 protected:
  void* Find(REFIID iid) noexcept override;

 private:
  DISPID NumberOf(const std::string& name) const;
  HRESULT InvokeField(const std::string& name, Variant& value, WORD flags, DISPPARAMS& parameters, VARIANT* result);

  std::map<std::string, Variant> mFields;
  Naming mNaming;
};

/// An object without members by name or number.
class PlainObject final : public Counted<IUnknown> {};

/// The error code by which hosts know a run-time error.
constexpr HRESULT CodeOf(std::int32_t number) {
  constexpr std::uint32_t kRunTimeErrors = 0x800A0000U;
  const std::uint32_t code = kRunTimeErrors + static_cast<std::uint32_t>(number);
  return static_cast<HRESULT>(code);
}

/// The number of references of an object.
template <class Object>
ULONG ReferencesOf(Object* object) {
  object->AddRef();
  return object->Release();
}

}  // namespace orx::com::test
