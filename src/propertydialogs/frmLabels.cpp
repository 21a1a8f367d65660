#include "propertydialogs/frmLabels.h"

namespace orx {

frmLabels::frmLabels(Desktop& desktop, IPageFactory& pages)
    : PageHostForm(desktop, pages,
                   {.Name = "frmLabels",
                    .Caption = "Properties",
                    .HelpKey = "_HelpLayerLabels",
                    .Pages = {{PageKind::LabelProperties, "LabelProperties1", "Labels"}}}) {
}

}  // namespace orx
