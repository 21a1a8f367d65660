// The window of the test control, and how it comes to stand in its container.
#include "com/Errors.h"
#include "tests/com/pagecontrols/TestPageControl.h"

namespace orx::test {
namespace {

constexpr wchar_t kClass[] = L"OrvexMapDialogs2.TestPageControl";

HWND AddChild(HWND parent, const wchar_t* kind, int id, int top) {
  return CreateWindowExW(0, kind, L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 4, top, 100, 24, parent,
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
}

}  // namespace

LRESULT CALLBACK TestPageControl::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const self = reinterpret_cast<TestPageControl*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self && message == WM_COMMAND) self->Commanded(LOWORD(wParam), HIWORD(wParam));
  return DefWindowProcW(window, message, wParam, lParam);
}

void TestPageControl::Commanded(int id, int code) {
  if (id == kButton && code == BN_CLICKED && Pressed) Pressed();
  if (id == kButton || code != EN_SETFOCUS) return;
  if (const auto site = mSite.As<IOleControlSite>()) site->OnFocus(TRUE);
}

HRESULT TestPageControl::SetClientSite(IOleClientSite* site) noexcept {
  mSite = com::ComPtr<IOleClientSite>(site);
  return S_OK;
}

HRESULT TestPageControl::GetClientSite(IOleClientSite** site) noexcept {
  *site = com::ComPtr<IOleClientSite>(mSite).Detach();
  return S_OK;
}

HRESULT TestPageControl::Close(DWORD) noexcept {
  mState.Log.Calls.push_back("Control.Close");
  return InPlaceDeactivate();
}

HRESULT TestPageControl::GetMiscStatus(DWORD, DWORD* status) noexcept {
  *status = OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE;
  return S_OK;
}

HRESULT TestPageControl::DoVerb(LONG verb, MSG*, IOleClientSite*, LONG, HWND, const RECT* place) noexcept {
  if (FAILED(mState.ShowResult)) return mState.ShowResult;
  if (verb != OLEIVERB_INPLACEACTIVATE && verb != OLEIVERB_UIACTIVATE && verb != OLEIVERB_SHOW) return E_NOTIMPL;
  return mWindow ? S_OK : Activate(*place);
}

HRESULT TestPageControl::Activate(const RECT& place) {
  const auto site = mSite.As<IOleInPlaceSite>();
  HWND parent = nullptr;
  if (!site || site->CanInPlaceActivate() != S_OK || FAILED(site->GetWindow(&parent))) return E_FAIL;
  WNDCLASSW made = {};
  made.lpfnWndProc = WindowProc;
  made.lpszClassName = kClass;
  made.hInstance = GetModuleHandleW(nullptr);
  RegisterClassW(&made);
  mState.Log.Calls.push_back("Control.Activate");
  site->OnInPlaceActivate();
  mWindow = CreateWindowExW(0, kClass, L"", WS_CHILD | WS_VISIBLE, place.left, place.top, place.right - place.left,
                            place.bottom - place.top, parent, nullptr, made.hInstance, nullptr);
  SetWindowLongPtrW(mWindow, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  SetWindowTextW(AddChild(mWindow, L"EDIT", kFirst, 4), mText.c_str());
  AddChild(mWindow, L"EDIT", kSecond, 32);
  AddChild(mWindow, L"BUTTON", kButton, 60);
  return S_OK;
}

HRESULT TestPageControl::GetWindow(HWND* window) noexcept {
  *window = mWindow;
  return mWindow ? S_OK : E_FAIL;
}

HRESULT TestPageControl::InPlaceDeactivate() noexcept {
  if (!mWindow) return S_OK;
  mState.Log.Calls.push_back("Control.Deactivate");
  DestroyWindow(std::exchange(mWindow, nullptr));
  if (const auto site = mSite.As<IOleInPlaceSite>()) site->OnInPlaceDeactivate();
  return S_OK;
}

HRESULT TestPageControl::SetObjectRects(const RECT* place, const RECT*) noexcept {
  if (mWindow)
    MoveWindow(mWindow, place->left, place->top, place->right - place->left, place->bottom - place->top, TRUE);
  return S_OK;
}

HRESULT TestPageControl::TranslateAccelerator(MSG* message) noexcept {
  return Accelerator && Accelerator(*message) ? S_OK : S_FALSE;
}

}  // namespace orx::test
