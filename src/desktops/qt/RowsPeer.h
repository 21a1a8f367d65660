// The mirror of all lists whose rows stay in their control.
#pragma once

#include "desktops/qt/Peer.h"
#include "desktops/qt/RowModel.h"
#include "desktops/qt/RowsView.h"

namespace orx::qt {

/// A view that reads only what it paints. It shows rows and scrolls; mouse and keys are handled in the control.
class RowsPeer : public Peer {
 public:
  RowsPeer(Control& control, RowList& rows, Dialog& dialog, RowsView* view);
  ~RowsPeer() override;

 protected:
  RowsView& View() const { return mView; }
  RowModel& Model() const { return mModel; }

 private:
  void Pressed(QPoint at, bool isSecond);

  Control& mControl;
  RowList& mRows;
  RowsView& mView;
  RowModel& mModel;
};

}  // namespace orx::qt
