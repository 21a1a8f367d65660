// Makes the native mirror of each kind of control. Each function is in the file named after its kind.
#pragma once

#include <memory>

#include "desktops/win32/Peer.h"
#include "forms/ControlVisitor.h"

namespace orx::win32 {

/// Where a window is to be made, and its control id.
struct WindowSite {
  HWND Parent;
  int Id;
};

/// Makes a child window of one of the system's classes or of this desktop's.
HWND MakeWindow(const wchar_t* className, DWORD style, const WindowSite& site, DWORD extendedStyle = 0);
/// Makes an empty child window that its peer draws or that holds controls.
HWND MakePane(DWORD style, const WindowSite& site);

/// Makes the peer of a control with a new window. The window does not show the control's state yet: call UpdateAll once
/// all controls have their peers.
std::unique_ptr<Peer> MakePeer(Button& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(CheckBox& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(ComboBox& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(Frame& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(Label& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(ListBox& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(NativeArea& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(Panel& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(PictureBox& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(ProgressBar& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(TabControl& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(TextBox& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(TreeList& control, Dialog& dialog, const WindowSite& site);

}  // namespace orx::win32
