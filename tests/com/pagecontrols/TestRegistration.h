// Makes the test control known to the system for the time of a test: its ProgID in the user's registry, its class
// object in the process.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "com/Counted.h"
#include "tests/com/pagecontrols/TestPageControl.h"

namespace orx::test {

/// The COM apartment of a test's thread.
class Apartment {
 public:
  Apartment() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  ~Apartment() { CoUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

/// Writes a ProgID with the class of the test control below the user's classes, and takes it away. Where the system
/// does not look there (Wine before version 9) it stands below the machine's.
class RegisteredProgId {
 public:
  explicit RegisteredProgId(const std::string& progId);
  ~RegisteredProgId();
  RegisteredProgId(const RegisteredProgId&) = delete;
  RegisteredProgId& operator=(const RegisteredProgId&) = delete;

 private:
  void Write(HKEY root);

  std::wstring mKey;
  HKEY mRoot = HKEY_CURRENT_USER;
};

/// While one lives, the class of the test control can be made in this process.
class RegisteredClass {
 public:
  explicit RegisteredClass(PageControlState& state);
  ~RegisteredClass();
  RegisteredClass(const RegisteredClass&) = delete;
  RegisteredClass& operator=(const RegisteredClass&) = delete;

 private:
  DWORD mCookie = 0;
};

/// The class of the test control.
extern const CLSID kTestPageControl;

}  // namespace orx::test
