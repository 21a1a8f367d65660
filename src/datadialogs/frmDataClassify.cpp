#include "datadialogs/frmDataClassify.h"

#include <stdexcept>

#include "dialogframe/SelectAllText.h"
#include "forms/BusyScope.h"
#include "forms/Desktop.h"
#include "hostobjects/ErrorTrap.h"
#include "numbers/Numbers.h"

namespace orx {
namespace {

/// The list of the class box goes up to this number; more can be typed.
constexpr int kListedClasses = 64;
constexpr int kMostClasses = 255;

constexpr char kWrongValue[] = "Wrong value";
constexpr char kInvalidNumber[] = "Invalid number!";
constexpr char kWrongOrder[] = "Maximum value must be greater then Minimum value!";
constexpr char kInvalidClassCount[] = "Number of classes invalid!";

}  // namespace

frmDataClassify::frmDataClassify(Desktop& desktop)
    : EditForm(desktop, {.Name = "frmDataClassify",
                         .Caption = "Data Classify",
                         .HelpKey = "_HelpLayerDataClassify",
                         .Client = {7200, 6675}}) {
  cboMethod.Click = [this] { Take(mMethod); };
  cboFormat.Click = [this] {
    if (mIsBusy) return;
    mModel.ValueFormat = cboFormat.Text();
    RefreshControls();
  };
  cboRangeFormat.Click = [this] {
    if (mIsBusy) return;
    mFields.Write(mStyle);
    mFields.Read(mStyle);
  };
  chkAutoClassify.Click = [this] { chkAutoClassify_Click(); };
  chkClassiffyAsMissing.Click = [this] { mFields.Write(mOutside); };
  chkSeriesInLegend.Click = [this] { Take(mShowName); };
  cboClasses.Change = [this] { cboClasses_Change(); };
  cboClasses.Click = [this] { cboClasses_Click(); };
  HandleRange(mMinimum, txtMin, &Classification::MoveMinimum);
  HandleRange(mMaximum, txtMax, &Classification::MoveMaximum);
  HandleRange(mStep, txtStep, &Classification::ChangeStep);
  for (TextBox* const field : {&txtSizeFirst, &txtSizeLast})
    field->GotFocus = [field] { modMain::SelectAllText(*field); };
  cmdDefault.Click = [this] { cmdDefault_Click(); };
}

void frmDataClassify::SetData(HostObject* data, double dMin, double dMax, std::int32_t flags, const std::string&) {
  Subject(data);
  mDefaultMin = dMin;
  mDefaultMax = dMax;
  mFlags = flags;
}

void frmDataClassify::Fill() {
  if (!Edited<IClassification>()) return Unload();
  mModel.ReadFrom([this] { return Edited<IClassification>(); });
  mSaved = {mModel.Method, mModel.ClassCount};
  cmdDefault.Visible(mDefaultMin != kUnknownRangeEnd || mDefaultMax != kUnknownRangeEnd);
  FillLists();
  chkClassiffyAsMissing.Enabled(true);
  mFields.Read(mOutside);
  FillClasses();
  RefreshControls();
}

void frmDataClassify::FillLists() {
  const BusyScope busy(mIsBusy);
  cboFormat.Clear();
  for (const char* const format : kValueFormats) cboFormat.AddItem(format);
  FillList(cboMethod, {{"Equal intervals", classifymethod::kEqualIntervals},
                       {"Equal steps", classifymethod::kEqualSteps},
                       {"User defined", classifymethod::kUserDefined}});
  FillList(cboRangeFormat, {{"By Color", legendstyle::kByColor},
                            {"By Color and pixel Size", legendstyle::kByColorAndSize},
                            {"By pixel Size", legendstyle::kBySize}});
}

void frmDataClassify::FillList(ComboBox& box, std::initializer_list<std::pair<const char*, std::int32_t>> entries) {
  box.Clear();
  for (const auto& [text, code] : entries) box.AddItem(LanguageActive() ? Language()->TranslateText(text) : text, code);
}

void frmDataClassify::FillClasses() {
  const BusyScope busy(mIsBusy);
  cboClasses.Enabled(false);
  cboClasses.Clear();
  for (int entry = 1; entry <= kListedClasses; ++entry) cboClasses.AddItem(std::to_string(entry), entry);
  std::int32_t count = mModel.ClassCount;
  if (auto* const data = Edited<IData>()) ErrorTrap().Step([&] { count = data->ClassCount(); });
  ShowClassCount(count);
  cboClasses.Enabled((mFlags & kMayChangeClassCount) != 0);
}

void frmDataClassify::RefreshControls() {
  if (mModel.IsAutomatic() && !chkAutoClassify.IsChecked()) chkAutoClassify.Value(CheckState::Checked);
  EnableRange();
  ShowLists();
  mModel.FitStep();
  ShowRange();
}

void frmDataClassify::EnableRange() {
  const bool enabled = !mModel.IsAutomatic();
  const bool hasSteps = mModel.Method == classifymethod::kEqualSteps;
  const bool hasIntervals = mModel.Method == classifymethod::kEqualIntervals;
  cboMethod.Enabled(enabled);
  cmdDefault.Enabled(enabled);
  const auto enable = [](Label& label, TextBox& field, bool on) {
    label.Enabled(on);
    field.Enabled(on);
  };
  enable(lblClassify3, txtMin, enabled);
  enable(lblClassify0, txtStep, enabled && hasSteps);
  enable(lblClassify4, txtMax, enabled && hasIntervals);
}

void frmDataClassify::ShowLists() {
  const BusyScope busy(mIsBusy);
  for (Setting* const setting : std::initializer_list<Setting*>{&mMethod, &mShowName, &mStyle}) mFields.Read(*setting);
  cboFormat.ListIndex(IndexOfFormat(mModel.ValueFormat));
  // What is being typed there stays.
  for (NumberSetting* const size : {&mSizeFirst, &mSizeLast})
    if (!size->IsEdited()) mFields.Read(*size);
}

void frmDataClassify::ShowRange() {
  for (NumberSetting* const setting : {&mMinimum, &mMaximum, &mStep}) mFields.Read(*setting);
}

void frmDataClassify::Take(Setting& setting) {
  if (mIsBusy) return;
  mFields.Write(setting);
  RefreshControls();
}

std::string frmDataClassify::FormattedRange(double value) const {
  return numbers::FormatNumber(value, cboFormat.Text(), OwnerDesktop().Separators());
}

void frmDataClassify::ShowClassCount(std::int32_t count) {
  const BusyScope busy(mIsBusy);
  cboClasses.Text(std::to_string(count));
  mShownClasses = cboClasses.Text();
  mShownEdits = cboClasses.Edits();
}

std::optional<double> frmDataClassify::TypedClassCount() const {
  return numbers::ToDouble(cboClasses.Text(), OwnerDesktop().Separators());
}

void frmDataClassify::cboClasses_Change() {
  if (mIsBusy) return;
  const std::optional<double> typed = TypedClassCount();
  // The text set here comes back to this handler.
  if (typed && *typed > kMostClasses) return cboClasses.Text(std::to_string(kMostClasses));
  if (typed && *typed < 1) return cboClasses.Text("1");
  TakeClassCount();
}

void frmDataClassify::cboClasses_Click() {
  if (!mIsBusy) TakeClassCount();
}

void frmDataClassify::TakeClassCount() {
  const std::optional<double> typed = TypedClassCount();
  if (!typed || *typed <= 0 || *typed == mModel.ClassCount) return;
  mModel.ClassCount = numbers::RoundToLong(*typed);
  RefreshControls();
}

void frmDataClassify::HandleRange(NumberSetting& field, TextBox& box, RangeRule rule) {
  box.GotFocus = [&box] { modMain::SelectAllText(box); };
  box.LostFocus = [this, &field, rule] { Range_LostFocus(field, rule); };
}

void frmDataClassify::Range_LostFocus(NumberSetting& field, RangeRule rule) {
  if (!field.IsEdited()) return;
  const std::optional<double> value = field.Value();
  if (value) {
    (mModel.*rule)(*value);
  } else {
    OwnerDesktop().Beep();
  }
  RefreshControls();
  if (!value) field.Box().SetFocus();
}

void frmDataClassify::chkAutoClassify_Click() {
  if (mIsBusy) return;
  if (chkAutoClassify.IsChecked()) {
    mSaved.GoAutomatic(mModel, mDefaultMin, mDefaultMax);
    const BusyScope busy(mIsBusy);
    cboMethod.ListIndex(0);
  } else {
    mSaved.GoBack(mModel);
  }
  ShowClassCount(mModel.ClassCount);
  RefreshControls();
}

void frmDataClassify::cmdDefault_Click() {
  mModel.TakeDefault(mDefaultMin, mDefaultMax);
  RefreshControls();
}

bool frmDataClassify::RefuseValue(const char* text, Control& field) {
  return Refuse({text, kWrongValue, MessageIcon::Exclamation}, field);
}

bool frmDataClassify::Check() {
  for (const NumberSetting* const field : {&mMinimum, &mMaximum, &mStep})
    if (!field->Value()) return RefuseValue(kInvalidNumber, field->Box());
  if (!TypedClassCount()) return RefuseValue(kInvalidNumber, cboClasses);
  for (const NumberSetting* const field : {&mSizeFirst, &mSizeLast})
    if (!field->Value()) return RefuseValue(kInvalidNumber, field->Box());
  mFields.Write(mMinimum);
  mFields.Write(mMaximum);
  // Written so that values which compare with nothing are refused too.
  if (!(mModel.Minimum < mModel.Maximum)) return RefuseValue(kWrongOrder, txtMin);
  mFields.Write(mStep);
  if (!TakeClassCountOnOK()) return false;
  mFields.Write(mSizeFirst);
  mFields.Write(mSizeLast);
  return true;
}

bool frmDataClassify::TakeClassCountOnOK() {
  try {
    // A box that nobody has touched stands for the number of the settings, which the data may count otherwise; where
    // the settings have none, the number shown is all that there is.
    const bool isTouched = cboClasses.Text() != mShownClasses || cboClasses.Edits() != mShownEdits;
    if (isTouched || mModel.ClassCount < 1) mModel.ClassCount = numbers::RoundToLong(*TypedClassCount());
  } catch (const std::overflow_error&) {
    return RefuseValue(kInvalidClassCount, cboClasses);
  }
  return mModel.ClassCount >= 1 || RefuseValue(kInvalidClassCount, cboClasses);
}

bool frmDataClassify::Save() {
  mModel.FitStep();
  IsDirty(mModel.SaveTo([this] { return Edited<IClassification>(); }));
  return true;
}

}  // namespace orx
