#include "com/ClassFactory.h"

#include "com/MapDialogs.h"
#include "com/ProgressDialog.h"

namespace orx::com {
namespace {

template <class Object>
class Factory final : public Counted<IClassFactory> {
 public:
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) noexcept override {
    if (object) *object = nullptr;
    if (object && outer) return CLASS_E_NOAGGREGATION;
    HRESULT found = S_OK;
    const HRESULT made = Guarded({"ClassFactory", IID_IClassFactory}, [&] {
      RequirePlaces({{"The object", object}});
      found = MakeCounted<Object>()->QueryInterface(iid, object);
    });
    return FAILED(made) ? made : found;
  }

  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override {
    ModuleUse::Lock(lock);
    return S_OK;
  }

 private:
  ModuleUse mUse;
};

template <class Object>
HRESULT GiveFactory(REFIID iid, void** factory) {
  return MakeCounted<Factory<Object>>()->QueryInterface(iid, factory);
}

}  // namespace

HRESULT GetClassFactory(REFCLSID classId, REFIID iid, void** factory) noexcept {
  if (!factory) return E_POINTER;
  *factory = nullptr;
  HRESULT result = CLASS_E_CLASSNOTAVAILABLE;
  const HRESULT made = Guarded("ClassFactory", [&] {
    if (IsEqualCLSID(classId, __uuidof(::CCommonMapDialogs))) result = GiveFactory<MapDialogs>(iid, factory);
    if (IsEqualCLSID(classId, __uuidof(::CCommonProgressDialog))) result = GiveFactory<ProgressDialog>(iid, factory);
  });
  return FAILED(made) ? made : result;
}

}  // namespace orx::com
