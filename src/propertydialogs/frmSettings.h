// Dialog for all settings of a layer: its four property pages at once. Its Apply button stays even when there is no
// call-back to be told.
#pragma once

#include "propertydialogs/PageHostForm.h"

namespace orx {

class frmSettings final : public PageHostForm {
 public:
  frmSettings(Desktop& desktop, IPageFactory& pages);

 protected:
  void Ready() override;
  void Form_Resize() override { RefreshContents(); }
  /// What was applied is no change any more.
  void Apply() override;
};

}  // namespace orx
