#include "propertydialogs/frmLegend.h"

namespace orx {

frmLegend::frmLegend(Desktop& desktop, IPageFactory& pages)
    : PageHostForm(desktop, pages,
                   {
                       .FormName = "frmLegend",
                       .Caption = "Map Annotation Properties",
                       .HelpKey = "_HelpMapLegend",
                       .TabCaptions = {"Legends"},
                       .Layout =
                           {
                               .Client = {6165, 4695},
                               .Tab = {120, 120, 5955, 3975},
                               .ButtonTop = 4200,
                               .HelpLeft = 120,
                               .OKLeft = 2040,
                               .CancelLeft = 3420,
                               .ApplyLeft = 4800,
                           },
                   },
                   {.Kind = PageKind::Legends, .Name = "Legends1"}) {
}

}  // namespace orx
