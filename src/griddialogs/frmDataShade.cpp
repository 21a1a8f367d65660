#include "griddialogs/frmDataShade.h"

#include "dialogframe/SelectAllText.h"
#include "forms/Desktop.h"
#include "hostobjects/ErrorTrap.h"
#include "numbers/Numbers.h"

namespace orx {
frmDataShade::frmDataShade(Desktop& desktop)
    : DialogForm(desktop, "frmDataShade", {.Caption = "Data shade", .Client = {7140, 6525}}) {
  cmbShadeVersion.Click = [this] { cmbShadeVersion_Click(); };
  cmbCombine.Click = [this] { cmbCombine_Click(); };
  Couple(txtMinIntensity, txtIntensityMin);
  Couple(txtNrOfShades, txtNrOfShades2);
  for (Control* const control : All())
    if (auto* const field = dynamic_cast<TextBox*>(control))
      field->GotFocus = [field] { modMain::SelectAllText(*field); };
  mSettings.ReadInOrder({&mVersion, &mAltitude, &mAzimuth, &mCombine, &mMinimum, &mMidLight, &mFullSun, &mShades,
                         &mFirstIndex, &mReference, &mUsesReference, &mAutomatic, &mFactor, &mMultiplier});
  mSettings.Written = [this](Setting&) { mChanged = true; };
  cmdScaleFactor.Click = [this] { cmdScaleFactor_Click(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmDataShade::ShadeObject(HostObject* value) {
  mObject = value;
  Hold(value);
}

void frmDataShade::Form_Load() {
  mChanged = false;
  Center();
  // On purpose the topic of the data options, which tells of both.
  TakeHelpNumber("_HelpLayerDataOptions");
  mShade2 = QueryKind<ShadeSettings2>(mObject);
  mShade = mShade2 ? mShade2 : QueryKind<ShadeSettings>(mObject);
  if (!mShade) return Unload();
  FillLists();
  mSettings.Read();
  if (!mShades.IsRead()) ShowDesignOfTwin();
  if (!mShade2) cmbShadeVersion.ListIndex(0);
  cmbShadeVersion.Enabled(mShade2 != nullptr);
  Translate();
}

void frmDataShade::FillLists() {
  cmbCombine.Clear();
  cmbCombine.AddItem("None", combinecolors::kNone);
  cmbCombine.AddItem("Shade and Colors", combinecolors::kShadeAndColors);
  cmbCombine.AddItem("Shade and Device", combinecolors::kShadeAndDevice);
  cmbShadeVersion.Clear();
  cmbShadeVersion.AddItem("Darkening", shadeversion::kDarkening);
  cmbShadeVersion.AddItem("Sun and shadow", shadeversion::kSunAndShadow);
}

void frmDataShade::Couple(TextBox& one, TextBox& other) {
  const auto copy = [this](const TextBox& from, TextBox& to) {
    if (mIsCopying) return;
    mIsCopying = true;
    ErrorTrap trap;
    trap.Step([&] { to.Text(from.Text()); });
    mIsCopying = false;
  };
  one.Change = [copy, &one, &other] { copy(one, other); };
  other.Change = [copy, &one, &other] { copy(other, one); };
}

void frmDataShade::ShowDesignOfTwin() {
  // Each of the two has its own text until the setting is read.
  mIsCopying = true;
  txtNrOfShades2.Text("128");
  mIsCopying = false;
}

void frmDataShade::cmbShadeVersion_Click() {
  const bool darkens = cmbShadeVersion.SelectedData() == shadeversion::kDarkening;
  fraIntensity1.Visible(darkens);
  fraIntensity2.Visible(!darkens);
}

void frmDataShade::cmbCombine_Click() {
  const bool combines = cmbCombine.ListIndex() != combinecolors::kNone;
  fraIntensity1.Enabled(combines);
  fraIntensity2.Enabled(combines);
}

void frmDataShade::cmdScaleFactor_Click() {
  OwnerDesktop().Pointer(Pointer::Hourglass);
  double value = 0;
  bool found = false;
  ErrorTrap trap;
  trap.Step([&] { found = mShade->SuggestScaleFactor(value); });
  if (found) txtScaleFactor.Text(numbers::ShortestText(value, OwnerDesktop().Separators()));
  OwnerDesktop().Pointer(Pointer::Default);
  if (found) return;
  OwnerDesktop().ShowMessage({"Scale factor could not be determined.\r\nData might not be valid yet.",
                              "Suggest Scale Factor not possible", MessageIcon::Information});
}

Control& frmDataShade::FieldOf(const NumberSetting& setting) {
  if (!IsDarkening() && &setting == &mMinimum) return txtIntensityMin;
  if (!IsDarkening() && &setting == &mShades) return txtNrOfShades2;
  return setting.Box();
}

bool frmDataShade::Refuse(const char* title, const char* text, const NumberSetting& setting) {
  FieldOf(setting).SetFocus();
  OwnerDesktop().ShowMessage({text, title, MessageIcon::Information});
  return false;
}

bool frmDataShade::IsNumber(const NumberSetting& setting) {
  return setting.Value() || Refuse("Invalid number", "Valid number required.", setting);
}

bool frmDataShade::IsAtMost(const NumberSetting& setting, double most) {
  // A number that does not fit its setting is out of range as well.
  const std::optional<double> value = setting.Fitting();
  return (value && setting.Bounds().Allows(*value) && *value <= most) ||
         Refuse("Invalid range", "Number not within range.", setting);
}

bool frmDataShade::IsWithinBounds(const NumberSetting& setting) {
  return IsAtMost(setting, kUnlimited);
}

bool frmDataShade::Validate() {
  constexpr double kWhole = 100;
  return IsNumber(mAltitude) && IsNumber(mAzimuth) && IsWithinBounds(mAltitude) && IsWithinBounds(mAzimuth) &&
         IsNumber(mFactor) && IsNumber(mMultiplier) && IsWithinBounds(mFactor) && IsWithinBounds(mMultiplier) &&
         IsNumber(mFirstIndex) && IsWithinBounds(mFirstIndex) &&
         // Whatever method is selected.
         IsNumber(mMidLight) && IsNumber(mFullSun) && IsAtMost(mMidLight, *mFullSun.Value()) &&  //
         IsNumber(mMinimum) && IsNumber(mShades) && IsAtMost(mMinimum, IsDarkening() ? kWhole : *mMidLight.Value()) &&
         IsWithinBounds(mShades) && IsNumber(mReference) && IsWithinBounds(mReference);
}

bool frmDataShade::SetCount() {
  mShade->ShadeCount(mShade->NrOfShades());
  return false;
}

bool frmDataShade::UseAllShades() {
  // With sun and shadow all shades are in use, whatever the field says.
  if (!mShade2 || mVersion.Value() <= shadeversion::kDarkening || mShade->FirstShadeIndex() == 1) return false;
  mShade->FirstShadeIndex(1);
  return true;
}

void frmDataShade::cmdOK_Click() {
  if (!Validate()) return;
  OwnerDesktop().Pointer(Pointer::Hourglass);
  mSettings.Write();
  Hide();
  OwnerDesktop().Pointer(Pointer::Default);
}

void frmDataShade::cmdCancel_Click() {
  mChanged = false;
  Hide();
}

void frmDataShade::Form_Unload() {
  mObject = nullptr;
  mShade = nullptr;
  mShade2 = nullptr;
  mChanged = false;
  DialogForm::Form_Unload();
}

}  // namespace orx
