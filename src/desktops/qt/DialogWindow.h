// The window of a form: the dialog, the peers of all controls, and the modal loop.
#pragma once

#include <QEventLoop>
#include <QMetaObject>
#include <exception>
#include <memory>
#include <vector>

#include "desktops/qt/Peers.h"
#include "forms/FormWindow.h"

class QWindow;

namespace orx::qt {

class DialogWindow final : public FormWindow {
 public:
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
  void Abandon() override;

  /// Null when the form has let the window go.
  Dialog* Native() const { return mDialog; }

 private:
  void MakePeers(const Container& container, QWidget* parent);
  void OrderTabs() const;
  /// The host's or the form's window behind this one, null when there is none.
  QWindow* WindowOf(const OwnerWindow& owner) const;
  /// The dialog ends with the host's window that it belongs to.
  void EndWith(const OwnerWindow& owner);

  Form& mForm;
  Dialog* mDialog;
  std::vector<std::unique_ptr<Peer>> mPeers;
  QEventLoop mLoop;
  QMetaObject::Connection mOwnerLost;
  std::exception_ptr mHookError;
  bool mEnded = false;
};

}  // namespace orx::qt
