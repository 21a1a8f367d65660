#include "griddialogs/frmDataShade.h"

#include <limits>
#include <stdexcept>

#include "dialogframe/SelectAllText.h"
#include "forms/BusyScope.h"
#include "forms/Desktop.h"
#include "hostobjects/ErrorTrap.h"
#include "numbers/Numbers.h"

namespace orx {
namespace {

constexpr double kUnlimited = std::numeric_limits<double>::max();
constexpr double kRightAngle = 90;
constexpr double kFullCircle = 360;
constexpr double kMostShades = 255;
constexpr double kWhole = 100;

/// The field's number as a whole one; throws for one that does not fit.
std::int32_t LongOf(const ShownNumber& field) {
  return numbers::RoundToLong(field.Value().value());
}

}  // namespace

frmDataShade::frmDataShade(Desktop& desktop)
    : EditForm(desktop, {.Name = "frmDataShade",
                         .Caption = "Data shade",
                         // On purpose the topic of the data options, which tells of both.
                         .HelpKey = "_HelpLayerDataOptions",
                         .Client = {7140, 6525}}) {
  cmbShadeVersion.Click = [this] { cmbShadeVersion_Click(); };
  cmbCombine.Click = [this] { cmbCombine_Click(); };
  Couple(txtMinIntensity, txtIntensityMin);
  Couple(txtNrOfShades, txtNrOfShades2);
  for (Control* const control : All())
    if (auto* const field = dynamic_cast<TextBox*>(control))
      field->GotFocus = [field] { modMain::SelectAllText(*field); };
  cmdScaleFactor.Click = [this] { cmdScaleFactor_Click(); };
}

void frmDataShade::Fill() {
  mShade2 = QueryKind<ShadeSettings2>(Subject());
  mShade = mShade2 ? mShade2 : QueryKind<ShadeSettings>(Subject());
  if (!mShade) return Unload();
  ShowDesignTexts();
  FillLists();
  ReadBasic();
  if (mShade2) ReadExtended();
  if (cmbCombine.ListIndex() < 0) cmbCombine.ListIndex(0);
  if (cmbShadeVersion.ListIndex() < 0) cmbShadeVersion.ListIndex(mShade2 ? cmbShadeVersion.ListCount() - 1 : 0);
  cmbShadeVersion.Enabled(mShade2 != nullptr);
}

void frmDataShade::ShowDesignTexts() {
  constexpr double kAltitude = 30;
  const std::pair<ShownNumber*, double> texts[] = {
      {&mShades2, 128},  {&mReference, kAltitude}, {&mFullShade, 50}, {&mMidLight, kWhole},
      {&mFullSun, 150},  {&mFirstIndex, 1},        {&mShades, 255},   {&mMinimum, 50},
      {&mFactor, 0.001}, {&mMultiplier, 1},        {&mAzimuth, 0},    {&mAltitude, kAltitude}};
  // A field that is one of a pair has its own text until the setting is read.
  const BusyScope copying(mIsCopying);
  for (const auto& [field, value] : texts) field->Show(value);
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

void frmDataShade::ReadBasic() {
  const ShadeSettings& shade = *mShade;
  ErrorTrap trap;
  trap.Step([&] { mAltitude.Show(shade.Altitude()); });
  trap.Step([&] { mAzimuth.Show(shade.Azimuth()); });
  trap.Step([&] { mCombine.Show(shade.CombineColors(), 0); });
  trap.Step([&] { mMinimum.Show(shade.MinIntensity()); });
  trap.Step([&] { mShades.Show(shade.NrOfShades()); });
  trap.Step([&] { mFirstIndex.Show(shade.FirstShadeIndex()); });
  trap.Step([&] { chkScaleAutomatic.Value(CheckedIf(shade.ScaleAutomatic())); });
  trap.Step([&] { mFactor.Show(shade.ScaleFactor()); });
  trap.Step([&] { mMultiplier.Show(shade.ScaleMultiplier()); });
}

void frmDataShade::ReadExtended() {
  const ShadeSettings2& shade = *mShade2;
  ErrorTrap trap;
  trap.Step([&] { mVersion.Show(shade.ShadeVersion(), 1); });
  trap.Step([&] { mFullShade.Show(shade.MinIntensity()); });
  trap.Step([&] { mMidLight.Show(shade.MidIntensity()); });
  trap.Step([&] { mFullSun.Show(shade.MaxIntensity()); });
  trap.Step([&] { mShades2.Show(shade.NrOfShades()); });
  trap.Step([&] { mReference.Show(shade.AltitudeDefault()); });
  trap.Step([&] { chkMidIndexAutomatic.Value(CheckedIf(shade.MidIndexAutomatic())); });
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
    trap.Step([&] { found = mShade->SuggestScaleFactor(value); });
    if (found) txtScaleFactor.Text(numbers::ShortestText(value, OwnerDesktop().Separators()));
  });
  if (found) return;
  OwnerDesktop().ShowMessage({"Scale factor could not be determined.\r\nData might not be valid yet.",
                              "Suggest Scale Factor not possible", MessageIcon::Information});
}

bool frmDataShade::RefuseNumber(const char* title, const char* text, const ShownNumber& field) {
  return Refuse({text, title, MessageIcon::Information}, field.Box(), First::Focus);
}

bool frmDataShade::IsNumber(const ShownNumber& field) {
  return field.Value() || RefuseNumber("Invalid number", "Valid number required.", field);
}

bool frmDataShade::IsWithin(const ShownNumber& field, double low, double high) {
  const double value = field.Value().value();
  return (value >= low && value <= high) || RefuseNumber("Invalid range", "Number not within range.", field);
}

bool frmDataShade::IsWhole(const ShownNumber& field, double low, double high) {
  try {
    const std::int32_t value = LongOf(field);
    if (value >= low && value <= high) return true;
  } catch (const std::overflow_error&) {
    // Larger than any whole number is out of range as well.
  }
  return RefuseNumber("Invalid range", "Number not within range.", field);
}

bool frmDataShade::Check() {
  const bool areAngles = IsNumber(mAltitude) && IsNumber(mAzimuth) && IsWhole(mAltitude, 0, kRightAngle) &&
                         IsWhole(mAzimuth, 0, kFullCircle);
  const bool areScales = areAngles && IsNumber(mFactor) && IsNumber(mMultiplier) && IsWithin(mFactor, 0, kUnlimited) &&
                         IsWithin(mMultiplier, 0, kUnlimited);
  if (!areScales || !IsNumber(mFirstIndex) || !IsWhole(mFirstIndex, 1, kMostShades)) return false;
  // Whatever method is selected.
  if (!IsNumber(mMidLight) || !IsNumber(mFullSun) || !IsWithin(mMidLight, -kUnlimited, *mFullSun.Value())) return false;
  const ShownNumber& minimum = IsDarkening() ? mMinimum : mFullShade;
  const ShownNumber& shades = IsDarkening() ? mShades : mShades2;
  const double mostIntensity = IsDarkening() ? kWhole : *mMidLight.Value();
  return IsNumber(minimum) && IsNumber(shades) && IsWithin(minimum, 0, mostIntensity) &&
         IsWhole(shades, 1, kMostShades) && IsNumber(mReference) && IsWhole(mReference, 0, kRightAngle);
}

/// Writes a setting when it differs from what the object holds. One that cannot be read or written is passed over.
template <class Value>
void frmDataShade::Write(Value now, Value (ShadeSettings::*read)() const, void (ShadeSettings::*write)(Value)) {
  ErrorTrap trap;
  trap.Step([&] {
    if ((mShade->*read)() == now) return;
    (mShade->*write)(now);
    IsDirty(true);
  });
}

template <class Value>
void frmDataShade::Write2(Value now, Value (ShadeSettings2::*read)() const, void (ShadeSettings2::*write)(Value)) {
  if (!mShade2) return;
  ErrorTrap trap;
  trap.Step([&] {
    if ((mShade2->*read)() == now) return;
    (mShade2->*write)(now);
    IsDirty(true);
  });
}

bool frmDataShade::Save() {
  using S = ShadeSettings;
  using S2 = ShadeSettings2;
  Write2(mVersion.Value(), &S2::ShadeVersion, &S2::ShadeVersion);
  Write(LongOf(mAltitude), &S::Altitude, &S::Altitude);
  Write(LongOf(mAzimuth), &S::Azimuth, &S::Azimuth);
  Write(static_cast<std::int16_t>(mCombine.Value()), &S::CombineColors, &S::CombineColors);
  Write(*(mShade2 ? mFullShade : mMinimum).Value(), &S::MinIntensity, &S::MinIntensity);
  Write2(*mMidLight.Value(), &S2::MidIntensity, &S2::MidIntensity);
  Write2(*mFullSun.Value(), &S2::MaxIntensity, &S2::MaxIntensity);
  Write2(LongOf(mReference), &S2::AltitudeDefault, &S2::AltitudeDefault);
  Write2(chkMidIndexAutomatic.IsChecked(), &S2::MidIndexAutomatic, &S2::MidIndexAutomatic);
  ApplyShades();
  ApplyScaling();
  return true;
}

void frmDataShade::ApplyShades() {
  using S = ShadeSettings;
  Write(LongOf(mShades), &S::NrOfShades, &S::NrOfShades);
  ErrorTrap trap;
  trap.Step([&] { mShade->ShadeCount(mShade->NrOfShades()); });
  Write(LongOf(mFirstIndex), &S::FirstShadeIndex, &S::FirstShadeIndex);
  // With sun and shadow all shades are in use, whatever the field says.
  if (mShade2 && mVersion.Value() > shadeversion::kDarkening) Write(1, &S::FirstShadeIndex, &S::FirstShadeIndex);
}

void frmDataShade::ApplyScaling() {
  using S = ShadeSettings;
  Write(chkScaleAutomatic.IsChecked(), &S::ScaleAutomatic, &S::ScaleAutomatic);
  Write(*mFactor.Value(), &S::ScaleFactor, &S::ScaleFactor);
  Write(*mMultiplier.Value(), &S::ScaleMultiplier, &S::ScaleMultiplier);
}

void frmDataShade::Form_Release() {
  mShade = nullptr;
  mShade2 = nullptr;
  EditForm::Form_Release();
}

}  // namespace orx
