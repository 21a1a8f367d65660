// The type library that the module carries.
#pragma once

#include <string>

#include "com/Handles.h"

namespace orx::com {

/// Loads the type library from the module's resources, or from `path` when one is given. Throws RunTimeError with the
/// path and the reason.
ComPtr<ITypeLib> LoadTypeLibrary(const std::wstring& path = {});

/// The description of an interface or class of the type library, which is read once and kept. Throws as
/// LoadTypeLibrary.
ComPtr<ITypeInfo> TypeInfoOf(const GUID& guid);

/// The path of the module that this code is in.
std::wstring ModulePath();

}  // namespace orx::com
