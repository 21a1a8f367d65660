#include "datadialogs/frmManageColors.h"

namespace orx {
frmManageColors::frmManageColors(Desktop& desktop)
    : DialogForm(desktop, "frmManageColors", {.Caption = "Color Scheme", .Client = {6240, 3645}}) {
  cmdOK.Click = [this] {
    mCanceled = false;
    Hide();
  };
  cmdCancel.Click = [this] {
    mCanceled = true;
    Hide();
  };
}

void frmManageColors::Form_Load() {
  Center();
  TakeHelpNumber("_HelpMapColors");
  Translate();
}

}  // namespace orx
