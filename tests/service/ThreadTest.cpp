// Hosts with several threads: calls that come from the wrong one, and dialogs on two at once.
#include <thread>

#include "desktops/headless/HeadlessDesktop.h"
#include "dialogframe/FileChoice.h"
#include "dialogframe/Help.h"
#include "forms/ProcessWide.h"
#include "service/CCommonProgressDialog.h"
#include "tests/support/ModelMap.h"
#include "tests/support/PageHostTest.h"

namespace orx::test {
namespace {

class ServiceThreads : public PageHostTest {
 protected:
  using Call = std::function<void()>;

  /// True when the call throws WrongThread on a thread of its own.
  static bool IsRefusedElsewhere(const Call& call) {
    bool isRefused = false;
    std::thread([&] {
      try {
        call();
      } catch (const WrongThread&) {
        isRefused = true;
      }
    }).join();
    return isRefused;
  }

  ModelMap map;
  ModelLayers layers{map};
};

TEST_F(ServiceThreads, NoMemberShowsAnythingOnAnotherThread) {
  bool flag = false;
  std::string name;
  std::int32_t number = 0;
  double angle = 0;
  std::vector<std::string> files;
  std::vector<std::int32_t> chosen;
  const Call calls[] = {
      [&] { service.Show(&layers, 0); },
      [&] { service.Show(&object, 0); },
      [&] { service.ShowDataProperties(&object); },
      [&] { service.ShowLegends(&object); },
      [&] { service.ShowProperties(&object); },
      [&] { service.ShowLabels(&object); },
      [&] { service.ShowCoordinates(&object); },
      [&] { service.ShowDataClassify(&object, 0, 1, 0, flag); },
      [&] { service.ShowDataOptions(&object); },
      [&] { service.ShowGeoReference(&map); },
      [&] { service.ShowCharacterSelection(name, number, angle, flag); },
      [&] { service.ShowListSelection(TextArray{{"a"}}, false, 0, {}, false, {}, chosen); },
      [&] { service.ShowAddLayer(0, false, files); },
      [&] { service.ShowAddData(0, false, files); },
      [&] { service.ShowFileNotFound("a", name, flag); },
      [&] { service.ShowDataFileNotFound("a", name, flag); },
      [&] { service.Language(&language); },
  };
  for (const Call& call : calls) EXPECT_TRUE(IsRefusedElsewhere(call)) << &call - calls;
  EXPECT_EQ(Calls{}, NewCalls());
  EXPECT_EQ(nullptr, service.Language());
}

TEST_F(ServiceThreads, AnOpenDialogIsLeftAloneByOtherThreads) {
  script.ExpectForm("frmProperties", [&](Form& form) {
    auto& apply = dynamic_cast<Button&>(*form.Find("cmdApply"));
    const Call calls[] = {[&] { form.Hide(); },
                          [&] { form.Unload(); },
                          [&] { form.Move(0, 0); },
                          [&] { form.Caption("elsewhere"); },
                          [&] { form.Enabled(false); },
                          [&] { form.Refresh(); },
                          [&] {
                            form.ClientSize({1500, 1500});
                          },
                          [&] { apply.Enabled(!apply.Enabled()); },
                          [&] { apply.Caption("elsewhere"); },
                          [&] {
                            desktop().ShowMessage({"elsewhere", ""});
                          },
                          [&] { desktop().ProcessPendingEvents(); },
                          [&] { desktop().Pointer(Pointer::Hourglass); },
                          [&] { desktop().Beep(); }};
    for (const Call& call : calls) EXPECT_TRUE(IsRefusedElsewhere(call)) << &call - calls;
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(Pointer::Default, desktop().Pointer());
    user.CloseBox(form);
  });
  service.ShowProperties(&object);
}

TEST_F(ServiceThreads, AProgressDialogIsLeftAloneByOtherThreads) {
  CCommonProgressDialog progress(desktop());
  const Call calls[] = {[&] { progress.Init(0, 5, 1); }, [&] { progress.Value(7); },
                        [&] { progress.Show(); },        [&] { progress.Hide(); },
                        [&] { progress.Refresh(); },     [&] { progress.Caption("x"); },
                        [&] { progress.Message("x"); },  [&] { CCommonProgressDialog(desktop()).Hide(); }};
  for (const Call& call : calls) EXPECT_TRUE(IsRefusedElsewhere(call)) << &call - calls;
  EXPECT_EQ(0, progress.Value());
}

/// Runs a scene on some threads at once.
void OnThreads(int count, const std::function<void(int)>& scene) {
  std::vector<std::thread> threads;
  for (int thread = 0; thread < count; ++thread) threads.emplace_back(scene, thread);
  for (std::thread& thread : threads) thread.join();
}

TEST(SharedValues, LoseNoChangeOfAnyThread) {
  constexpr int kThreads = 4;
  constexpr int kChanges = 50000;
  ProcessWide<int> sum;
  OnThreads(kThreads, [&](int) {
    for (int change = 0; change < kChanges; ++change) sum.Change([](int& value) { ++value; });
  });
  EXPECT_EQ(kThreads * kChanges, sum.Get());
}

TEST(SharedValues, AreWholeWhateverThreadsSetThem) {
  constexpr int kThreads = 4;
  constexpr int kRounds = 500;
  constexpr std::size_t kLength = 1000;
  OnThreads(kThreads, [&](int thread) {
    headless::HeadlessDesktop desktop;
    std::string name;
    for (int round = 0; round < kRounds; ++round) {
      modMain::HelpFile(std::string(kLength, static_cast<char>('a' + thread)));
      const std::string file = modMain::HelpFile();
      EXPECT_EQ(std::string(kLength, file.front()), file);
      EXPECT_FALSE(modDialog::RunOpenFileDialog({desktop}, false, name));
      EXPECT_EQ(1, modDialog::Remembered().LayerFilterIndex);
      EXPECT_FALSE(modDialog::Remembered().DataFolder.empty());
    }
  });
  modMain::HelpFile({});
  modDialog::ResetRememberedChoices();
}

}  // namespace
}  // namespace orx::test
