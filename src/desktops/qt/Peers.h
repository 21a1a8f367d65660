// The native mirror of each kind of control, one function a kind, each in the file named after the kind.
#pragma once

#include <memory>

#include "desktops/qt/Peer.h"
#include "forms/ControlVisitor.h"

namespace orx::qt {

/// Makes the peer of a control with a new widget in `parent`. The widget shows nothing of the control yet: call
/// UpdateAll when the peers of all controls are there.
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

/// Makes the peer of a control of any kind.
class PeerMaker final : public ControlVisitor {
 public:
  explicit PeerMaker(Dialog& dialog) : mDialog(dialog) {}

  std::unique_ptr<Peer> Make(Control& control, QWidget& parent) {
    mParent = &parent;
    control.Accept(*this);
    return std::move(mMade);
  }

  void Visit(Button& control) override { Take(control); }
  void Visit(CheckBox& control) override { Take(control); }
  void Visit(ComboBox& control) override { Take(control); }
  void Visit(Frame& control) override { Take(control); }
  void Visit(Label& control) override { Take(control); }
  void Visit(ListBox& control) override { Take(control); }
  void Visit(NativeArea& control) override { Take(control); }
  void Visit(Panel& control) override { Take(control); }
  void Visit(PictureBox& control) override { Take(control); }
  void Visit(ProgressBar& control) override { Take(control); }
  void Visit(TabControl& control) override { Take(control); }
  void Visit(TextBox& control) override { Take(control); }
  void Visit(TreeList& control) override { Take(control); }

 private:
  template <class Kind>
  void Take(Kind& control) {
    mMade = MakePeer(control, mDialog, *mParent);
  }

  Dialog& mDialog;
  QWidget* mParent = nullptr;
  std::unique_ptr<Peer> mMade;
};

}  // namespace orx::qt
