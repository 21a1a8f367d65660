#include "datadialogs/frmManageColors.h"

namespace orx {
frmManageColors::frmManageColors(Desktop& desktop)
    : OkCancelForm(
          desktop,
          {.Name = "frmManageColors", .Caption = "Color Scheme", .HelpKey = "_HelpMapColors", .Client = {6240, 3645}}) {
}

}  // namespace orx
