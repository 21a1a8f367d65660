// Dialog for the coordinates of a layer or map.
#pragma once

#include "propertydialogs/PageHostForm.h"

namespace orx {

class frmCoordinates final : public PageHostForm {
 public:
  frmCoordinates(Desktop& desktop, IPageFactory& pages);
};

}  // namespace orx
