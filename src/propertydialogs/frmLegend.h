// Dialog for the legends of a map. Its Apply button stays even without a call-back.
#pragma once

#include <cstdint>

#include "propertydialogs/PageHostForm.h"

namespace orx {

class frmLegend final : public PageHostForm {
 public:
  frmLegend(Desktop& desktop, IPageFactory& pages);

  /// Unlike the others, registers the call-back before the object.
  void Take(const PropertyTask& task, ErrorTrap& trap) override;
  /// The legend that the page shows first, by index from 0.
  std::int32_t StartUpIndex() { return Pages().Of(PageKind::Legends).StartUpIndex(); }
  void StartUpIndex(std::int32_t value) { Pages().Of(PageKind::Legends).StartUpIndex(value); }

 protected:
  void Form_Resize() override {}
};

}  // namespace orx
