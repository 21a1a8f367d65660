#include "propertydialogs/frmProperties.h"

namespace orx {

frmProperties::frmProperties(Desktop& desktop, IPageFactory& pages)
    : PageHostForm(desktop, pages,
                   {
                       .FormName = "frmProperties",
                       .Caption = "Layer Properties",
                       .HelpKey = "_HelpMapLayerProperties",
                       .TabCaptions = {"Properties"},
                   },
                   {.Kind = PageKind::Properties, .Name = "Properties1"}) {
}

}  // namespace orx
