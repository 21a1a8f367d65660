#include "datadialogs/frmDataOptions.h"

#include "dialogframe/FocusMark.h"
#include "dialogframe/SelectAllText.h"
#include "forms/ColorRequest.h"
#include "forms/Desktop.h"

namespace orx {
frmDataOptions::frmDataOptions(Desktop& desktop)
    : DialogForm(desktop, "frmDataOptions", {.Caption = "Data Options", .Client = {6690, 5865}}) {
  for (int i = 0; i < kSpecialKinds; ++i) HandleEvents(i);
  cmdDefault.Click = [this] { cmdDefault_Click(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmDataOptions::HandleEvents(int index) {
  chkEnabled[index].Click = [this, index] { Switch(index, &SpecialValueRecord::Enabled, chkEnabled[index]); };
  chkInLegend[index].Click = [this, index] { Switch(index, &SpecialValueRecord::InLegend, chkInLegend[index]); };
  chkTransparent[index].Click = [this, index] {
    Switch(index, &SpecialValueRecord::Transparent, chkTransparent[index]);
  };
  txtMinValue[index].Change = [this, index] { TakeBound(index, &SpecialValueRecord::LowerBound, mMinimum[index]); };
  txtMaxValue[index].Change = [this, index] { TakeBound(index, &SpecialValueRecord::UpperBound, mMaximum[index]); };
  for (TextBox* const field : {&txtMinValue[index], &txtMaxValue[index]})
    field->GotFocus = [field] { modMain::SelectAllText(*field); };
  PictureBox& box = pctColor[index];
  box.Click = [this, index] { pctColor_Click(index); };
  box.GotFocus = [&box] { modMain::DrawInsetFocusRect(box, modMain::kColorBoxInset); };
  box.LostFocus = [&box] { modMain::DrawInsetFocusRect(box, modMain::kColorBoxInset); };
  box.KeyDown = [this, index](int keyCode) {
    if (keyCode != kKeyCodeShift) pctColor_Click(index);
  };
}

void frmDataOptions::Data(HostObject* value) {
  mData = value;
  Hold(value);
}

void frmDataOptions::Form_Load() {
  Center();
  TakeHelpNumber("_HelpLayerDataOptions");
  auto* const options = QueryKind<IDataOptions>(mData);
  if (!options) return Unload();
  mValues.ReadFrom(*options);
  for (PictureBox& box : pctColor) modMain::DrawEdge(box);
  ShowRecord(-1);
  Translate();
}

void frmDataOptions::ShowRecord(int index) {
  if (index != -1) return ShowOne(index);
  for (int i = 0; i < kSpecialKinds; ++i) ShowOne(i);
}

void frmDataOptions::ShowOne(int index) {
  const SpecialValueRecord& record = Record(index);
  mIsBusy = true;
  chkEnabled[index].Value(CheckedIf(record.Enabled));
  chkInLegend[index].Value(CheckedIf(record.InLegend));
  chkTransparent[index].Value(CheckedIf(record.Transparent));
  pctColor[index].BackColor(record.Color);
  mMinimum[index].Show(record.LowerBound);
  mMaximum[index].Show(record.UpperBound);
  for (Control* const control : std::initializer_list<Control*>{
           &lblMinData[index], &lblMaxData[index], &txtMinValue[index], &txtMaxValue[index], &lblColorData[index],
           &chkInLegend[index], &chkTransparent[index], &pctColor[index]})
    control->Enabled(record.Enabled);
  mIsBusy = false;
}

void frmDataOptions::Switch(int index, bool SpecialValueRecord::*field, const CheckBox& box) {
  if (mIsBusy || Record(index).*field == box.IsChecked()) return;
  Record(index).*field = box.IsChecked();
  ShowRecord(index);
  mIsDirty = true;
}

void frmDataOptions::TakeBound(int index, double SpecialValueRecord::*field, const ShownNumber& text) {
  if (mIsBusy) return;
  const std::optional<double> value = text.Value();
  if (!value) return;
  Record(index).*field = *value;
  mIsDirty = true;
}

void frmDataOptions::pctColor_Click(int index) {
  SpecialValueRecord& record = Record(index);
  ColorRequest request{NativeHandle(), kStartFromColor, record.Color};
  if (!OwnerDesktop().ChooseColor(request)) return;
  if (request.Color != record.Color) {
    record.Color = request.Color;
    mIsDirty = true;
  }
  pctColor[index].BackColor(request.Color);
}

void frmDataOptions::cmdDefault_Click() {
  mValues.TakeDefaults();
  ShowRecord(-1);
}

bool frmDataOptions::Refuse(const char* title, const char* text, TextBox& field) {
  OwnerDesktop().ShowMessage({text, title, MessageIcon::Information});
  field.SetFocus();
  return false;
}

bool frmDataOptions::Validate() {
  for (const ShownNumber* const field : {&mMinimum[0], &mMaximum[0], &mMinimum[1]})
    if (!field->Value()) return Refuse("Invalid number", "Valid number required.", field->Box());
  const double lower = *mMinimum[0].Value();
  const double upper = *mMaximum[0].Value();
  if (upper < lower) return Refuse("Invalid range", "Number too large.", txtMinValue[0]);
  Record(0).LowerBound = lower;
  Record(0).UpperBound = upper;
  mValues.ZeroRange(*mMinimum[1].Value());
  return true;
}

void frmDataOptions::cmdOK_Click() {
  if (!Validate()) return;
  OwnerDesktop().Pointer(Pointer::Hourglass);
  try {
    mValues.WriteTo(*QueryKind<IDataOptions>(mData));
    Hide();
  } catch (const std::exception& error) {
    // The host's values are as they were; the user may try again or cancel.
    OwnerDesktop().Pointer(Pointer::Default);
    OwnerDesktop().ShowMessage({error.what(), Caption(), MessageIcon::Exclamation});
  } catch (...) {
    mIsDirty = false;
    throw;
  }
  OwnerDesktop().Pointer(Pointer::Default);
}

void frmDataOptions::cmdCancel_Click() {
  mIsDirty = false;
  Hide();
}

void frmDataOptions::Form_Unload() {
  mData = nullptr;
  mIsDirty = false;
  DialogForm::Form_Unload();
}

}  // namespace orx
