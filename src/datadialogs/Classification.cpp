#include "datadialogs/Classification.h"

#include <algorithm>
#include <cmath>

#include "hostobjects/ErrorTrap.h"
#include "text/AsciiCase.h"
#include "text/Trimmed.h"

namespace orx {
namespace {

/// The number of classes that automatic classification starts with.
constexpr std::int32_t kAutomaticClasses = 10;

bool DifferByRounding(double one, double two) {
  constexpr double kLastDigits = 1e-13;
  return std::abs(one - two) <= kLastDigits * std::max(std::abs(one), std::abs(two));
}

std::string Plain(std::string_view text) {
  return AsciiLowerCase(Trimmed(text, kSpaces));
}

}  // namespace

int IndexOfFormat(const std::string& format) {
  const auto isThat = [wanted = Plain(format)](const char* entry) { return Plain(entry) == wanted; };
  const auto found = std::ranges::find_if(kValueFormats, isThat);
  return found == kValueFormats.end() ? 0 : static_cast<int>(found - kValueFormats.begin());
}

void Classification::ReadFrom(const IClassification& data) noexcept {
  ErrorTrap trap;
  trap.Step([&] { ValueFormat = data.ValueFormat(); });
  trap.Step([&] { ShowParameterName = data.ShowParameterName(); });
  trap.Step([&] { Method = data.ClassifyMethod(); });
  trap.Step([&] { ClassCount = data.NumberOfClasses(); });
  trap.Step([&] { Minimum = data.MinValue(); });
  trap.Step([&] { Maximum = data.MaxValue(); });
  trap.Step([&] { Step = data.StepSize(); });
  trap.Step([&] { OutsideAsMissing = data.OutsideAsMissing(); });
  trap.Step([&] { LegendStyle = data.LegendStyle(); });
  trap.Step([&] { FirstClassSize = data.FirstClassSize(); });
  trap.Step([&] { LastClassSize = data.LastClassSize(); });
}

void Classification::WriteTo(IClassification& data) const noexcept {
  ErrorTrap trap;
  trap.Step([&] { data.ValueFormat(ValueFormat); });
  trap.Step([&] { data.ShowParameterName(ShowParameterName); });
  trap.Step([&] { data.ClassifyMethod(Method); });
  trap.Step([&] { data.NumberOfClasses(ClassCount); });
  trap.Step([&] { data.MinValue(Minimum); });
  trap.Step([&] { data.MaxValue(Maximum); });
  trap.Step([&] { data.OutsideAsMissing(OutsideAsMissing); });
  trap.Step([&] { data.LegendStyle(LegendStyle); });
  trap.Step([&] { data.FirstClassSize(FirstClassSize); });
  trap.Step([&] { data.LastClassSize(LastClassSize); });
}

bool Classification::SaveTo(IClassification& data) const noexcept {
  Classification held;
  held.ReadFrom(data);
  // What follows from the rest may be rounded otherwise by the host; that is no change of the user's.
  Classification fitted = held;
  fitted.FitStep();
  if (*this == fitted) return false;
  Classification written = *this;
  if (Maximum == fitted.Maximum && DifferByRounding(Maximum, held.Maximum)) written.Maximum = held.Maximum;
  written.WriteTo(data);
  return true;
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
