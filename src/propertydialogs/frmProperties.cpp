#include "propertydialogs/frmProperties.h"

namespace orx {
namespace {

constexpr PageHostDesign kDesign{
    .FormName = "frmProperties",
    .Caption = "Layer Properties",
    .TabCaption = "Properties",
    .HelpKey = "_HelpMapLayerProperties",
    .Page = PageKind::Properties,
    .PageName = "Properties1",
    .Client = {6465, 5670},
    .Tab = {120, 120, 6255, 4995},
    .ButtonTop = 5220,
    .HelpLeft = 120,
    .OKLeft = 2340,
    .CancelLeft = 3720,
    .ApplyLeft = 5100,
};

}  // namespace

frmProperties::frmProperties(Desktop& desktop, IPageFactory& pages) : PageHostForm(desktop, pages, kDesign) {
}

}  // namespace orx
