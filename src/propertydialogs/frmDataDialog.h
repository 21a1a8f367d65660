// Dialog for the data of a layer. The user can drag its lower edge to make it taller, and it reopens with the place and
// height that it was closed with.
#pragma once

#include "dialogframe/PixelEdges.h"
#include "propertydialogs/PageHostForm.h"
#include "propertydialogs/Placement.h"

namespace orx {

class frmDataDialog final : public PageHostForm {
 public:
  frmDataDialog(Desktop& desktop, IPageFactory& pages);

  /// The strip along the lower edge by which the user sizes the window, in pixels of the client area.
  const PixelEdges& SizingStrip() const { return mStrip; }

 protected:
  void Arrange() override;
  void Form_Resize() override;
  void Form_Unload() override;
  void Form_MouseMove(Point at) override;
  void Form_MouseDown(Point at) override;

 private:
  Placement Kept() const;
  void LayOut();
  bool IsOnStrip(Point at) const;

  PixelEdges mStrip;
};

}  // namespace orx
