#include "propertydialogs/frmLabels.h"

namespace orx {
namespace {

constexpr PageHostDesign kDesign{
    .FormName = "frmLabels",
    .Caption = "Properties",
    .TabCaption = "Labels",
    .HelpKey = "_HelpLayerLabels",
    .Page = PageKind::LabelProperties,
    .PageName = "LabelProperties1",
    .Client = {6465, 5670},
    .Tab = {120, 120, 6255, 4995},
    .ButtonTop = 5220,
    .HelpLeft = 120,
    .OKLeft = 2340,
    .CancelLeft = 3720,
    .ApplyLeft = 5100,
};

}  // namespace

frmLabels::frmLabels(Desktop& desktop, IPageFactory& pages) : PageHostForm(desktop, pages, kDesign) {
}

}  // namespace orx
