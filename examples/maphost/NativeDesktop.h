// The desktop that the demo shows itself on: the platform's own on Windows, Qt's elsewhere.
#pragma once

#ifdef _WIN32
#include <windows.h>

#include "desktops/win32/Win32Desktop.h"
#else
#include <QCoreApplication>

#include "desktops/qt/QtDesktop.h"
#endif

#include "forms/Form.h"

namespace maphost {

#ifdef _WIN32
using NativeDesktop = orx::win32::Win32Desktop;
#else
using NativeDesktop = orx::qt::QtDesktop;
#endif

/// The event loop of the demo: shows its window and returns when that has closed.
inline void RunWindow(orx::Form& window) {
  window.Show(orx::ShowMode::Modeless);
#ifdef _WIN32
  for (MSG message; window.Visible() && GetMessageW(&message, nullptr, 0, 0) > 0;) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
#else
  while (window.Visible()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
#endif
}

}  // namespace maphost
