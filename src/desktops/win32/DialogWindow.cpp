#include "desktops/win32/DialogWindow.h"

#include "desktops/win32/GuestScope.h"
#include "forms/Button.h"
#include "forms/Form.h"
#include "forms/PeerMaker.h"

namespace orx::win32 {
namespace {

/// Controls are numbered in the order of their design from here on.
constexpr int kFirstId = 100;

}  // namespace

DialogWindow::DialogWindow(Form& form) : mForm(form), mDialog(new Dialog(form)), mNextId(kFirstId) {
  const Dialog::Quiet quiet(*mDialog);
  MakePeers(form, nullptr);
  for (const std::unique_ptr<Peer>& peer : mPeers) peer->UpdateAll();
  mDialog->Content().Complete();
  UpdateCaption();
}

DialogWindow::~DialogWindow() {
  Abandon();
}

int DialogWindow::IdOf(const Control& control) {
  const int id = mNextId++;
  const auto* const button = dynamic_cast<const Button*>(&control);
  if (!button || button->Role() == ButtonRole::Plain) return id;
  return button->Role() == ButtonRole::Default ? IDOK : IDCANCEL;
}

void DialogWindow::MakePeers(const Container& container, HWND parent) {
  for (Control* const control : container.Children()) {
    const WindowSite site{parent ? parent : mDialog->Content().HomeOf(*control), IdOf(*control)};
    Peer& peer = *mPeers.emplace_back(PeerMaker<Peer, Dialog, const WindowSite>(*mDialog, site).Make(*control));
    control->Peer(&peer);
    if (const Container* const inner = control->AsContainer()) MakePeers(*inner, peer.Window());
  }
}

HWND DialogWindow::WindowOf(const OwnerWindow& owner) const {
  if (owner.OwnerForm && owner.OwnerForm->Window())
    return reinterpret_cast<HWND>(owner.OwnerForm->Window()->NativeHandle());
  // The dialogs of the platform belong to whole windows, not to the controls in them.
  if (const auto window = reinterpret_cast<HWND>(owner.NativeHandle); window && IsWindow(window))
    return GetAncestor(window, GA_ROOT);
  // Without an owner the dialog is shown in front of the active window; behind a modal window it could not be reached.
  const HWND active = GetActiveWindow();
  return active != mDialog->Window() ? active : nullptr;
}

void DialogWindow::Show(ShowMode mode, OwnerWindow owner) {
  const GuestScope guest;
  mEnded = false;
  UpdatePlace();
  mDialog->Show(mode, WindowOf(owner));
}

void DialogWindow::Hide() {
  mDialog->Hide();
}

void DialogWindow::RunModal() {
  if (mEnded) return;
  const GuestScope guest;
  Desktop& desktop = mForm.OwnerDesktop();
  desktop.ModalIsRunning({.ShownForm = &mForm});
  MSG message;
  while (!mEnded) {
    GetMessageW(&message, nullptr, 0, 0);
    if (HandleOneMessage(message) || mEnded) continue;
    // The host's program is about to end: the dialog closes as if by its close box.
    mForm.WindowLost();
    return;
  }
}

void DialogWindow::EndModal() {
  mEnded = true;
  // The loop may be waiting for a message.
  PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
}

void DialogWindow::UpdateCaption() {
  mDialog->UpdateCaption();
}

void DialogWindow::UpdatePlace() {
  const GuestScope guest;
  mDialog->UpdatePlace();
}

void DialogWindow::UpdateEnabled() {
  // Input is dropped as it is taken from the queue. If the window were disabled, the platform would activate another
  // program's window when a dialog in front of this one closes.
}

void DialogWindow::Repaint() {
  RedrawWindow(mDialog->Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

void DialogWindow::PaintChanges() {
  RedrawWindow(mDialog->Window(), nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
}

void DialogWindow::CallShowUpdates(std::chrono::milliseconds after) {
  mDialog->CallShowUpdates(after);
}

void DialogWindow::DragBottomEdge() {
  mDialog->DragBottomEdge();
}

std::uintptr_t DialogWindow::NativeHandle() const {
  return reinterpret_cast<std::uintptr_t>(mDialog->Window());
}

void DialogWindow::Abandon() {
  if (!mDialog) return;
  mPeers.clear();
  std::exchange(mDialog, nullptr)->Retire();
}

}  // namespace orx::win32
