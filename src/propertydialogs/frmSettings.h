// Dialog for all settings of a layer, with all four property pages. Its Apply button stays even without a call-back.
#pragma once

#include "propertydialogs/PageHostForm.h"

namespace orx {

class frmSettings final : public PageHostForm {
 public:
  frmSettings(Desktop& desktop, IPageFactory& pages);

 protected:
  void Ready() override;
  /// A dialog whose pages could not be made is shown without them.
  void Form_Resize() override {
    if (HasPages()) RefreshContents();
  }
  /// Changes that were applied no longer count.
  void Apply() override;
};

}  // namespace orx
