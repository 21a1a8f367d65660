#include "tests/monkey/Session.h"

#include <algorithm>

#include "service/CCommonProgressDialog.h"
#include "service/modDialog.h"
#include "service/modMain.h"
#include "tests/monkey/Monkey.h"
#include "tests/support/KeptPlacement.h"

namespace orx::test {
namespace {

/// A host that works for a while, and has events handled meanwhile.
std::int32_t ShowProgress(DialogHost& host) {
  constexpr std::int32_t kSteps = 60;
  CCommonProgressDialog progress(host.Screen);
  progress.Init(0, kSteps, 0);
  progress.Show();
  for (std::int32_t step = 0; step < kSteps && !progress.CancelAction(); ++step) {
    progress.Value(step);
    progress.Message("Step " + std::to_string(step));
    host.Screen.ProcessPendingEvents();
  }
  progress.Hide();
  return progress.CancelAction() ? -1 : 0;
}

/// A dialog that does not wait for its end, in a host that does.
std::int32_t ShowModeless(DialogHost& host) {
  constexpr int kTurns = 60;
  host.Service->Show(&host.Layer, 0, {}, ShowMode::Modeless);
  for (int turn = 0; turn < kTurns && !host.Screen.OpenForms().empty(); ++turn) host.Screen.ProcessPendingEvents();
  host.Screen.CloseOpenForms();
  return 0;
}

std::vector<DialogCase> Scenes() {
  std::vector<DialogCase> scenes = DialogCases();
  scenes.push_back({"progress", ShowProgress});
  scenes.push_back({"Show(layer), modeless", ShowModeless, {.HasEmbeddedPages = true, .MayLeaveHourglass = true}});
  return scenes;
}

constexpr const char* kKey = "Orvex Monkey";

/// What earlier sessions have left behind would be missing when this one is run alone.
void Forget(TestDesktop& screen) {
  screen.Separators({});
  screen.Get().Settings().Forget(kKey);
  screen.Get().Pointer(Pointer::Default);
  modDialog::ResetRememberedChoices();
  modMain::HelpFile({});
}

/// In half of the sessions a place is kept, as other programs and people may have written it.
void KeepPlace(DialogHost& host, std::mt19937& random) {
  if (random() % 2 == 0) return;
  host.Service->RegistryKey(kKey);
  for (const char* const section : {"DataDialog", "MapSettings"})
    for (const char* const name : {"Left", "Top", "Height"})
      host.Screen.Settings().Write({kKey, section, name}, kHostileNumbers[random() % kHostileNumbers.size()]);
}

void ShowOnce(DialogHost& host, const DialogCase& dialog, Monkey& monkey) {
  try {
    const std::int32_t result = dialog.Show(host);
    if (result != 0 && result != -1) monkey.Complain("the result is " + std::to_string(result));
  } catch (...) {
    if (!dialog.Rules.MayThrow || !monkey.HasErrorStruck()) monkey.Complain("an error has reached the host");
  }
}

/// What holds after every session.
void CheckEnd(TestDesktop& screen, const DialogRules& rules, Monkey& monkey) {
  const bool hasErrorStruck = monkey.HasErrorStruck();
  if (screen.Get().HasModalForm()) monkey.Complain("something modal was left");
  if (!screen.Get().OpenForms().empty()) monkey.Complain("a dialog was left open");
  if (!screen.IsHostInOrder()) monkey.Complain("the host's windows were left out of order");
  const bool mayLeaveHourglass = hasErrorStruck && rules.MayLeaveHourglass;
  if (!mayLeaveHourglass && screen.Get().Pointer() != Pointer::Default) monkey.Complain("the pointer was left");
}

}  // namespace

SessionOutcome Session::Run(std::uint32_t seed, int limit) const {
  static const std::vector<DialogCase> kScenes = Scenes();
  Forget(mScreen);
  std::mt19937 random(seed);
  const DialogCase& dialog = kScenes[random() % kScenes.size()];
  const bool hostIsKind = random() % 2 == 0;
  const int acts = kFewestActs + static_cast<int>(random() % (kMostActs - kFewestActs + 1));
  FaultPlan plan;
  DialogHost host(mScreen.Get(), dialog.Rules.HasEmbeddedPages, plan);
  KeepPlace(host, random);
  Monkey monkey(mScreen, host, dialog, plan, Acts(random(), std::min(acts, limit), hostIsKind), mFiles);
  monkey.Listener = Listener;
  mScreen.Get().Hook(&monkey);
  if (!mScreen.IsHostInOrder()) monkey.Complain("the host's windows are out of order at the start");
  // A dialog that was ended early is opened again, on what it has written.
  constexpr int kRounds = 5;
  for (int round = 0; round < kRounds && host.Service && monkey.IsWilling(); ++round) ShowOnce(host, dialog, monkey);
  CheckEnd(mScreen, dialog.Rules, monkey);
  mScreen.Get().CloseOpenForms();
  mScreen.Get().Hook(nullptr);
  Forget(mScreen);
  return {dialog.Name, monkey.Done(), monkey.Complaint(), monkey.Story()};
}

}  // namespace orx::test
