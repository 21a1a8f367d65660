#include "tests/com/support/ScriptObject.h"

#include <iterator>

namespace orx::com::test {
namespace {

HRESULT Raise(EXCEPINFO& error, std::int32_t number, const std::string& description) {
  error.bstrDescription = Bstr(description).Detach();
  error.bstrSource = Bstr("ScriptObject").Detach();
  error.scode = CodeOf(number);
  return DISP_E_EXCEPTION;
}

}  // namespace

ScriptObject::ScriptObject(std::map<std::string, Variant> fields, Naming naming)
    : mFields(std::move(fields)), mNaming(naming) {
}

ComPtr<ScriptObject> ScriptObject::ArrayOf(const std::vector<std::string>& elements) {
  std::map<std::string, Variant> fields;
  fields.emplace("length", Variant(static_cast<std::int32_t>(elements.size())));
  for (std::size_t i = 0; i < elements.size(); ++i) fields.emplace(std::to_string(i), Variant(elements[i].c_str()));
  return MakeCounted<ScriptObject>(std::move(fields));
}

void* ScriptObject::Find(REFIID iid) noexcept {
  if (IsEqualIID(iid, IID_IDispatch)) return static_cast<IDispatch*>(this);
  if (IsEqualIID(iid, __uuidof(IDispatchEx)) && mNaming == Naming::Plain) return nullptr;
  return Counted<IDispatchEx>::Find(iid);
}

DISPID ScriptObject::NumberOf(const std::string& name) const {
  const auto found = mFields.find(name);
  if (found == mFields.end()) return DISPID_UNKNOWN;
  return static_cast<DISPID>(std::distance(mFields.begin(), found)) + 1;
}

HRESULT ScriptObject::GetTypeInfoCount(UINT* count) noexcept {
  *count = 0;
  return S_OK;
}

HRESULT ScriptObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) noexcept {
  if (mNaming == Naming::ExtendedOnly) return E_NOTIMPL;
  try {
    if (Faults) Faults->Call("the number of " + Narrowed(names[0]));
  } catch (const RunTimeError&) {
    return E_FAIL;
  } catch (int) {
    return DISP_E_UNKNOWNNAME;
  }
  ids[0] = NumberOf(Narrowed(names[0]));
  return ids[0] == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT ScriptObject::GetDispID(BSTR name, DWORD, DISPID* id) noexcept {
  *id = NumberOf(TextOf(name));
  return *id == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT ScriptObject::Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                             EXCEPINFO* error, UINT*) noexcept {
  if (member < 1 || member > static_cast<DISPID>(mFields.size())) return DISP_E_MEMBERNOTFOUND;
  auto& [name, value] = *std::next(mFields.begin(), member - 1);
  try {
    if (name == Broken) throw RunTimeError(kErrorFileFormat, name + " is broken");
    const bool isRead = (flags & DISPATCH_PROPERTYGET) != 0;
    Variant none;
    none.vt = value.vt == VT_DISPATCH ? VT_DISPATCH : VT_NULL;
    if (Faults && !Faults->Answers(name) && isRead) return InvokeField(name, none, flags, *parameters, result);
    return InvokeField(name, value, flags, *parameters, result);
  } catch (const RunTimeError& failure) {
    return Raise(*error, failure.Number(), failure.what());
  } catch (int) {
    return DISP_E_MEMBERNOTFOUND;
  }
}

HRESULT ScriptObject::InvokeField(const std::string& name, Variant& value, WORD flags, DISPPARAMS& parameters,
                                  VARIANT* result) {
  if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
    Written.push_back(name);
    return VariantCopyInd(&value, &parameters.rgvarg[0]);
  }
  if (!(flags & DISPATCH_PROPERTYGET)) return DISP_E_MEMBERNOTFOUND;
  Read.push_back(name);
  return result ? VariantCopy(result, &value) : S_OK;
}

}  // namespace orx::com::test
