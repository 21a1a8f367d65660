#include "griddialogs/frmDataShade.h"

#include "dialogframe/SelectAllText.h"
#include "forms/BusyScope.h"
#include "forms/Desktop.h"
#include "hostobjects/ErrorTrap.h"
#include "numbers/Numbers.h"

namespace orx {
frmDataShade::frmDataShade(Desktop& desktop)
    : EditForm(desktop, {.Name = "frmDataShade",
                         .Caption = "Data shade",
                         // On purpose the topic of the data options, which tells of both.
                         .HelpKey = "_HelpLayerDataOptions",
                         .Client = {7140, 6525}}) {
  cmbShadeVersion.Click = [this] { cmbShadeVersion_Click(); };
  cmbCombine.Click = [this] { cmbCombine_Click(); };
  cmbShadeVersion.HasWords(true);
  cmbCombine.HasWords(true);
  Couple(txtMinIntensity, txtIntensityMin);
  Couple(txtNrOfShades, txtNrOfShades2);
  for (Control* const control : All())
    if (auto* const field = dynamic_cast<TextBox*>(control))
      field->GotFocus = [field] { modMain::SelectAllText(*field); };
  mSettings.ReadInOrder({&mVersion, &mAltitude, &mAzimuth, &mCombine, &mMinimum, &mMidLight, &mFullSun, &mShades,
                         &mFirstIndex, &mReference, &mUsesReference, &mAutomatic, &mFactor, &mMultiplier});
  mSettings.Written = [this](Setting&) { IsDirty(true); };
  cmdScaleFactor.Click = [this] { cmdScaleFactor_Click(); };
}

void frmDataShade::Fill() {
  if (!Shade()) return Unload();
  const bool isExtended = Edited<ShadeSettings2>();
  FillLists();
  mSettings.Read();
  if (!mShades.IsRead()) ShowDesignOfTwin();
  if (!isExtended) cmbShadeVersion.ListIndex(0);
  cmbShadeVersion.Enabled(isExtended);
}

ShadeSettings* frmDataShade::Shade() const {
  ShadeSettings* const extended = Edited<ShadeSettings2>();
  return extended ? extended : Edited<ShadeSettings>();
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
    const BusyScope copying(mIsCopying);
    ErrorTrap trap;
    trap.Step([&] { to.Text(from.Text()); });
  };
  one.Change = [copy, &one, &other] { copy(one, other); };
  other.Change = [copy, &one, &other] { copy(other, one); };
}

void frmDataShade::ShowDesignOfTwin() {
  // Each of the two has its own text until the setting is read.
  const BusyScope copying(mIsCopying);
  txtNrOfShades2.Text("128");
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
  bool found = false;
  WithHourglass([&] {
    double value = 0;
    ErrorTrap trap;
    ShadeSettings* const shade = Shade();
    if (shade) trap.Step([&] { found = shade->SuggestScaleFactor(value); });
    if (found) txtScaleFactor.Text(numbers::ShortestText(value, OwnerDesktop().Separators()));
  });
  if (found || IsRetired()) return;
  OwnerDesktop().ShowMessage({"Scale factor could not be determined.\r\nData might not be valid yet.",
                              "Suggest Scale Factor not possible", MessageIcon::Information});
}

Control& frmDataShade::FieldOf(const NumberSetting& setting) {
  if (!IsDarkening() && &setting == &mMinimum) return txtIntensityMin;
  if (!IsDarkening() && &setting == &mShades) return txtNrOfShades2;
  return setting.Box();
}

bool frmDataShade::RefuseNumber(const char* title, const char* text, const NumberSetting& setting) {
  return Refuse({text, title, MessageIcon::Information}, FieldOf(setting), First::Focus);
}

bool frmDataShade::IsNumber(const NumberSetting& setting) {
  return setting.Value() || RefuseNumber("Invalid number", "Valid number required.", setting);
}

bool frmDataShade::IsAtMost(const NumberSetting& setting, double most) {
  // A number that does not fit its setting is out of range as well.
  const std::optional<double> value = setting.Fitting();
  return (value && setting.Bounds().Allows(*value) && *value <= most) ||
         RefuseNumber("Invalid range", "Number not within range.", setting);
}

bool frmDataShade::IsWithinBounds(const NumberSetting& setting) {
  return IsAtMost(setting, kUnlimited);
}

bool frmDataShade::Check() {
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
  const std::optional<std::int32_t> count = mBasic(&S::NrOfShades, &S::NrOfShades).Get();
  ShadeSettings* const shade = Shade();
  if (count && shade) shade->ShadeCount(*count);
  return false;
}

bool frmDataShade::UseAllShades() {
  // With sun and shadow all shades are in use, whatever the field says.
  if (!Edited<ShadeSettings2>() || mVersion.Value() <= shadeversion::kDarkening) return false;
  const auto first = mBasic(&S::FirstShadeIndex, &S::FirstShadeIndex);
  const std::optional<std::int32_t> held = first.Get();
  return held && *held != 1 && first.Set(1);
}

bool frmDataShade::Save() {
  mSettings.Write();
  return true;
}

}  // namespace orx
