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
  Fields& fields = mFields[index];
  chkEnabled[index].Click = [this, index, &fields] { Switch(index, fields.Enabled); };
  chkInLegend[index].Click = [this, index, &fields] { Switch(index, fields.InLegend); };
  chkTransparent[index].Click = [this, index, &fields] { Switch(index, fields.Transparent); };
  txtMinValue[index].Change = [this, index, &fields] { TakeBound(index, fields.Minimum); };
  txtMaxValue[index].Change = [this, index, &fields] { TakeBound(index, fields.Maximum); };
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
  const bool isEnabled = Record(index).Enabled;
  mIsBusy = true;
  mFields[index].All.Read();
  for (Control* const control : std::initializer_list<Control*>{
           &lblMinData[index], &lblMaxData[index], &txtMinValue[index], &txtMaxValue[index], &lblColorData[index],
           &chkInLegend[index], &chkTransparent[index], &pctColor[index]})
    control->Enabled(isEnabled);
  mIsBusy = false;
}

void frmDataOptions::Switch(int index, FlagSetting& setting) {
  if (mIsBusy || !setting.Differs()) return;
  mFields[index].All.Write(setting);
  ShowRecord(index);
  mIsDirty = true;
}

void frmDataOptions::TakeBound(int index, NumberSetting& setting) {
  if (mIsBusy || !setting.Value()) return;
  mFields[index].All.Write(setting);
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

bool frmDataOptions::Refuse(const char* title, const char* text, Control& field) {
  OwnerDesktop().ShowMessage({text, title, MessageIcon::Information});
  field.SetFocus();
  return false;
}

bool frmDataOptions::Validate() {
  const auto& [missing, zero, noData] = mFields;
  for (const NumberSetting* const field : {&missing.Minimum, &missing.Maximum, &zero.Minimum})
    if (!field->Value()) return Refuse("Invalid number", "Valid number required.", field->Box());
  const double lower = *missing.Minimum.Value();
  const double upper = *missing.Maximum.Value();
  if (upper < lower) return Refuse("Invalid range", "Number too large.", txtMinValue[0]);
  Record(0).LowerBound = lower;
  Record(0).UpperBound = upper;
  mValues.ZeroRange(*zero.Minimum.Value());
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
