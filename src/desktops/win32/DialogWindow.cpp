#include "desktops/win32/DialogWindow.h"

#include "desktops/win32/Owners.h"
#include "forms/Button.h"
#include "forms/Form.h"
#include "forms/PeerMaker.h"

namespace orx::win32 {
namespace {

/// Controls are numbered in the order of their design from here on.
constexpr int kFirstId = 100;

}  // namespace

DialogWindow::DialogWindow(Form& form) : mForm(form), mDialog(new Dialog(form)), mNextId(kFirstId) {
  try {
    const Dialog::Quiet quiet(*mDialog);
    mDialog->Content().Open(mDialog->Window());
    MakePeers(form, nullptr);
    for (const std::unique_ptr<Peer>& peer : mPeers) peer->UpdateAll();
    mDialog->Content().Complete();
    UpdateCaption();
  } catch (...) {
    for (Control* const control : form.All()) control->Peer(nullptr);
    Abandon();
    throw;
  }
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
    const HWND home = parent ? parent : mDialog->Content().HomeOf(*control);
    const WindowSite site{home, IdOf(*control), mForm.RightToLeft()};
    Peer& peer = *mPeers.emplace_back(PeerMaker<Peer, Dialog, const WindowSite>(*mDialog, site).Make(*control));
    control->Peer(&peer);
    if (const Container* const inner = control->AsContainer()) MakePeers(*inner, peer.Window());
  }
}

HWND DialogWindow::WindowOf(ShowMode mode, const OwnerWindow& owner) const {
  if (owner.OwnerForm && owner.OwnerForm->Window())
    return reinterpret_cast<HWND>(owner.OwnerForm->Window()->NativeHandle());
  if (const HWND window = NamedOwner(owner.NativeHandle)) return window;
  return mode == ShowMode::Modal ? ForemostWindow(mDialog->Window()) : nullptr;
}

void DialogWindow::Show(ShowMode mode, OwnerWindow owner) {
  mHost = Surroundings::OfThread();
  const GuestScope guest;
  mEnded = false;
  UpdatePlace();
  mDialog->Show(mode, WindowOf(mode, owner));
}

void DialogWindow::Hide() {
  const GuestScope guest;
  mDialog->Hide();
}

void DialogWindow::RunModal() {
  if (mEnded) return;
  // The host's own windows and timers are served here as well, so the loop is run in the host's surroundings.
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
  const GuestScope guest;
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
  const GuestScope guest;
  RedrawWindow(mDialog->Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

void DialogWindow::PaintChanges() {
  const GuestScope guest;
  RedrawWindow(mDialog->Window(), nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
}

void DialogWindow::CallShowUpdates(std::chrono::milliseconds after) {
  mDialog->CallShowUpdates(after);
}

void DialogWindow::DragBottomEdge() {
  const GuestScope guest;
  mDialog->DragBottomEdge();
}

std::uintptr_t DialogWindow::NativeHandle() const {
  return reinterpret_cast<std::uintptr_t>(mDialog->Window());
}

void DialogWindow::RunAsHost(const std::function<void()>& act) {
  const SurroundingsScope host(mHost);
  act();
}

void DialogWindow::Abandon() {
  if (!mDialog) return;
  const GuestScope guest;
  mPeers.clear();
  std::exchange(mDialog, nullptr)->Retire();
}

}  // namespace orx::win32
