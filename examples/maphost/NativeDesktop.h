// The desktop that the demo shows itself on: the platform's own on Windows, Qt's elsewhere.
#pragma once

#ifdef _WIN32
#include "desktops/win32/Win32Desktop.h"
#else
#include "desktops/qt/QtDesktop.h"
#endif

namespace maphost {

#ifdef _WIN32
using NativeDesktop = orx::win32::Win32Desktop;
#else
using NativeDesktop = orx::qt::QtDesktop;
#endif

}  // namespace maphost
