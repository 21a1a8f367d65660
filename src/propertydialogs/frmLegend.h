// Dialog for the legends of a map. Its Apply button stays even when there is no call-back to be told.
#pragma once

#include "propertydialogs/PageHostForm.h"

namespace orx {

class frmLegend final : public PageHostForm {
 public:
  frmLegend(Desktop& desktop, IPageFactory& pages);

  /// The legend that the page shows first, by index from 0.
  std::int32_t StartUpIndex() { return Page().StartUpIndex(); }
  void StartUpIndex(std::int32_t value) { Page().StartUpIndex(value); }
};

}  // namespace orx
