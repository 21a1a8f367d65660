// The desktop is a guest in its host's process: what it takes for a call it gives back.
#include <algorithm>
#include <set>

#include "forms/NativeArea.h"
#include "tests/win32/GdiObjects.h"
#include "tests/win32/Win32Test.h"

namespace orx::test {
namespace {

/// The thread's surroundings that a dialog borrows.
struct Borrowed {
  HANDLE Look = nullptr;
  void* DpiContext = nullptr;
  int Objects = 0;
  std::set<HWND> Windows;

  static Borrowed Now() {
    Borrowed now;
    GetCurrentActCtx(&now.Look);
    if (now.Look) ReleaseActCtx(now.Look);
    now.DpiContext = GetThreadDpiAwarenessContext();
    now.Objects = GdiObjects();
    EnumThreadWindows(GetCurrentThreadId(), &Borrowed::Note, reinterpret_cast<LPARAM>(&now.Windows));
    return now;
  }

  static BOOL CALLBACK Note(HWND window, LPARAM windows) {
    reinterpret_cast<std::set<HWND>*>(windows)->insert(window);
    return TRUE;
  }

  bool operator==(const Borrowed&) const = default;
};

class Win32Guest : public Win32FormsTest {
 protected:
  void ShowOnce(ShowMode mode) {
    Events log;
    const auto lone = std::make_shared<SampleForm>(desktop(), log);
    if (mode == ShowMode::Modal) script.ExpectForm("frmSample", [&](Form& shown) { user.CloseBox(shown); });
    lone->Show(mode);
    lone->Unload();
  }
};

TEST_F(Win32Guest, NothingIsLeftBehindByADialog) {
  for (const ShowMode mode : {ShowMode::Modal, ShowMode::Modeless}) {
    ShowOnce(mode);  // What the platform makes once stays.
    const Borrowed before = Borrowed::Now();
    ShowOnce(mode);
    EXPECT_TRUE(before == Borrowed::Now());
  }
}

/// What is allocated on the heaps of the process, in bytes.
std::size_t HeapBytes() {
  HANDLE heaps[64] = {};
  const DWORD count = std::min<DWORD>(GetProcessHeaps(64, heaps), 64);
  std::size_t bytes = 0;
  for (DWORD i = 0; i < count; ++i) {
    PROCESS_HEAP_ENTRY entry = {};
    while (HeapWalk(heaps[i], &entry))
      if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
  }
  return bytes;
}

TEST_F(Win32Guest, ADialogLeavesNoMemoryAllocated) {
  constexpr int kRounds = 40;
  // Wine's own static texts, of which the form has one, never free so much.
  constexpr std::size_t kBytesOfText = 24;
  const auto showAll = [this] {
    for (int round = 0; round < kRounds; ++round) ShowOnce(ShowMode::Modeless);
  };
  showAll();  // What the platform makes once stays.
  const std::size_t before = HeapBytes();
  showAll();
  EXPECT_LE(HeapBytes(), before + kRounds * kBytesOfText);
}

TEST_F(Win32Guest, NothingIsLeftBehindByAMessage) {
  const auto show = [&] {
    script.ExpectMessage({"Text", "Title", MessageIcon::Information});
    desktop().ShowMessage({"Text", "Title", MessageIcon::Information});
  };
  show();
  const Borrowed before = Borrowed::Now();
  show();
  EXPECT_TRUE(before == Borrowed::Now());
}

TEST_F(Win32Guest, TheDialogsHaveTheLookOfTheirOwnManifest) {
  struct Foreign final : Form {
    explicit Foreign(Desktop& desktop) : Form(desktop, "frmForeign", {.Client = {3000, 1500}}) {}
    NativeArea Area{*this, "area", {.Place = {120, 120, 1200, 330}}};
  };
  const auto foreign = std::make_shared<Foreign>(desktop());
  HANDLE outside = nullptr;
  GetCurrentActCtx(&outside);
  HANDLE inside = nullptr;
  foreign->Area.Opened = [&](std::uintptr_t) { GetCurrentActCtx(&inside); };
  foreign->Show(ShowMode::Modeless);
  foreign->Unload();
  EXPECT_NE(inside, outside);
  EXPECT_TRUE(inside);
  ReleaseActCtx(inside);
  if (outside) ReleaseActCtx(outside);
}

TEST_F(Win32Guest, DialogsAreMeasuredInTheDotsOfTheSystem) {
  const int dpi = static_cast<int>(GetDpiForSystem());
  EXPECT_DOUBLE_EQ(desktop().Scale(), dpi / 96.0);
  ShowForm();
  RECT client;
  GetClientRect(WindowOf(*form), &client);
  EXPECT_EQ(client.right, 400 * dpi / 96);
}

TEST_F(Win32Guest, TheWindowClassesGoWithTheLastDialog) {
  const auto known = [] {
    WNDCLASSEXW found = {};
    found.cbSize = sizeof(found);
    return GetClassInfoExW(win32::ThisModule(), win32::WindowClasses::kDialog, &found) != 0;
  };
  EXPECT_FALSE(known());
  ShowForm();
  EXPECT_TRUE(known());
  form->Unload();
  EXPECT_FALSE(known());
}

TEST_F(Win32Guest, ObjectsAreCounted) {
  const int before = GdiObjects();
  std::vector<HBRUSH> brushes;
  for (BYTE shade = 0; shade < 100; ++shade) brushes.push_back(CreateSolidBrush(RGB(shade, 1, 2)));
  EXPECT_EQ(before + 100, GdiObjects());
  for (const HBRUSH brush : brushes) DeleteObject(brush);
  EXPECT_EQ(before, GdiObjects());
}

TEST_F(Win32Guest, AfterManyDialogsNothingHasGrown) {
  ShowOnce(ShowMode::Modeless);
  const int before = Borrowed::Now().Objects;
  for (int round = 0; round < 30; ++round) ShowOnce(ShowMode::Modeless);
  EXPECT_EQ(Borrowed::Now().Objects, before);
}

}  // namespace
}  // namespace orx::test
