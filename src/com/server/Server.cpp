// The entry points of the component's DLL.
#include <windows.h>

#include <olectl.h>

#include "com/ClassFactory.h"
#include "com/Errors.h"
#include "com/ModuleUse.h"
#include "com/Registration.h"
#include "com/ThreadContext.h"

namespace {

using orx::com::Guarded;
using orx::com::RegisteredFor;

constexpr char kSource[] = "Registration";

}  // namespace

STDAPI DllRegisterServer() {
  return orx::com::ForAllOrUser(orx::com::Register);
}

STDAPI DllUnregisterServer() {
  // Both, as the one or the other may have been registered.
  const HRESULT user = Guarded(kSource, [] { orx::com::Unregister(RegisteredFor::User); });
  const HRESULT all = orx::com::ForAllOrUser(orx::com::Unregister);
  return FAILED(all) ? all : user;
}

STDAPI DllInstall(BOOL install, LPCWSTR whom) {
  const bool isForAll = !whom || !*whom;
  if (!isForAll && CompareStringOrdinal(whom, -1, L"user", -1, TRUE) != CSTR_EQUAL) return E_INVALIDARG;
  if (isForAll) return install ? DllRegisterServer() : DllUnregisterServer();
  return Guarded(
      kSource, [&] { install ? orx::com::Register(RegisteredFor::User) : orx::com::Unregister(RegisteredFor::User); });
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, LPVOID* factory) {
  return orx::com::GetClassFactory(classId, iid, factory);
}

STDAPI DllCanUnloadNow() {
  HRESULT answer = S_FALSE;
  const HRESULT asked = Guarded("Server", [&] {
    const bool stillOpen = orx::com::ThreadContext::StillOpen();
    answer = orx::com::ModuleUse::Count() == 0 && !stillOpen ? S_OK : S_FALSE;
  });
  return FAILED(asked) ? S_FALSE : answer;
}
