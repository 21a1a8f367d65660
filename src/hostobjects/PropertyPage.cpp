#include "hostobjects/PropertyPage.h"

#include "hostobjects/RunTimeError.h"

namespace orx {

const char* PageKindName(PageKind kind) {
  switch (kind) {
    case PageKind::Properties:
      return "Properties";
    case PageKind::LabelProperties:
      return "LabelProperties";
    case PageKind::Coordinates:
      return "Coordinates";
    case PageKind::Legends:
      return "Legends";
    case PageKind::DataProperties:
      return "DataProperties";
  }
  return "";
}

std::unique_ptr<PropertyPage> RequirePage(IPageFactory& factory, PageKind kind, const PageSite& site) {
  if (auto page = factory.CreatePage(kind, site)) return page;
  throw RunTimeError(kErrorNoSuchPage, std::string("No property page \"") + PageKindName(kind) +
                                           "\" is available. Give the service a page factory that makes it.");
}

}  // namespace orx
