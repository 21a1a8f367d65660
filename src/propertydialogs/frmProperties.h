// Dialog for the general properties of a layer.
#pragma once

#include "propertydialogs/PageHostForm.h"

namespace orx {

class frmProperties final : public PageHostForm {
 public:
  frmProperties(Desktop& desktop, IPageFactory& pages);
};

}  // namespace orx
