#include "propertydialogs/frmLegend.h"

namespace orx {
namespace {

constexpr PageHostDesign kLegendDesign{
    .FormName = "frmLegend",
    .Caption = "Map Annotation Properties",
    .TabCaption = "Legends",
    .HelpKey = "_HelpMapLegend",
    .Page = PageKind::Legends,
    .PageName = "Legends1",
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
};

}  // namespace

frmLegend::frmLegend(Desktop& desktop, IPageFactory& pages) : PageHostForm(desktop, pages, kLegendDesign) {
}

}  // namespace orx
