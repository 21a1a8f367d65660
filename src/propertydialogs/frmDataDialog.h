// Dialog for the data of a layer. The user can make it higher by its lower edge, and it opens where and as high as it
// was closed.
#pragma once

#include "dialogframe/PixelEdges.h"
#include "propertydialogs/PageHostForm.h"
#include "propertydialogs/Placement.h"

namespace orx {

class frmDataDialog final : public PageHostForm {
 public:
  frmDataDialog(Desktop& desktop, IPageFactory& pages);

  /// The strip along the lower edge that takes hold of the mouse, in pixels of the client area.
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
