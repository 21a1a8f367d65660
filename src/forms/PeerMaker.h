// Makes the native mirror of a control of any kind, for all desktops.
#pragma once

#include <memory>
#include <utility>

#include "forms/Control.h"
#include "forms/ControlVisitor.h"

namespace orx {

/// Has the function for the kind of a control called. A desktop has one for each kind, `MakePeer(control, dialog,
/// site)`, in the namespace of its dialog; the site says where in the dialog the native control goes.
template <class Peer, class Dialog, class Site>
class PeerMaker final : public ControlVisitor {
 public:
  /// Dialog and site outlive this.
  PeerMaker(Dialog& dialog, Site& site) : mDialog(dialog), mSite(site) {}

  /// What the function for the control's kind returns.
  std::unique_ptr<Peer> Make(Control& control) {
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
    mMade = MakePeer(control, mDialog, mSite);
  }

  Dialog& mDialog;
  Site& mSite;
  std::unique_ptr<Peer> mMade;
};

}  // namespace orx
