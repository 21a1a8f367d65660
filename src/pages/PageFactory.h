// Makes the map library's property pages by kind.
#pragma once

#include "hostobjects/PropertyPage.h"

namespace orx::pages {

/// The default pages. They edit the objects of any host that offers ILayer, ILabels, IExtent or IMap, and ILegends.
class PageFactory final : public IPageFactory {
 public:
  std::unique_ptr<PropertyPage> CreatePage(PageKind kind, const PageSite& site) override;
};

}  // namespace orx::pages
