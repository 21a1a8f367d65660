#include "propertydialogs/frmCoordinates.h"

namespace orx {

frmCoordinates::frmCoordinates(Desktop& desktop, IPageFactory& pages)
    : PageHostForm(desktop, pages,
                   {
                       .FormName = "frmCoordinates",
                       .Caption = "Properties",
                       .HelpKey = "_HelpLayerCoordinates",
                       .TabCaptions = {"Coordinates"},
                   },
                   {.Kind = PageKind::Coordinates, .Name = "Coordinates1"}) {
}

}  // namespace orx
