// What native lists do beyond the scenarios that run on every desktop.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "desktops/win32/Handles.h"
#include "forms/TreeList.h"
#include "tests/forms/ListForm.h"
#include "tests/win32/Win32Test.h"

namespace orx::test {
namespace {

class Win32List : public Win32FormsTest {
 protected:
  Win32List() { lists->Show(ShowMode::Modeless); }
  ~Win32List() override { lists->Unload(); }

  int Overhang() const {
    const HWND window = WindowOf(lists->lstOne);
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    RECT client = {};
    GetClientRect(window, &client);
    return static_cast<int>(Send(window, LVM_GETCOLUMNWIDTH, 0) - client.right);
  }
  static void SetSelected(const ListBox& list, int row, bool value) {
    LVITEMW item = {};
    item.state = value ? LVIS_SELECTED : 0;
    item.stateMask = LVIS_SELECTED;
    Send(WindowOf(list), LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  }

  Events log;
  std::shared_ptr<ListForm> lists = std::make_shared<ListForm>(desktop(), log);
};

TEST_F(Win32List, ALongEntryIsReadByScrolling) {
  EXPECT_EQ(0, Overhang());
  lists->lstOne.AddItem("A layer with a name that is much longer than the list is wide");
  EXPECT_GT(Overhang(), 0);
  user.Click(lists->lstOne, 4);
  user.PressKey(*lists, kKeyCodeRight);
  EXPECT_GT(GetScrollPos(WindowOf(lists->lstOne), SB_HORZ), 0);
  EXPECT_EQ(4, lists->lstOne.ListIndex());
  lists->lstOne.Clear();
  lists->lstOne.AddItem("Oak");
  EXPECT_EQ(0, Overhang());
}

struct RowsForm final : Form {
  explicit RowsForm(Desktop& desktop) : Form(desktop, "frmRows", {.Client = {3000, 3000}}) { RightToLeft(true); }
  TreeList sftRows{*this, "sftRows", {.Place = {120, 120, 1800, 1800}}};
};

TEST_F(Win32List, RowsThatAreReadFromRightToLeftStandAtTheRightAndTheirLettersAreNotMirrored) {
  const auto rows = std::make_shared<RowsForm>(desktop());
  rows->sftRows.AddRow({"LLLL"});
  rows->Show(ShowMode::Modeless);
  const HWND window = WindowOf(rows->sftRows);
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
  RECT client = {};
  GetClientRect(window, &client);
  const win32::WindowContext context(window);
  SetLayout(context.Get(), 0);
  const int height = desktop().ToPixels(270);
  // How many pixels of each column are of the text.
  std::vector<int> ink;
  for (int x = 0; x < client.right; ++x) {
    ink.push_back(0);
    for (int y = 0; y < height; ++y)
      ink.back() += GetPixel(context.Get(), x, y) != GetPixel(context.Get(), 1, 1) ? 1 : 0;
  }
  const auto hasInk = [](int count) { return count > 0; };
  const auto first = std::ranges::find_if(ink, hasInk);
  const auto last = std::find_if(ink.rbegin(), ink.rend(), hasInk);
  ASSERT_NE(ink.end(), first);
  EXPECT_GT(first - ink.begin(), client.right / 2);
  // An L begins with its high stem.
  EXPECT_GT(*first, *last);
  rows->Unload();
}

TEST_F(Win32List, TheOtherMouseButtonSelectsNothing) {
  for (const int row : {0, 2}) user.Click(lists->lstSome, row);
  const HWND window = WindowOf(lists->lstSome);
  PostMessageW(window, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(8, 30));
  PostMessageW(window, WM_RBUTTONUP, 0, MAKELPARAM(8, 30));
  desktop().ProcessPendingEvents();
  EXPECT_EQ((std::set<int>{0, 2}), lists->lstSome.SelectedRows());
  EXPECT_EQ((std::set<int>{0, 2}), user.SeeSelected(lists->lstSome));
}

TEST_F(Win32List, AssistiveSoftwareSelectsEntries) {
  SetSelected(lists->lstSome, 1, true);
  SetSelected(lists->lstSome, 3, true);
  EXPECT_EQ((std::set<int>{1, 3}), lists->lstSome.SelectedRows());
  SetSelected(lists->lstSome, 1, false);
  EXPECT_EQ(std::set<int>{3}, lists->lstSome.SelectedRows());
  SetSelected(lists->lstOne, 2, true);
  EXPECT_EQ(2, lists->lstOne.ListIndex());
}

}  // namespace
}  // namespace orx::test
