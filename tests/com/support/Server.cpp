#include "tests/com/support/Server.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orx::com::test {
namespace {

/// An entry point of the DLL. The way over a plain function pointer keeps the compiler from comparing the types.
template <class Function>
Function EntryPoint(HMODULE module, const char* name) {
  const auto found = GetProcAddress(module, name);
  EXPECT_TRUE(found) << name;
  return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(found));
}

}  // namespace

std::wstring PathOf(const char* built) {
  std::wstring path = Widened(built);
  // Paths of the machine that the tests were built on stand on a drive of their own.
  if (path.starts_with(L'/')) path = L"Z:" + path;
  std::ranges::replace(path, L'/', L'\\');
  return path;
}

std::wstring ServerPath() {
  return PathOf(ORX_SERVER);
}

Server::Server(const std::wstring& path) : mModule(LoadLibraryW(path.c_str())) {
  EXPECT_TRUE(mModule) << Narrowed(path) << ": error " << GetLastError();
}

Server::~Server() {
  if (mModule) FreeLibrary(mModule);
}

HRESULT Server::GetClassObject(REFCLSID classId, REFIID iid, void** object) const {
  using Function = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);
  return EntryPoint<Function>(mModule, "DllGetClassObject")(classId, iid, object);
}

HRESULT Server::Install(bool install, const wchar_t* whom) const {
  using Function = HRESULT(WINAPI*)(BOOL, LPCWSTR);
  return EntryPoint<Function>(mModule, "DllInstall")(install, whom);
}

HRESULT Server::Call(const char* name) const {
  using Function = HRESULT(WINAPI*)();
  return EntryPoint<Function>(mModule, name)();
}

ComPtr<IClassFactory> Server::Factory(REFCLSID classId) const {
  ComPtr<IClassFactory> factory;
  EXPECT_EQ(GetClassObject(classId, IID_IClassFactory, factory.OutVoid()), S_OK);
  return factory;
}

bool IsServerLoaded() {
  return GetModuleHandleW(ServerPath().c_str()) != nullptr;
}

}  // namespace orx::com::test
