#include "tests/com/pagecontrols/TestRegistration.h"

#include "com/Errors.h"

namespace orx::test {

// {5D0B0A6E-54B8-4B33-9C2C-0F3C36C9A7D1}
const CLSID kTestPageControl = {0x5d0b0a6e, 0x54b8, 0x4b33, {0x9c, 0x2c, 0x0f, 0x3c, 0x36, 0xc9, 0xa7, 0xd1}};

namespace {

class Factory final : public com::Counted<IClassFactory> {
 public:
  explicit Factory(PageControlState& state) : mState(state) {}

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) noexcept override {
    *object = nullptr;
    if (outer) return CLASS_E_NOAGGREGATION;
    return com::MakeCounted<TestPageControl>(mState)->QueryInterface(iid, object);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) noexcept override { return S_OK; }

 private:
  PageControlState& mState;
};

}  // namespace

RegisteredProgId::RegisteredProgId(const std::string& progId) : mKey(L"Software\\Classes\\" + com::Widened(progId)) {
  Write(HKEY_CURRENT_USER);
  CLSID found;
  if (SUCCEEDED(CLSIDFromProgID(com::Widened(progId).c_str(), &found))) return;
  RegDeleteTreeW(HKEY_CURRENT_USER, mKey.c_str());
  Write(HKEY_LOCAL_MACHINE);
}

void RegisteredProgId::Write(HKEY root) {
  mRoot = root;
  wchar_t text[40] = {};
  const int length = StringFromGUID2(kTestPageControl, text, 40);
  const LSTATUS result = RegSetKeyValueW(root, (mKey + L"\\CLSID").c_str(), nullptr, REG_SZ, text,
                                         static_cast<DWORD>(length) * sizeof(wchar_t));
  com::Check(HRESULT_FROM_WIN32(static_cast<DWORD>(result)), com::Narrowed(mKey));
}

RegisteredProgId::~RegisteredProgId() {
  RegDeleteTreeW(mRoot, mKey.c_str());
}

RegisteredClass::RegisteredClass(PageControlState& state) {
  com::Check(CoRegisterClassObject(kTestPageControl, com::MakeCounted<Factory>(state).Get(), CLSCTX_INPROC_SERVER,
                                   REGCLS_MULTIPLEUSE, &mCookie),
             "CoRegisterClassObject");
}

RegisteredClass::~RegisteredClass() {
  CoRevokeClassObject(mCookie);
}

}  // namespace orx::test
