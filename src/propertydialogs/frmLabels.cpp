#include "propertydialogs/frmLabels.h"

namespace orx {

frmLabels::frmLabels(Desktop& desktop, IPageFactory& pages)
    : PageHostForm(desktop, pages,
                   {
                       .FormName = "frmLabels",
                       .Caption = "Properties",
                       .HelpKey = "_HelpLayerLabels",
                       .TabCaptions = {"Labels"},
                   },
                   {.Kind = PageKind::LabelProperties, .Name = "LabelProperties1"}) {
}

}  // namespace orx
