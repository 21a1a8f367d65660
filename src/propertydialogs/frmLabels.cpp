#include "propertydialogs/frmLabels.h"

namespace orx {
namespace {

constexpr PageHostDesign kLabelsDesign{
    .FormName = "frmLabels",
    .Caption = "Properties",
    .TabCaption = "Labels",
    .HelpKey = "_HelpLayerLabels",
    .Page = PageKind::LabelProperties,
    .PageName = "LabelProperties1",
};

}  // namespace

frmLabels::frmLabels(Desktop& desktop, IPageFactory& pages) : PageHostForm(desktop, pages, kLabelsDesign) {
}

}  // namespace orx
