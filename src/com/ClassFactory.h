// Makes the objects of the creatable classes.
#pragma once

#include <windows.h>

namespace orx::com {

/// The factory of a class, as DllGetClassObject gives it.
HRESULT GetClassFactory(REFCLSID classId, REFIID iid, void** factory) noexcept;

}  // namespace orx::com
