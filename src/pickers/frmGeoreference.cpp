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
    : DialogForm(desktop, "frmGeoreference", {.Caption = "Georeference", .Client = {4830, 3165}}) {
  for (int i = 0; i < kEdges; ++i) {
    txtInput[i].GotFocus = [this, i] { txtInput_GotFocus(i); };
    txtInput[i].LostFocus = [this, i] { txtInput_LostFocus(i); };
  }
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmGeoreference::Form_Load() {
  mCanceled = false;
  Center();
  TakeHelpNumber("_HelpMapGeoreference");
  const double edges[] = {mLeft, mRight, mBottom, mTop};
  for (int i = 0; i < kEdges; ++i) txtInput[i].Text(numbers::ShortestText(edges[i], OwnerDesktop().Separators()));
  mFirstWidth = mRight - mLeft;
  mFirstBottom = mBottom;
  mFirstTop = mTop;
  mRatio = mFirstWidth / (mTop - mBottom);
  Translate();
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
  if (!value || !Take(index, *value)) return Refuse(field);
  txtInput[EdgeTop].Text(numbers::FormatNumber(mTop, kTopFormat, separators));
  mTextOnEntry = field.Text();
}

bool frmGeoreference::Take(int index, double value) {
  const double left = index == EdgeLeft ? value : mLeft;
  const double right = index == EdgeRight ? value : mRight;
  const double bottom = index == EdgeBottom ? value : mBottom;
  const double width = right - left;
  // What is typed back to where it was brings back the very same top edge, free of rounding.
  const double top = width == mFirstWidth && bottom == mFirstBottom ? mFirstTop : width / mRatio + bottom;
  if (!std::isfinite(top)) return false;
  mLeft = left;
  mRight = right;
  mBottom = bottom;
  mTop = top;
  return true;
}

void frmGeoreference::Refuse(TextBox& field) {
  const std::string before = mTextOnEntry;
  OwnerDesktop().ShowMessage({"Input not valid.", kWrongValueTitle, MessageIcon::Exclamation});
  field.Text(before);
  field.SetFocus();
}

void frmGeoreference::cmdOK_Click() {
  mCanceled = !(mLeft < mRight);
  if (!mCanceled) return Hide();
  OwnerDesktop().ShowMessage(
      {"Right value must be greater than right value.", kWrongValueTitle, MessageIcon::Exclamation});
}

void frmGeoreference::cmdCancel_Click() {
  mCanceled = true;
  Hide();
}

void frmGeoreference::Form_Unload() {
  // Who closes the window has confirmed nothing.
  mCanceled = true;
  DialogForm::Form_Unload();
}

}  // namespace orx
