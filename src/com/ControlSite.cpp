#include "com/ControlSite.h"

#include <olectl.h>

#include <iterator>

#include "com/Errors.h"

namespace orx::com {
namespace {

constexpr char kSiteSource[] = "ControlSite";

HRESULT GiveWindow(const ISiteOwner* owner, HWND* window) {
  if (!window) return E_POINTER;
  *window = owner ? owner->Area() : nullptr;
  return *window ? S_OK : E_FAIL;
}

/// The ambient properties that a control can ask for. It decides all others itself.
Variant Ambient(DISPID id) {
  const auto flag = [](bool value) { return Variant(value); };
  const auto number = [](LONG value) { return Variant(static_cast<std::int32_t>(value)); };
  const struct {
    DISPID Id;
    Variant Value;
  } ambients[] = {
      {DISPID_AMBIENT_USERMODE, flag(true)},
      {DISPID_AMBIENT_UIDEAD, flag(false)},
      {DISPID_AMBIENT_MESSAGEREFLECT, flag(false)},
      {DISPID_AMBIENT_SHOWGRABHANDLES, flag(false)},
      {DISPID_AMBIENT_SHOWHATCHING, flag(false)},
      {DISPID_AMBIENT_DISPLAYASDEFAULT, flag(false)},
      {DISPID_AMBIENT_SUPPORTSMNEMONICS, flag(false)},
      {DISPID_AMBIENT_AUTOCLIP, flag(true)},
      {DISPID_AMBIENT_BACKCOLOR, number(static_cast<LONG>(0x80000000U | COLOR_BTNFACE))},
      {DISPID_AMBIENT_FORECOLOR, number(static_cast<LONG>(0x80000000U | COLOR_BTNTEXT))},
      {DISPID_AMBIENT_LOCALEID, number(static_cast<LONG>(GetUserDefaultLCID()))},
  };
  for (const auto& ambient : ambients)
    if (ambient.Id == id) return ambient.Value;
  return Variant();
}

}  // namespace

void* ControlFrame::Find(REFIID iid) noexcept {
  if (IsEqualIID(iid, IID_IOleWindow) || IsEqualIID(iid, IID_IOleInPlaceUIWindow))
    return static_cast<IOleInPlaceFrame*>(this);
  return Counted::Find(iid);
}

void ControlFrame::Leave() noexcept {
  mOwner = nullptr;
  mActive.Reset();
}

HRESULT ControlFrame::GetWindow(HWND* window) noexcept {
  const HRESULT result = GiveWindow(mOwner, window);
  if (SUCCEEDED(result)) *window = GetAncestor(*window, GA_ROOT);
  return result;
}

HRESULT ControlFrame::SetActiveObject(IOleInPlaceActiveObject* active, const OLECHAR*) noexcept {
  if (mOwner) mActive = ComPtr<IOleInPlaceActiveObject>(active);
  return S_OK;
}

void* ControlSite::Find(REFIID iid) noexcept {
  if (IsEqualIID(iid, IID_IOleWindow)) return static_cast<IOleInPlaceSite*>(this);
  return Counted::Find(iid);
}

void ControlSite::Leave() noexcept {
  mOwner = nullptr;
  mFrame->Leave();
}

HRESULT ControlSite::GetMoniker(DWORD, DWORD, IMoniker** moniker) noexcept {
  if (moniker) *moniker = nullptr;
  return E_NOTIMPL;
}

HRESULT ControlSite::GetContainer(IOleContainer** container) noexcept {
  if (container) *container = nullptr;
  return E_NOINTERFACE;
}

HRESULT ControlSite::GetWindow(HWND* window) noexcept {
  return GiveWindow(mOwner, window);
}

HRESULT ControlSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* place, RECT* clip,
                                      OLEINPLACEFRAMEINFO* info) noexcept {
  if (!frame || !document || !place || !clip || !info) return E_POINTER;
  *frame = nullptr;
  *document = nullptr;
  HWND area = nullptr;
  if (const HRESULT result = GetWindow(&area); FAILED(result)) return result;
  *frame = ComPtr<IOleInPlaceFrame>(mFrame.Get()).Detach();
  GetClientRect(area, place);
  *clip = *place;
  info->fMDIApp = FALSE;
  info->hwndFrame = GetAncestor(area, GA_ROOT);
  info->haccel = nullptr;
  info->cAccelEntries = 0;
  return S_OK;
}

HRESULT ControlSite::OnPosRectChange(const RECT*) noexcept {
  // The dialog decides on the place, and the control is told the one that it has.
  return Guarded(kSiteSource, [this] {
    if (mOwner) mOwner->PlaceAsked();
  });
}

HRESULT ControlSite::GetExtendedControl(IDispatch** extended) noexcept {
  if (extended) *extended = nullptr;
  return E_NOTIMPL;
}

HRESULT ControlSite::TransformCoords(POINTL*, POINTF*, DWORD) noexcept {
  return E_NOTIMPL;
}

HRESULT ControlSite::OnFocus(BOOL came) noexcept {
  return Guarded(kSiteSource, [this, came] {
    if (came && mOwner) mOwner->FocusCame();
  });
}

HRESULT ControlSite::GetTypeInfoCount(UINT* count) noexcept {
  if (!count) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT ControlSite::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept {
  return DISP_E_UNKNOWNNAME;
}

HRESULT ControlSite::Invoke(DISPID id, REFIID reserved, LCID, WORD flags, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                            UINT*) noexcept {
  if (!IsEqualIID(reserved, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  if (!(flags & DISPATCH_PROPERTYGET)) return DISP_E_MEMBERNOTFOUND;
  Variant value = Ambient(id);
  if (value.vt == VT_EMPTY) return DISP_E_MEMBERNOTFOUND;
  if (!result) return E_POINTER;
  *result = value.Detach();
  return S_OK;
}

}  // namespace orx::com
