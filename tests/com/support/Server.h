// The DLL of the component server, loaded as a host does it.
#pragma once

#include <windows.h>

#include <OrvexMapDialogs2.h>
#include <oleauto.h>

#include <string>

#include "com/Handles.h"

namespace orx::com::test {

/// The path of a file that was named while the tests were built, as this system knows it.
std::wstring PathOf(const char* built);
/// Where the DLL stands.
std::wstring ServerPath();

/// Loads a DLL and lets go of it.
class Server {
 public:
  explicit Server(const std::wstring& path = ServerPath());
  ~Server();
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;

  HMODULE Module() const { return mModule; }
  HRESULT GetClassObject(REFCLSID classId, REFIID iid, void** object) const;
  HRESULT CanUnloadNow() const { return Call("DllCanUnloadNow"); }
  HRESULT RegisterServer() const { return Call("DllRegisterServer"); }
  HRESULT UnregisterServer() const { return Call("DllUnregisterServer"); }
  HRESULT Install(bool install, const wchar_t* whom) const;

  /// The factory of a class, and an object of it.
  ComPtr<IClassFactory> Factory(REFCLSID classId) const;
  template <class Interface>
  ComPtr<Interface> Create(REFCLSID classId) const {
    ComPtr<Interface> made;
    if (const auto factory = Factory(classId)) factory->CreateInstance(nullptr, __uuidof(Interface), made.OutVoid());
    return made;
  }

 private:
  HRESULT Call(const char* name) const;

  HMODULE mModule;
};

/// The thread's apartment for the time of a test.
class Apartment {
 public:
  Apartment() { CoInitialize(nullptr); }
  ~Apartment() { CoUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

/// True while the DLL is loaded in this process.
bool IsServerLoaded();

}  // namespace orx::com::test
