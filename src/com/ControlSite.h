// What a page control sees of its dialog: its place, its window, the frame, and the ambient properties that controls
// adapt to.
#pragma once

#include <windows.h>

#include <ocidl.h>
#include <oleidl.h>

#include "com/Counted.h"

namespace orx::com {

/// Whoever has put a control on a site.
class ISiteOwner {
 public:
  /// The window that the control stands in; null while there is none.
  virtual HWND Area() const = 0;
  /// The user or the control itself has moved the focus into the control.
  virtual void FocusCame() = 0;
  /// The control asks for another place.
  virtual void PlaceAsked() = 0;

 protected:
  ~ISiteOwner() = default;
};

/// The frame window of in-place activation. It offers neither menus nor tool space, and remembers the object that the
/// control declares active.
class ControlFrame final : public Counted<IOleInPlaceFrame> {
 public:
  /// The owner must call Leave before it is destroyed.
  explicit ControlFrame(ISiteOwner& owner) : mOwner(&owner) {}
  void Leave() noexcept;
  /// The active object; empty when there is none.
  const ComPtr<IOleInPlaceActiveObject>& Active() const { return mActive; }

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetBorder(RECT*) noexcept override { return INPLACE_E_NOTOOLSPACE; }
  HRESULT STDMETHODCALLTYPE RequestBorderSpace(const BORDERWIDTHS*) noexcept override { return INPLACE_E_NOTOOLSPACE; }
  HRESULT STDMETHODCALLTYPE SetBorderSpace(const BORDERWIDTHS*) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* active, const OLECHAR* name) noexcept override;
  HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, OLEMENUGROUPWIDTHS*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetStatusText(const OLECHAR*) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*, WORD) noexcept override { return S_FALSE; }

 private:
  void* Find(REFIID iid) noexcept override;

  ISiteOwner* mOwner;
  ComPtr<IOleInPlaceActiveObject> mActive;
};

class ControlSite final : public Counted<IOleClientSite, IOleInPlaceSite, IOleControlSite, IDispatch> {
 public:
  /// The owner must call Leave before it is destroyed: a control may hold its site longer than that.
  explicit ControlSite(ISiteOwner& owner) : mOwner(&owner), mFrame(MakeCounted<ControlFrame>(owner)) {}
  void Leave() noexcept;
  const ControlFrame& Frame() const { return *mFrame.Get(); }

  HRESULT STDMETHODCALLTYPE SaveObject() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker** moniker) noexcept override;
  HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowObject() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() noexcept override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE CanInPlaceActivate() noexcept override { return mOwner && mOwner->Area() ? S_OK : S_FALSE; }
  HRESULT STDMETHODCALLTYPE OnInPlaceActivate() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnUIActivate() noexcept override { return OnFocus(TRUE); }
  HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* place,
                                             RECT* clip, OLEINPLACEFRAMEINFO* info) noexcept override;
  HRESULT STDMETHODCALLTYPE Scroll(SIZE) noexcept override { return S_FALSE; }
  HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE DiscardUndoState() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE DeactivateAndUndo() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnPosRectChange(const RECT* place) noexcept override;

  HRESULT STDMETHODCALLTYPE OnControlInfoChanged() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** extended) noexcept override;
  HRESULT STDMETHODCALLTYPE TransformCoords(POINTL* himetric, POINTF* container, DWORD flags) noexcept override;
  // The site has no use for a key that the control does not use; the dialog sees it next.
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*, DWORD) noexcept override { return S_FALSE; }
  HRESULT STDMETHODCALLTYPE OnFocus(BOOL came) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowPropertyFrame() noexcept override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                   UINT*) noexcept override;

 private:
  void* Find(REFIID iid) noexcept override;

  ISiteOwner* mOwner;
  ComPtr<ControlFrame> mFrame;
};

}  // namespace orx::com
