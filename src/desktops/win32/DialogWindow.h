// The window of a form: the dialog, the peers of all controls, and the modal loop.
#pragma once

#include <memory>
#include <vector>

#include "desktops/win32/GuestScope.h"
#include "desktops/win32/Peers.h"
#include "forms/FormWindow.h"

namespace orx::win32 {

class DialogWindow final : public FormWindow {
 public:
  /// Throws std::runtime_error when the platform refuses one of the windows.
  explicit DialogWindow(Form& form);
  ~DialogWindow() override;

  void Show(ShowMode mode, OwnerWindow owner) override;
  void Hide() override;
  void RunModal() override;
  void EndModal() override;
  void UpdateCaption() override;
  void UpdatePlace() override;
  void UpdateEnabled() override;
  void Repaint() override;
  void PaintChanges() override;
  void CallShowUpdates(std::chrono::milliseconds after) override;
  void DragBottomEdge() override;
  std::uintptr_t NativeHandle() const override;
  void RunAsHost(const std::function<void()>& act) override;
  void Abandon() override;

 private:
  void MakePeers(const Container& container, HWND parent);
  int IdOf(const Control& control);
  /// The host's or the form's window behind this one, null when there is none.
  HWND WindowOf(ShowMode mode, const OwnerWindow& owner) const;

  Form& mForm;
  Dialog* mDialog;
  /// Those in which the form was shown.
  Surroundings mHost;
  std::vector<std::unique_ptr<Peer>> mPeers;
  int mNextId;
  bool mEnded = false;
};

}  // namespace orx::win32
