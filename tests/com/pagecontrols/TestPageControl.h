// A page control as somebody else would write one: two text fields and a button in a window of its own, late-bound
// members, events with arguments by reference. It writes down what is done with it.
#pragma once

#include <windows.h>

#include <ocidl.h>
#include <oleidl.h>

#include <functional>
#include <string>
#include <vector>

#include "com/Counted.h"
#include "tests/com/pagecontrols/TestConnectionPoint.h"
#include "tests/support/RecordingHost.h"

namespace orx::test {

/// What a test tells the controls that are made, and learns of them.
struct PageControlState {
  CallLog Log;
  /// The controls that have not been destroyed.
  int Alive = 0;
  /// The one that was made last; not counted.
  class TestPageControl* Last = nullptr;
  /// What the control answers when it is asked to show itself.
  HRESULT ShowResult = S_OK;
  /// The interface by which it raises events.
  IID Source = {};
  /// What IProvideClassInfo gives; empty for nothing.
  com::ComPtr<ITypeInfo> ClassInfo;
};

class TestPageControl final : public com::Counted<IDispatch, IOleObject, IOleInPlaceObject, IOleInPlaceActiveObject,
                                                  IPersistStreamInit, IConnectionPointContainer, IProvideClassInfo> {
 public:
  explicit TestPageControl(PageControlState& state);

  HWND Window() const { return mWindow; }
  HWND First() const { return GetDlgItem(mWindow, kFirst); }
  HWND Second() const { return GetDlgItem(mWindow, kSecond); }
  HWND Button() const { return GetDlgItem(mWindow, kButton); }
  /// Raises an event; the arguments are in the order of the declaration.
  HRESULT Raise(DISPID event, std::vector<VARIANTARG> arguments, EXCEPINFO* exception = nullptr);
  /// What the button does.
  std::function<void()> Pressed;
  /// Sees key messages first; true when it has used one.
  std::function<bool(const MSG&)> Accelerator;
  /// An ambient property of the site.
  com::Variant Ambient(DISPID id) const;

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* given, VARIANT* result,
                                   EXCEPINFO* exception, UINT*) noexcept override;

  HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) noexcept override;
  HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** site) noexcept override;
  HRESULT STDMETHODCALLTYPE SetHostNames(const OLECHAR*, const OLECHAR*) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE Close(DWORD) noexcept override;
  HRESULT STDMETHODCALLTYPE SetMoniker(DWORD, IMoniker*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE InitFromData(IDataObject*, BOOL, DWORD) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD, IDataObject**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, MSG*, IOleClientSite*, LONG, HWND, const RECT* place) noexcept override;
  HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Update() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE IsUpToDate() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetUserType(DWORD, OLECHAR**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetExtent(DWORD, SIZEL*) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD, SIZEL*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Advise(IAdviseSink*, DWORD*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD, DWORD* status) noexcept override;
  HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE*) noexcept override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE InPlaceDeactivate() noexcept override;
  HRESULT STDMETHODCALLTYPE UIDeactivate() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE SetObjectRects(const RECT* place, const RECT*) noexcept override;
  HRESULT STDMETHODCALLTYPE ReactivateAndUndo() noexcept override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message) noexcept override;
  HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE ResizeBorder(const RECT*, IOleInPlaceUIWindow*, BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) noexcept override { return S_OK; }

  HRESULT STDMETHODCALLTYPE GetClassID(CLSID*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE IsDirty() noexcept override { return S_FALSE; }
  HRESULT STDMETHODCALLTYPE Load(IStream*) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE Save(IStream*, BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE InitNew() noexcept override { return S_OK; }

  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** point) noexcept override;

  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) noexcept override;

 private:
  static constexpr int kFirst = 1, kSecond = 2, kButton = 3;

  ~TestPageControl() override;
  void* Find(REFIID iid) noexcept override;
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void Commanded(int id, int code);
  HRESULT Activate(const RECT& place);
  void Run(DISPID member, WORD flags, const DISPPARAMS& given, VARIANT* result);
  void Write(const char* call);

  PageControlState& mState;
  com::ComPtr<IOleClientSite> mSite;
  com::ComPtr<TestConnectionPoint> mPoint;
  com::ComPtr<IDispatch> mClient;
  HWND mWindow = nullptr;
  std::wstring mText;
  bool mDirty = false;
  std::int32_t mStartUpIndex = 0;
};

}  // namespace orx::test
