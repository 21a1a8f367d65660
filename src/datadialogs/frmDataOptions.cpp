#include "datadialogs/frmDataOptions.h"

#include "dialogframe/SelectAllText.h"
#include "forms/BusyScope.h"
#include "forms/Desktop.h"
#include "forms/ErrorText.h"
#include "hostobjects/RunTimeError.h"

namespace orx {
frmDataOptions::frmDataOptions(Desktop& desktop)
    : EditForm(desktop, {.Name = "frmDataOptions",
                         .Caption = "Data Options",
                         .HelpKey = "_HelpLayerDataOptions",
                         .Client = {6690, 5205}}) {
  for (int i = 0; i < kSpecialKinds; ++i) HandleEvents(i);
  cmdDefault.Click = [this] { cmdDefault_Click(); };
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
  mColors[index].Chosen = [this, index](Color color) {
    Record(index).Color = color;
    IsDirty(true);
  };
}

void frmDataOptions::Fill() {
  if (!Edited<IDataOptions>()) return Unload();
  mValues.ReadFrom([this] { return Options(); });
  for (ColorBox& box : mColors) box.DrawEdge();
  ShowRecord(-1);
}

void frmDataOptions::ShowRecord(int index) {
  if (index != -1) return ShowOne(index);
  for (int i = 0; i < kSpecialKinds; ++i) ShowOne(i);
}

void frmDataOptions::ShowOne(int index) {
  const bool isEnabled = Record(index).Enabled;
  const BusyScope busy(mIsBusy);
  mFields[index].All.Read();
  for (Control* const control : std::initializer_list<Control*>{
           &lblMinData[index], &lblMaxData[index], &txtMinValue[index], &txtMaxValue[index], &lblColorData[index],
           &chkInLegend[index], &chkTransparent[index], &pctColor[index]})
    control->Enabled(isEnabled);
}

void frmDataOptions::Switch(int index, FlagSetting& setting) {
  if (mIsBusy || !setting.Differs()) return;
  mFields[index].All.Write(setting);
  ShowRecord(index);
  IsDirty(true);
}

void frmDataOptions::TakeBound(int index, NumberSetting& setting) {
  if (mIsBusy || !setting.Value()) return;
  mFields[index].All.Write(setting);
  IsDirty(true);
}

void frmDataOptions::cmdDefault_Click() {
  mValues.TakeDefaults();
  ShowRecord(-1);
}

bool frmDataOptions::Check() {
  const auto& [missing, zero, noData] = mFields;
  for (const NumberSetting* const field : {&missing.Minimum, &missing.Maximum, &zero.Minimum})
    if (!field->Value())
      return Refuse({"Valid number required.", "Invalid number", MessageIcon::Information}, field->Box(), First::Focus);
  const double lower = *missing.Minimum.Value();
  const double upper = *missing.Maximum.Value();
  if (upper < lower)
    return Refuse({"Number too large.", "Invalid range", MessageIcon::Information}, txtMinValue[0], First::Focus);
  Record(0).LowerBound = lower;
  Record(0).UpperBound = upper;
  mValues.ZeroRange(*zero.Minimum.Value());
  return true;
}

IDataOptions* frmDataOptions::Options() const {
  IDataOptions* const options = Edited<IDataOptions>();
  if (options || IsRetired()) return options;
  // What is written after this would be the values of nobody.
  throw RunTimeError(kErrorNotLoaded, "The data do not answer any more.");
}

bool frmDataOptions::Save() {
  // Data that are gone need no values.
  const bool isThere = Edited<IDataOptions>();
  if (!isThere) IsDirty(false);
  try {
    if (isThere) mValues.WriteTo([this] { return Options(); });
    return true;
  } catch (...) {
    // The host's values are as they were; the user may try again or cancel.
    OwnerDesktop().Pointer(Pointer::Default);
    OwnerDesktop().ShowMessage({ErrorText(std::current_exception()), Caption(), MessageIcon::Exclamation});
    return false;
  }
}

}  // namespace orx
