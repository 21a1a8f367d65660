// What stands in the registry below the classes, for comparing before and after.
#pragma once

#include <windows.h>

#include <map>
#include <set>
#include <string>

namespace orx::com::test {

/// Values by their keys and names, "CLSID\{...}\InprocServer32:ThreadingModel"; each key also stands for itself, with
/// "key" for its value.
using RegistryImage = std::map<std::wstring, std::wstring>;

/// The keys of the classes: programs' names, "CLSID\{...}", "Interface\{...}", "TypeLib\{...}".
using RegistryKeys = std::set<std::wstring>;

/// Those of all users (HKEY_LOCAL_MACHINE) or of the present one (HKEY_CURRENT_USER).
RegistryKeys ClassKeys(HKEY root);

/// All that stands below those keys which the second has and the first has not.
RegistryImage Added(HKEY root, const RegistryKeys& before, const RegistryKeys& after);

}  // namespace orx::com::test
