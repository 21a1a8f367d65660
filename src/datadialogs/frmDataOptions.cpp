#include "datadialogs/frmDataOptions.h"

#include "dialogframe/SelectAllText.h"
#include "forms/BusyScope.h"
#include "forms/Desktop.h"

namespace orx {
frmDataOptions::frmDataOptions(Desktop& desktop)
    : EditForm(desktop, {.Name = "frmDataOptions",
                         .Caption = "Data Options",
                         .HelpKey = "_HelpLayerDataOptions",
                         .Client = {6690, 5865}}) {
  for (int i = 0; i < kSpecialKinds; ++i) HandleEvents(i);
  cmdDefault.Click = [this] { cmdDefault_Click(); };
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
  mColors[index].Chosen = [this, index](Color color) {
    Record(index).Color = color;
    IsDirty(true);
  };
}

void frmDataOptions::Fill() {
  auto* const options = QueryKind<IDataOptions>(Subject());
  if (!options) return Unload();
  mValues.ReadFrom(*options);
  for (ColorBox& box : mColors) box.DrawEdge();
  ShowRecord(-1);
}

void frmDataOptions::ShowRecord(int index) {
  if (index != -1) return ShowOne(index);
  for (int i = 0; i < kSpecialKinds; ++i) ShowOne(i);
}

void frmDataOptions::ShowOne(int index) {
  const SpecialValueRecord& record = Record(index);
  const BusyScope busy(mIsBusy);
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
}

void frmDataOptions::Switch(int index, bool SpecialValueRecord::*field, const CheckBox& box) {
  if (mIsBusy || Record(index).*field == box.IsChecked()) return;
  Record(index).*field = box.IsChecked();
  ShowRecord(index);
  IsDirty(true);
}

void frmDataOptions::TakeBound(int index, double SpecialValueRecord::*field, const ShownNumber& text) {
  if (mIsBusy) return;
  const std::optional<double> value = text.Value();
  if (!value) return;
  Record(index).*field = *value;
  IsDirty(true);
}

void frmDataOptions::cmdDefault_Click() {
  mValues.TakeDefaults();
  ShowRecord(-1);
}

bool frmDataOptions::Check() {
  for (const ShownNumber* const field : {&mMinimum[0], &mMaximum[0], &mMinimum[1]})
    if (!field->Value())
      return Refuse({"Valid number required.", "Invalid number", MessageIcon::Information}, field->Box());
  const double lower = *mMinimum[0].Value();
  const double upper = *mMaximum[0].Value();
  if (upper < lower) return Refuse({"Number too large.", "Invalid range", MessageIcon::Information}, txtMinValue[0]);
  Record(0).LowerBound = lower;
  Record(0).UpperBound = upper;
  mValues.ZeroRange(*mMinimum[1].Value());
  return true;
}

bool frmDataOptions::Save() {
  try {
    mValues.WriteTo(*QueryKind<IDataOptions>(Subject()));
    return true;
  } catch (const std::exception& error) {
    // The host's values are as they were; the user may try again or cancel.
    OwnerDesktop().Pointer(Pointer::Default);
    OwnerDesktop().ShowMessage({error.what(), Caption(), MessageIcon::Exclamation});
    return false;
  } catch (...) {
    IsDirty(false);
    throw;
  }
}

}  // namespace orx
