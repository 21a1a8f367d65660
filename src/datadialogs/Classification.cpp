#include "datadialogs/Classification.h"

#include <algorithm>
#include <cmath>

#include "forms/SettingOf.h"
#include "hostobjects/PassOver.h"
#include "text/AsciiCase.h"
#include "text/Trimmed.h"

namespace orx {
namespace {

/// The number of classes that automatic classification starts with.
constexpr std::int32_t kAutomaticClasses = 10;

std::string Plain(std::string_view text) {
  return AsciiLowerCase(Trimmed(text, kSpaces));
}

/// The properties of a data object's classification, in the order in which they are read and written, and the settings
/// that take them.
struct ClassificationProperties {
  /// The model must live as long.
  ClassificationProperties(Classification& model, const Classification::Find& data) : Model(model), Of(All, data) {}

  using C = IClassification;
  Classification& Model;
  Settings All{WriteRule::Always, PassOver};
  Part<C> Of;
  HeldSetting<std::string> Format{Model.ValueFormat, Of(&C::ValueFormat, &C::ValueFormat)};
  HeldSetting<bool> ShowName{Model.ShowParameterName, Of(&C::ShowParameterName, &C::ShowParameterName)};
  HeldSetting<std::int32_t> Method{Model.Method, Of(&C::ClassifyMethod, &C::ClassifyMethod)};
  HeldSetting<std::int32_t> Count{Model.ClassCount, Of(&C::NumberOfClasses, &C::NumberOfClasses)};
  HeldSetting<double> Minimum{Model.Minimum, Of(&C::MinValue, &C::MinValue)};
  HeldSetting<double> Maximum{Model.Maximum, Of(&C::MaxValue, &C::MaxValue)};
  HeldSetting<double> Step{Model.Step, Of(&C::StepSize)};
  HeldSetting<bool> Outside{Model.OutsideAsMissing, Of(&C::OutsideAsMissing, &C::OutsideAsMissing)};
  HeldSetting<std::int32_t> Style{Model.LegendStyle, Of(&C::LegendStyle, &C::LegendStyle)};
  HeldSetting<double> FirstSize{Model.FirstClassSize, Of(&C::FirstClassSize, &C::FirstClassSize)};
  HeldSetting<double> LastSize{Model.LastClassSize, Of(&C::LastClassSize, &C::LastClassSize)};
};

}  // namespace

int IndexOfFormat(const std::string& format) {
  const auto isThat = [wanted = Plain(format)](const char* entry) { return Plain(entry) == wanted; };
  const auto found = std::ranges::find_if(kValueFormats, isThat);
  return found == kValueFormats.end() ? 0 : static_cast<int>(found - kValueFormats.begin());
}

void Classification::ReadFrom(const Find& data) {
  ClassificationProperties(*this, data).All.Read();
}

bool Classification::SaveTo(const Find& data) const {
  Classification held;
  held.ReadFrom(data);
  // What follows from the rest may be rounded otherwise by the host; that is no change of the user's.
  Classification fitted = held;
  fitted.FitStep();
  if (*this == fitted) return false;
  Classification written = *this;
  bool wasThere = false;
  const auto asked = [&] {
    IClassification* const found = data();
    wasThere = wasThere || found;
    return found;
  };
  ClassificationProperties(written, asked).All.Write();
  return wasThere;
}

void Classification::FitStep() {
  const bool hasSteps = Method == classifymethod::kEqualSteps;
  const bool hasRange = Method == classifymethod::kEqualIntervals || Method == classifymethod::kUserDefined;
  if (!hasSteps && !hasRange) return;
  if (!hasSteps || Step <= 0) Step = ClassCount > 0 ? (Maximum - Minimum) / ClassCount : Maximum - Minimum;
  if (hasSteps && Step > 0) Maximum = ClassCount * Step + Minimum;
}

void Classification::MoveMinimum(double value) {
  if (value >= Maximum) Maximum += value - Minimum;
  Minimum = value;
}

void Classification::MoveMaximum(double value) {
  if (value <= Minimum) Minimum -= Maximum - value;
  Maximum = value;
}

void Classification::ChangeStep(double value) {
  Step = value > 0 ? value : 1;
}

void Classification::TakeDefault(double minimum, double maximum) {
  Maximum = maximum;
  Minimum = minimum;
  Method = classifymethod::kEqualIntervals;
  ValueFormat = "0.00";
}

void SavedClassification::GoAutomatic(Classification& model, double minimum, double maximum) {
  *this = {model.Method, model.ClassCount};
  model.Minimum = minimum;
  model.Maximum = maximum;
  model.Method = classifymethod::kAutomatic;
  model.ClassCount = kAutomaticClasses;
}

void SavedClassification::GoBack(Classification& model) const {
  model.Method = Method == classifymethod::kAutomatic ? classifymethod::kEqualIntervals : Method;
  model.ClassCount = ClassCount;
}

}  // namespace orx
