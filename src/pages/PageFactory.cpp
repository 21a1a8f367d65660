#include "pages/PageFactory.h"

#include "pages/CoordinatesPage.h"
#include "pages/DataPropertiesPage.h"
#include "pages/LabelPropertiesPage.h"
#include "pages/LegendsPage.h"
#include "pages/PropertiesPage.h"

namespace orx::pages {

std::unique_ptr<PropertyPage> PageFactory::CreatePage(PageKind kind, const PageSite& site) {
  switch (kind) {
    case PageKind::Properties:
      return std::make_unique<PropertiesPage>(site);
    case PageKind::LabelProperties:
      return std::make_unique<LabelPropertiesPage>(site);
    case PageKind::Coordinates:
      return std::make_unique<CoordinatesPage>(site);
    case PageKind::Legends:
      return std::make_unique<LegendsPage>(site);
    case PageKind::DataProperties:
      return std::make_unique<DataPropertiesPage>(site);
  }
  return nullptr;
}

}  // namespace orx::pages
