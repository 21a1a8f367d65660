// Dialog for the labels of a layer.
#pragma once

#include "propertydialogs/PageHostForm.h"

namespace orx {

class frmLabels final : public PageHostForm {
 public:
  frmLabels(Desktop& desktop, IPageFactory& pages);
};

}  // namespace orx
