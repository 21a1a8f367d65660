// Makes the native mirror of each kind of control. Each function is in the file named after its kind.
#pragma once

#include <memory>

#include "desktops/qt/Peer.h"
#include "forms/ControlVisitor.h"

namespace orx::qt {

/// Makes the peer of a control with a new widget in `parent`. The widget does not show the control's state yet: call
/// UpdateAll once all controls have their peers.
std::unique_ptr<Peer> MakePeer(Button& control, Dialog& dialog, QWidget& parent);
std::unique_ptr<Peer> MakePeer(CheckBox& control, Dialog& dialog, QWidget& parent);
std::unique_ptr<Peer> MakePeer(ComboBox& control, Dialog& dialog, QWidget& parent);
std::unique_ptr<Peer> MakePeer(Frame& control, Dialog& dialog, QWidget& parent);
std::unique_ptr<Peer> MakePeer(Label& control, Dialog& dialog, QWidget& parent);
std::unique_ptr<Peer> MakePeer(ListBox& control, Dialog& dialog, QWidget& parent);
std::unique_ptr<Peer> MakePeer(NativeArea& control, Dialog& dialog, QWidget& parent);
std::unique_ptr<Peer> MakePeer(Panel& control, Dialog& dialog, QWidget& parent);
std::unique_ptr<Peer> MakePeer(PictureBox& control, Dialog& dialog, QWidget& parent);
std::unique_ptr<Peer> MakePeer(ProgressBar& control, Dialog& dialog, QWidget& parent);
std::unique_ptr<Peer> MakePeer(TabControl& control, Dialog& dialog, QWidget& parent);
std::unique_ptr<Peer> MakePeer(TextBox& control, Dialog& dialog, QWidget& parent);
std::unique_ptr<Peer> MakePeer(TreeList& control, Dialog& dialog, QWidget& parent);

}  // namespace orx::qt
