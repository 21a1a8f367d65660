#include "propertydialogs/frmProperties.h"

namespace orx {

frmProperties::frmProperties(Desktop& desktop, IPageFactory& pages)
    : PageHostForm(desktop, pages,
                   {.Name = "frmProperties",
                    .Caption = "Layer Properties",
                    .HelpKey = "_HelpMapLayerProperties",
                    .Pages = {{PageKind::Properties, "Properties1", "Properties"}}}) {
}

}  // namespace orx
