#include "propertydialogs/frmCoordinates.h"

namespace orx {

frmCoordinates::frmCoordinates(Desktop& desktop, IPageFactory& pages)
    : PageHostForm(desktop, pages,
                   {.Name = "frmCoordinates",
                    .Caption = "Properties",
                    .HelpKey = "_HelpLayerCoordinates",
                    .Pages = {{PageKind::Coordinates, "Coordinates1", "Coordinates"}}}) {
}

}  // namespace orx
