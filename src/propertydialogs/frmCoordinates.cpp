#include "propertydialogs/frmCoordinates.h"

namespace orx {
namespace {

constexpr PageHostDesign kDesign{
    .FormName = "frmCoordinates",
    .Caption = "Properties",
    .TabCaption = "Coordinates",
    .HelpKey = "_HelpLayerCoordinates",
    .Page = PageKind::Coordinates,
    .PageName = "Coordinates1",
    .Client = {6465, 5670},
    .Tab = {120, 120, 6255, 4995},
    .ButtonTop = 5220,
    .HelpLeft = 120,
    .OKLeft = 2340,
    .CancelLeft = 3720,
    .ApplyLeft = 5100,
};

}  // namespace

frmCoordinates::frmCoordinates(Desktop& desktop, IPageFactory& pages) : PageHostForm(desktop, pages, kDesign) {
}

}  // namespace orx
