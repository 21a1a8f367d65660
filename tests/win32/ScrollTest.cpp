// Forms that are higher than the screen: the buttons stay in reach and the rest scrolls.
#include "forms/Arrangement.h"
#include "tests/layout/LayoutCheck.h"
#include "tests/win32/Win32Test.h"

namespace orx::test {
namespace {

class Win32Scroll : public Win32FormsTest {
 protected:
  /// The form is 5400 twips high; the screen has room for two thirds of that.
  void ShowOnLowScreen() {
    const int frame = desktop().Metrics(BorderStyle::Fixed).Frame.Height;
    Win32Only().WorkArea({0, 0, 12000, 3600 + frame});
    ShowForm();
  }

  HWND Pane() { return GetAncestor(WindowOf(form->txtName), GA_PARENT); }
  SCROLLINFO Bar(int bar) {
    SCROLLINFO info = {sizeof(info), SIF_ALL, 0, 0, 0, 0, 0};
    GetScrollInfo(Pane(), bar, &info);
    return info;
  }
  bool HasBar(LONG_PTR style) { return (GetWindowLongPtrW(Pane(), GWL_STYLE) & style) != 0; }
  LONG ClientHeight() {
    RECT client;
    GetClientRect(WindowOf(*form), &client);
    return client.bottom;
  }
};

TEST_F(Win32Scroll, AFormThatFitsShowsNoScrollBar) {
  Win32Only().WorkArea({0, 0, 30000, 30000});
  ShowForm();
  EXPECT_FALSE(HasBar(WS_VSCROLL));
  EXPECT_FALSE(HasBar(WS_HSCROLL));
  EXPECT_EQ(desktop().ToPixels(5400), ClientHeight());
}

TEST_F(Win32Scroll, OnALowScreenTheButtonsStayAtTheBottom) {
  ShowOnLowScreen();
  EXPECT_EQ(desktop().ToPixels(3600), ClientHeight());
  EXPECT_EQ(desktop().ToPixels(4680) - (desktop().ToPixels(5400) - desktop().ToPixels(3600)),
            PlaceInWindow(form->cmdOK).top);
  EXPECT_TRUE(HasBar(WS_VSCROLL));
  EXPECT_FALSE(HasBar(WS_HSCROLL));
  user.Click(form->cmdOK);
  EXPECT_EQ(1, std::count(events.begin(), events.end(), "cmdOK_Click"));
}

TEST_F(Win32Scroll, TheScrollBarHasTheRangeOfTheArrangement) {
  ShowOnLowScreen();
  const int bar = GetSystemMetrics(SM_CXVSCROLL);
  const Arrangement arrangement = Arrange(*form, {bar, bar});
  EXPECT_EQ(arrangement.Down.Seen, static_cast<int>(Bar(SB_VERT).nPage));
  EXPECT_EQ(arrangement.Down.Whole, Bar(SB_VERT).nMax + 1);
  Send(Pane(), WM_VSCROLL, SB_BOTTOM);
  EXPECT_GT(Bar(SB_VERT).nPos, 0);
  EXPECT_EQ(arrangement.Clamped({0, 99999}).Y, Bar(SB_VERT).nPos);
}

TEST_F(Win32Scroll, ScrolledToTheEndEverythingStandsAboveTheButtons) {
  ShowOnLowScreen();
  Send(Pane(), WM_VSCROLL, SB_BOTTOM);
  EXPECT_LE(PlaceInWindow(form->ssTab).bottom, PlaceInWindow(form->cmdOK).top);
}

TEST_F(Win32Scroll, FocusMovedOutOfViewScrollsThere) {
  ShowOnLowScreen();
  form->ssTab.Tab(1);
  form->txtSecond.Top(2000);
  EXPECT_GT(PlaceInWindow(form->txtSecond).bottom, PlaceInWindow(form->cmdOK).top);
  form->txtSecond.SetFocus();
  EXPECT_LT(PlaceInWindow(form->txtSecond).bottom, PlaceInWindow(form->cmdOK).top);
  form->txtName.SetFocus();
  EXPECT_GE(PlaceInWindow(form->txtName).top, 0);
}

TEST_F(Win32Scroll, TheWheelScrollsAndChangesNoValueOnTheWay) {
  ShowOnLowScreen();
  form->cboKind.ListIndex(0);
  Send(WindowOf(form->cboKind), WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA));
  EXPECT_EQ(0, form->cboKind.ListIndex());
  EXPECT_GT(Bar(SB_VERT).nPos, 0);
}

TEST_F(Win32Scroll, TheBarScrollsByLinesAndPages) {
  ShowOnLowScreen();
  Send(Pane(), WM_VSCROLL, SB_LINEDOWN);
  EXPECT_EQ(desktop().ToPixels(300), Bar(SB_VERT).nPos);
  Send(Pane(), WM_VSCROLL, SB_LINEUP);
  EXPECT_EQ(0, Bar(SB_VERT).nPos);
  Send(Pane(), WM_VSCROLL, SB_PAGEDOWN);
  EXPECT_GT(Bar(SB_VERT).nPos, desktop().ToPixels(300));
  Send(Pane(), WM_VSCROLL, SB_TOP);
  EXPECT_EQ(0, Bar(SB_VERT).nPos);
}

TEST_F(Win32Scroll, ANarrowScreenScrollsSidewaysToo) {
  Win32Only().WorkArea({0, 0, 4500, 4500});
  ShowForm();
  RECT client;
  GetClientRect(WindowOf(*form), &client);
  EXPECT_TRUE(HasBar(WS_HSCROLL));
  EXPECT_LE(PlaceInWindow(form->cmdCancel).right, client.right);
  EXPECT_GE(PlaceInWindow(form->cmdOK).left, 0);
}

}  // namespace
}  // namespace orx::test
