#include "propertydialogs/frmProperties.h"

namespace orx {
namespace {

constexpr PageHostDesign kPropertiesDesign{
    .FormName = "frmProperties",
    .Caption = "Layer Properties",
    .TabCaption = "Properties",
    .HelpKey = "_HelpMapLayerProperties",
    .Page = PageKind::Properties,
    .PageName = "Properties1",
};

}  // namespace

frmProperties::frmProperties(Desktop& desktop, IPageFactory& pages) : PageHostForm(desktop, pages, kPropertiesDesign) {
}

}  // namespace orx
