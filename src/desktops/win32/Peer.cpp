#include "desktops/win32/Peer.h"

#include "desktops/win32/GuestScope.h"
#include "desktops/win32/Text.h"
#include "desktops/win32/WindowClasses.h"
#include "forms/Container.h"
#include "forms/Form.h"

namespace orx::win32 {
namespace {

/// The window property that holds a control's name: an atom of the global table, which other programs can read.
constexpr wchar_t kNameProperty[] = L"ControlName";

}  // namespace

Peer::Peer(Control& control, Dialog& dialog, HWND window, HWND focus)
    : mControl(control),
      mDialog(dialog),
      mWindow(window),
      mFocus(focus ? focus : window),
      mSubclass(mWindow, &Peer::SubclassProc, this),
      mFocusSubclass(mFocus != mWindow ? mFocus : nullptr, &Peer::SubclassProc, this),
      mName(GlobalAddAtomW(Widened(control.Name()).c_str())) {
  SetPropW(mWindow, kNameProperty, reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(mName)));
  SendMessageW(mWindow, WM_SETFONT, reinterpret_cast<WPARAM>(dialog.Face()), FALSE);
}

Peer::~Peer() {
  if (mIsAnnotated) ForgetAccessible(mFocus);
  RemovePropW(mWindow, kNameProperty);
  GlobalDeleteAtom(mName);
}

Peer* Peer::Holding(HWND window) {
  for (HWND at = window; at; at = GetAncestor(at, GA_PARENT))
    if (void* const peer = Subclass::SelfOf(at, &Peer::SubclassProc)) return static_cast<Peer*>(peer);
  return nullptr;
}

LRESULT CALLBACK Peer::SubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR peer) {
  const GuestScope guest;
  auto& self = *reinterpret_cast<Peer*>(peer);
  const Dialog::Busy busy(self.mDialog);
  return self.OnMessage(window, message, wParam, lParam);
}

LRESULT Peer::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case kChildCommand:
      OnCommand(static_cast<int>(wParam));
      return 0;
    case kChildNotify:
      return OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
    case WM_SETFOCUS: {
      Dialog& dialog = mDialog;
      const LRESULT result = Subclass::CallNext(window, message, wParam, lParam);
      if (!dialog.IsRetired()) FocusCame();
      return result;
    }
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      // The press must not move the focus by itself: the field that loses it may refuse to let go.
      if (mControl.TakesFocus() && !FocusIsGranted()) return 0;
      break;
    case WM_MOUSEWHEEL:
      // Turning the wheel over a control that does not have the focus scrolls the form and changes no value.
      if (mControl.HasFocus()) break;
      mDialog.Content().Wheel(GET_WHEEL_DELTA_WPARAM(wParam));
      return 0;
    default:
      break;
  }
  return Subclass::CallNext(window, message, wParam, lParam);
}

bool Peer::FocusIsGranted() {
  bool granted = false;
  Dialog& dialog = mDialog;
  Control& control = mControl;
  Report([&] { control.OwnerForm().UserAct([&] { granted = control.OwnerForm().MoveFocus(control); }); });
  return granted && !dialog.IsRetired();
}

void Peer::FocusCame() {
  Control& control = mControl;
  Report([&] {
    mDialog.Content().Reveal(mWindow);
    control.OwnerForm().UserFocus(control);
  });
}

void Peer::Update(Aspect aspect) {
  const GuestScope guest;
  const Dialog::Quiet quiet(mDialog);
  Mirror(aspect);
  if (aspect == Aspect::Visible || aspect == Aspect::Enabled) KeepFocus();
}

void Peer::KeepFocus() const {
  // The form moves the focus to another control, if there is one; without any focus the keys would be lost.
  if (GetActiveWindow() != mDialog.Window() || IsWindowVisible(GetFocus())) return;
  SetFocus(mDialog.Window());
}

void Peer::RestoreFocus(HWND last) {
  const Dialog::Quiet quiet(mDialog);
  if (IsChild(mWindow, last)) {
    SetFocus(last);
  } else {
    FocusNative();
  }
}

void Peer::TakeFocus() {
  const GuestScope guest;
  const Dialog::Quiet quiet(mDialog);
  // A window that is not active takes the focus when it is activated.
  if (GetActiveWindow() == mDialog.Window()) FocusNative();
  mDialog.Content().Reveal(mWindow);
}

SIZE Peer::PixelSize() const {
  const RECT place = mDialog.Content().PlaceOf(mControl);
  return {place.right - place.left, place.bottom - place.top};
}

void Peer::ShowText(HWND window, const std::string& text) {
  const std::wstring wide = Widened(text);
  std::wstring shown(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  shown.resize(static_cast<std::size_t>(GetWindowTextW(window, shown.data(), static_cast<int>(shown.size()))));
  if (wide != shown) SetWindowTextW(window, wide.c_str());
}

void Peer::Mirror(Aspect aspect) {
  switch (aspect) {
    case Aspect::Place:
      return MirrorPlace();
    case Aspect::Visible:
      ShowWindow(mWindow, mControl.Visible() ? SW_SHOWNA : SW_HIDE);
      return ArrangeContent();
    case Aspect::Enabled:
      return MirrorEnabled();
    case Aspect::ToolTip:
      return MirrorToolTip();
    case Aspect::Accessible:
      return MirrorName();
    default:
      return;
  }
}

void Peer::MirrorEnabled() {
  // The platform draws the controls in a disabled window as if they could be used.
  bool isEnabled = true;
  for (const Control* at = &mControl; at; at = at->Parent().ContainerControl()) isEnabled = isEnabled && at->Enabled();
  EnableWindow(mWindow, isEnabled);
  const Container* const inner = mControl.AsContainer();
  if (!inner) return;
  for (const Control* const child : inner->Children())
    if (ControlPeer* const peer = child->Peer()) peer->Update(Aspect::Enabled);
}

void Peer::MirrorName() {
  // A caption is the window's text, which already is its name.
  if (mControl.Caption().empty() || !mControl.ShowsCaption()) Annotate(Spoken::Name, mControl.AccessibleName());
}

void Peer::CutText(const std::string& whole) {
  if (mCutText == whole) return;
  mCutText = whole;
  MirrorToolTip();
}

void Peer::MirrorToolTip() {
  mDialog.ToolTip(mFocus, mControl.ToolTipText().empty() ? mCutText : mControl.ToolTipText());
  Annotate(Spoken::Description, mControl.ToolTipText());
}

void Peer::Annotate(Spoken what, const std::string& text) {
  // Of what never was annotated there is nothing to remove.
  if (text.empty() && !mIsAnnotated) return;
  if (SetAccessible(mFocus, what, text)) mIsAnnotated = true;
}

void Peer::MirrorPlace() {
  ArrangeContent();
  const RECT place = mDialog.Content().PlaceOf(mControl);
  SetWindowPos(mWindow, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
               SWP_NOACTIVATE | SWP_NOZORDER);
}

void Peer::ArrangeContent() {
  if (!mControl.Parent().ContainerControl()) mDialog.Content().Arrange();
}

}  // namespace orx::win32
