#include "com/HostedControl.h"

#include <ocidl.h>

#include "com/ControlKeys.h"
#include "com/Errors.h"
#include "desktops/win32/Handles.h"

namespace orx::com {
namespace {

constexpr int kHimetricPerInch = 2540;

SIZEL Himetric(const RECT& pixels) {
  const int dpi = GetDeviceCaps(win32::WindowContext(nullptr).Get(), LOGPIXELSX);
  return {MulDiv(pixels.right, kHimetricPerInch, dpi), MulDiv(pixels.bottom, kHimetricPerInch, dpi)};
}

void Begin(IOleObject& control, IOleClientSite* site) {
  // Some controls use their site in InitNew already, and none minds having it earlier.
  Check(control.SetClientSite(site), "SetClientSite");
  if (const auto stream = ComPtr<IPersistStreamInit>::From(&control)) {
    const HRESULT result = stream->InitNew();
    if (result != E_NOTIMPL) Check(result, "InitNew");
  }
}

}  // namespace

HostedControl::HostedControl(const CLSID& control) : mSite(MakeCounted<ControlSite>(static_cast<ISiteOwner&>(*this))) {
  Check(CoCreateInstance(control, nullptr, CLSCTX_INPROC_SERVER, IID_IOleObject, mControl.OutVoid()),
        "The control cannot be made");
  try {
    if (!mControl.As<IOleInPlaceObject>()) throw RunTimeError(E_NOINTERFACE, "The control has no window to show.");
    Begin(*mControl.Get(), mSite.Get());
  } catch (...) {
    mSite->Leave();
    mControl->SetClientSite(nullptr);
    throw;
  }
}

HostedControl::~HostedControl() {
  Close();
  mControl->Close(OLECLOSE_NOSAVE);
  mSite->Leave();
  mControl->SetClientSite(nullptr);
}

HRESULT HostedControl::Do(LONG verb, MSG* message) noexcept {
  RECT place;
  GetClientRect(mArea, &place);
  return mControl->DoVerb(verb, message, mSite.Get(), 0, mArea, &place);
}

void HostedControl::Open(HWND area) {
  mArea = area;
  RECT place;
  GetClientRect(area, &place);
  SIZEL extent = Himetric(place);
  mControl->SetExtent(DVASPECT_CONTENT, &extent);
  Check(Do(OLEIVERB_INPLACEACTIVATE, nullptr), "The control cannot be shown");
  Fit();
}

void HostedControl::Close() noexcept {
  if (!mArea) return;
  if (const auto place = mControl.As<IOleInPlaceObject>()) {
    place->UIDeactivate();
    place->InPlaceDeactivate();
  }
  mArea = nullptr;
}

void HostedControl::Fit() noexcept {
  const auto control = mControl.As<IOleInPlaceObject>();
  if (!mArea || !control) return;
  RECT place;
  GetClientRect(mArea, &place);
  control->SetObjectRects(&place, &place);
}

void HostedControl::FocusCame() {
  mLastFocus = GetFocus();
  if (!mEntering && FocusCameByItself) FocusCameByItself();
}

void HostedControl::EnterFocus() noexcept {
  if (!mArea || HasFocusInside(mArea)) return;
  mEntering = true;
  const bool backwards = GetKeyState(VK_SHIFT) < 0;
  MSG tab = {mArea, WM_KEYDOWN, VK_TAB, 0, static_cast<DWORD>(GetMessageTime()), {}};
  Do(OLEIVERB_UIACTIVATE, GetKeyState(VK_TAB) < 0 ? &tab : nullptr);
  if (mLastFocus && IsChild(mArea, mLastFocus)) SetFocus(mLastFocus);
  if (!HasFocusInside(mArea)) FocusInside(mArea, backwards);
  mEntering = false;
}

void HostedControl::LeaveFocus() noexcept {
  mLastFocus = nullptr;
  const auto control = mArea ? mControl.As<IOleInPlaceObject>() : ComPtr<IOleInPlaceObject>();
  if (control) control->UIDeactivate();
}

bool HostedControl::FilterKey(MSG& message) noexcept {
  if (!mArea) return false;
  mLastFocus = message.hwnd;
  // Both stay alive while a key closes the dialog.
  const ComPtr<IOleObject> control = mControl;
  auto active = mSite->Frame().Active();
  if (!active) active = control.As<IOleInPlaceActiveObject>();
  if (active && active->TranslateAccelerator(&message) == S_OK) return true;
  return mArea && KeepsKey(mArea, message);
}

}  // namespace orx::com
