// Owners of the platform's handles. Nothing else in this desktop deletes or frees them.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace orx::win32 {

/// Deletes fonts, brushes, pens and bitmaps.
struct GdiDeleter {
  void operator()(HGDIOBJ object) const { DeleteObject(object); }
};

template <class Handle>
using GdiObject = std::unique_ptr<std::remove_pointer_t<Handle>, GdiDeleter>;

/// Selects an object into a device context for as long as it lives.
class Selection {
 public:
  Selection(HDC context, HGDIOBJ object) : mContext(context), mBefore(SelectObject(context, object)) {}
  ~Selection() { SelectObject(mContext, mBefore); }
  Selection(const Selection&) = delete;
  Selection& operator=(const Selection&) = delete;

 private:
  HDC mContext;
  HGDIOBJ mBefore;
};

/// A device context in memory that draws on a bitmap of that size, with the colour format of `like`.
class MemoryContext {
 public:
  MemoryContext(HDC like, int width, int height)
      : mContext(CreateCompatibleDC(like)),
        mBitmap(CreateCompatibleBitmap(like, width, height)),
        mSelection(std::make_unique<Selection>(mContext, mBitmap.get())) {}
  ~MemoryContext() {
    mSelection.reset();
    DeleteDC(mContext);
  }
  MemoryContext(const MemoryContext&) = delete;
  MemoryContext& operator=(const MemoryContext&) = delete;

  HDC Get() const { return mContext; }
  HBITMAP Bitmap() const { return mBitmap.get(); }

 private:
  HDC mContext;
  GdiObject<HBITMAP> mBitmap;
  std::unique_ptr<Selection> mSelection;
};

/// The device context of a window, its children included unless the flags of GetDCEx say otherwise, or of the screen
/// (null).
class WindowContext {
 public:
  explicit WindowContext(HWND window, DWORD flags = 0)
      : mWindow(window), mContext(GetDCEx(window, nullptr, DCX_CACHE | flags)) {}
  ~WindowContext() { ReleaseDC(mWindow, mContext); }
  WindowContext(const WindowContext&) = delete;
  WindowContext& operator=(const WindowContext&) = delete;

  HDC Get() const { return mContext; }

 private:
  HWND mWindow;
  HDC mContext;
};

/// Closes handles of threads and of other objects of the system's kernel.
struct KernelDeleter {
  void operator()(HANDLE object) const { CloseHandle(object); }
};

using KernelHandle = std::unique_ptr<void, KernelDeleter>;

/// A key of the registry, open as long as this lives.
class RegistryKey {
 public:
  RegistryKey() = default;
  ~RegistryKey() { Close(); }
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;

  HKEY Get() const { return mKey; }
  /// For functions that open a key.
  HKEY* Out() {
    Close();
    return &mKey;
  }

 private:
  void Close() {
    if (mKey) RegCloseKey(mKey);
    mKey = nullptr;
  }

  HKEY mKey = nullptr;
};

/// The module that this code is in: the component's DLL, or the program that it is linked with.
HINSTANCE ThisModule();

}  // namespace orx::win32
