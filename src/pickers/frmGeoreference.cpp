#include "pickers/frmGeoreference.h"

#include <cmath>

#include "dialogframe/SelectAllText.h"
#include "forms/Desktop.h"
#include "numbers/Numbers.h"
#include "text/Trimmed.h"

namespace orx {
namespace {

constexpr char kWrongValueTitle[] = "Wrong value";
constexpr char kTopFormat[] = "0.0000";

enum Edge { EdgeLeft, EdgeRight, EdgeBottom, EdgeTop };

}  // namespace

frmGeoreference::frmGeoreference(Desktop& desktop)
    : OkCancelForm(desktop, {.Name = "frmGeoreference",
                             .Caption = "Georeference",
                             .HelpKey = "_HelpMapGeoreference",
                             .Client = {4830, 3165}}) {
  for (int i = 0; i < kEdges; ++i) {
    if (i != EdgeTop) txtInput[i].Text("0");
    txtInput[i].GotFocus = [this, i] { txtInput_GotFocus(i); };
    txtInput[i].LostFocus = [this, i] { txtInput_LostFocus(i); };
  }
}

void frmGeoreference::Fill() {
  const double edges[] = {mLeft, mRight, mBottom, mTop};
  for (int i = 0; i < kEdges; ++i) txtInput[i].Text(numbers::ShortestText(edges[i], OwnerDesktop().Separators()));
  mFirstWidth = mRight - mLeft;
  mFirstBottom = mBottom;
  mFirstTop = mTop;
  mRatio = mFirstWidth / (mTop - mBottom);
}

void frmGeoreference::txtInput_GotFocus(int index) {
  mTextOnEntry = Trimmed(txtInput[index].Text(), kSpaces);
  modMain::SelectAllText(txtInput[index]);
}

void frmGeoreference::txtInput_LostFocus(int index) {
  TextBox& field = txtInput[index];
  if (Trimmed(field.Text(), kSpaces) == mTextOnEntry) return;
  const numbers::Separators separators = OwnerDesktop().Separators();
  const std::optional<double> value = numbers::ToDouble(field.Text(), separators);
  if (!value || !Take(index, *value))
    return PutBack({"Input not valid.", kWrongValueTitle, MessageIcon::Exclamation}, field, mTextOnEntry);
  txtInput[EdgeTop].Text(numbers::FormatNumber(mTop, kTopFormat, separators));
  mTextOnEntry = field.Text();
}

bool frmGeoreference::Take(int index, double value) {
  const double left = index == EdgeLeft ? value : mLeft;
  const double right = index == EdgeRight ? value : mRight;
  const double bottom = index == EdgeBottom ? value : mBottom;
  const double width = right - left;
  // Typing the original values again restores the original top edge exactly, without rounding.
  const double top = width == mFirstWidth && bottom == mFirstBottom ? mFirstTop : width / mRatio + bottom;
  if (!std::isfinite(top)) return false;
  mLeft = left;
  mRight = right;
  mBottom = bottom;
  mTop = top;
  return true;
}

bool frmGeoreference::Check() {
  if (mLeft < mRight) return true;
  Conclude(Outcome::Canceled);
  OwnerDesktop().ShowMessage(
      {"Right value must be greater than right value.", kWrongValueTitle, MessageIcon::Exclamation});
  return false;
}

void frmGeoreference::Form_Unload() {
  // Closing the window confirms nothing.
  Conclude(Outcome::Canceled);
  OkCancelForm::Form_Unload();
}

}  // namespace orx
