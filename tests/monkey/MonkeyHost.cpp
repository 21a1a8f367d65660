// What the monkey does with the host.
#include <limits>

#include "tests/monkey/Monkey.h"

namespace orx::test {

void Monkey::SwitchLanguage(const Act& act) {
  Say("switches the language");
  mHost.Language.Entries = act.AnyHow(2) == 0 ? 0 : 10;
  mHost.Language.Texts["_HelpFileMapDialogs"] = act.AnyHow(3) == 0 ? "" : "help.hlp";
  ILanguage* const languages[] = {nullptr, &mHost.Language, &mPseudo};
  try {
    if (mHost.Service) mHost.Service->Language(languages[act.With % std::size(languages)]);
  } catch (...) {
    // The language was about to fail.
    if (!HasErrorStruck()) Complain("the language was refused");
  }
}

void Monkey::HostFails(const Act& act) {
  NoteStrike();
  const Fault fault = kFaults[act.How % kFaults.size()];
  // Dialogs that open each other for ever would hide all else.
  if (fault == Fault::Nests && mForms.size() >= kManyForms) return;
  Say(std::string("the host ") + NameOf(fault) + " soon");
  constexpr int kSoon = 8;
  mPlan = PlanOf(fault, act.AnyWith(kSoon), mScene);
  mPlanned = fault;
}

void Monkey::HostChanges(const Act& act) {
  Say("the host changes");
  ++mWritings;
  constexpr double kNumbers[] = {
      0,      -1, 1e300, -1e300, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
      1e-300, 42};
  constexpr std::int32_t kCounts[] = {0, -5, 1, 255, 1000};
  const double number = kNumbers[act.With % std::size(kNumbers)];
  const std::int32_t count = kCounts[act.With % std::size(kCounts)];
  switch (act.AnyHow(8)) {
    case 0:
      mHost.Data.Minimum = number;
      break;
    case 1:
      mHost.Data.Classes = count;
      break;
    case 2:
      mHost.Data.Format = count > 0 ? "#,##0.0" : "%s";
      break;
    case 3:
      mHost.Ground.Left = number;
      break;
    case 4:
      mHost.Map.Add("new");
      break;
    case 5:
      if (mHost.Small->LayerCount() > 1) mHost.Small->MoveLayerUp(2);
      break;
    case 6:
      mHost.Shade.HeldAltitude = count;
      mHost.Isolines.HeldRangeStep = count;
      break;
    default:
      mHost.Layer.HeldSymbolSize = number;
  }
}

}  // namespace orx::test
