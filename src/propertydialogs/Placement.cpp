#include "propertydialogs/Placement.h"

#include <algorithm>
#include <cmath>

#include "hostobjects/ErrorTrap.h"
#include "numbers/Numbers.h"

namespace orx {
namespace {

/// No screen reaches this far, and sums of such lengths still fit an int.
constexpr double kFarthest = 1e6;

/// Numbers are stored without separators, whatever the user's locale.
const numbers::Separators kPlain{".", "", ""};

}  // namespace

std::optional<int> Placement::Read(const char* name) const {
  if (mKey.empty()) return std::nullopt;
  std::optional<std::string> text;
  ErrorTrap trap;
  trap.Step([&] { text = mDesktop.Settings().Read({mKey, mSection, name}); });
  const std::optional<double> value = text ? numbers::ToDouble(*text, kPlain) : std::nullopt;
  if (!value || std::isnan(*value)) return std::nullopt;
  return static_cast<int>(std::lround(std::clamp(*value, -kFarthest, kFarthest)));
}

void Placement::Write(const char* name, int twips) const {
  if (mKey.empty()) return;
  ErrorTrap trap;
  trap.Step([&] { mDesktop.Settings().Write({mKey, mSection, name}, std::to_string(twips)); });
}

void Placement::Restore(Form& form) const {
  form.Center();
  form.Move(Read("Left").value_or(form.Left()), Read("Top").value_or(form.Top()));
}

void Placement::Keep(const Form& form) const {
  Write("Left", form.Left());
  Write("Top", form.Top());
}

}  // namespace orx
