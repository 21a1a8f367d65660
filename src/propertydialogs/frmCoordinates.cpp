#include "propertydialogs/frmCoordinates.h"

namespace orx {
namespace {

constexpr PageHostDesign kCoordinatesDesign{
    .FormName = "frmCoordinates",
    .Caption = "Properties",
    .TabCaption = "Coordinates",
    .HelpKey = "_HelpLayerCoordinates",
    .Page = PageKind::Coordinates,
    .PageName = "Coordinates1",
};

}  // namespace

frmCoordinates::frmCoordinates(Desktop& desktop, IPageFactory& pages)
    : PageHostForm(desktop, pages, kCoordinatesDesign) {
}

}  // namespace orx
