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
};

}  // namespace

frmCoordinates::frmCoordinates(Desktop& desktop, IPageFactory& pages) : PageHostForm(desktop, pages, kDesign) {
}

}  // namespace orx
