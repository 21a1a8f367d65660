// What the native controls do beyond the scenarios that run on every desktop.
#include <windows.h>

#include <commctrl.h>

#include "desktops/win32/Handles.h"
#include "tests/forms/MoreForms.h"
#include "tests/win32/Win32Test.h"

namespace orx::test {
namespace {

using Win32Control = Win32FormsTest;

class Win32Notes : public Win32Control {
 protected:
  Win32Notes() { notes->Show(ShowMode::Modeless); }
  ~Win32Notes() override { notes->Unload(); }

  COLORREF PixelAt(int x, int y) {
    UpdateWindow(WindowOf(notes->pctDrawing));
    return GetPixel(win32::WindowContext(WindowOf(notes->pctDrawing)).Get(), x, y);
  }

  std::shared_ptr<NoteForm> notes = std::make_shared<NoteForm>(desktop());
};

TEST_F(Win32Control, TheSelectionOfTheUserIsCountedInCharacters) {
  ShowForm();
  form->txtName.Text("\U0001F30D\U0001F30D ab");
  Send(FieldOf(form->txtName), EM_SETSEL, 5, 7);
  EXPECT_EQ(3, form->txtName.SelStart());
  EXPECT_EQ(2, form->txtName.SelLength());
}

TEST_F(Win32Control, WhatStandsInADisabledFrameLooksDisabled) {
  ShowForm();
  form->fraFirst.Enabled(false);
  EXPECT_FALSE(IsWindowEnabled(WindowOf(form->txtFirst)));
  form->txtFirst.Enabled(false);
  form->fraFirst.Enabled(true);
  EXPECT_FALSE(IsWindowEnabled(WindowOf(form->txtFirst)));
  form->txtFirst.Enabled(true);
  EXPECT_TRUE(IsWindowEnabled(WindowOf(form->txtFirst)));
}

TEST_F(Win32Control, TheSelectionOfTheProgramIsShown) {
  ShowForm();
  form->txtName.Text("\U0001F30Dabc");
  form->txtName.SelStart(1);
  form->txtName.SelLength(2);
  DWORD start = 0;
  DWORD end = 0;
  Send(FieldOf(form->txtName), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  EXPECT_EQ(2u, start);
  EXPECT_EQ(4u, end);
}

TEST_F(Win32Control, EscapeInAnOpenListClosesTheListOnly) {
  ShowForm();
  form->cboKind.SetFocus();
  Send(WindowOf(form->cboKind), CB_SHOWDROPDOWN, TRUE);
  user.Press(*form, kEscape);
  EXPECT_FALSE(Send(WindowOf(form->cboKind), CB_GETDROPPEDSTATE));
  EXPECT_EQ(0, std::count(events.begin(), events.end(), "cmdCancel_Click"));
}

TEST_F(Win32Control, ArrowKeysChooseInAClosedList) {
  ShowForm();
  form->cboKind.SetFocus();
  events.clear();
  PressKey(FieldOf(form->cboKind), VK_DOWN);
  EXPECT_EQ(0, form->cboKind.ListIndex());
  EXPECT_EQ((Events{"cboKind_Click"}), NewEvents());
}

TEST_F(Win32Control, ArrowKeysOnAButtonMoveTheFocusOfTheForm) {
  ShowForm();
  form->cmdOK.SetFocus();
  events.clear();
  PressKey(WindowOf(form->cmdOK), VK_RIGHT);
  EXPECT_EQ((Events{"cmdOK_LostFocus", "cmdCancel_GotFocus"}), NewEvents());
}

TEST_F(Win32Control, TheButtonThatEnterWouldPressLooksLikeIt) {
  ShowForm();
  const auto isDefault = [&](const Button& button) {
    return (GetWindowLongPtrW(WindowOf(button), GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
  };
  EXPECT_TRUE(isDefault(form->cmdOK));
  EXPECT_FALSE(isDefault(form->cmdCancel));
}

/// The tool tips of the thread's dialog.
HWND Tips() {
  return FindWindowExW(nullptr, nullptr, TOOLTIPS_CLASSW, nullptr);
}

class Win32TipTexts : public Win32Control {
 protected:
  /// The tool tip that the platform has for a control.
  std::wstring TipOf(const Control& control) {
    wchar_t text[100] = {};
    TTTOOLINFOW info = {};
    info.cbSize = TTTOOLINFOW_V2_SIZE;
    info.hwnd = WindowOf(*form);
    info.uId = reinterpret_cast<UINT_PTR>(FieldOf(control));
    info.lpszText = text;
    Send(Tips(), TTM_GETTEXTW, 100, reinterpret_cast<LPARAM>(&info));
    return text;
  }
};

TEST_F(Win32TipTexts, AreGivenToThePlatform) {
  ShowForm();
  form->txtName.ToolTipText("The layer's name");
  ASSERT_TRUE(Tips());
  EXPECT_EQ(L"The layer's name", TipOf(form->txtName));
}

TEST_F(Win32TipTexts, ALabelThatIsCutOffEndsWithAnEllipsisAndHasItsTextAsToolTip) {
  ShowForm();
  form->lblName.Caption("A &text that is longer than its place");
  ASSERT_TRUE(Tips());
  EXPECT_EQ(SS_ENDELLIPSIS, GetWindowLongPtrW(WindowOf(form->lblName), GWL_STYLE) & SS_ELLIPSISMASK);
  EXPECT_EQ(L"A text that is longer than its place", TipOf(form->lblName));
  form->lblName.ToolTipText("What the layer is called");
  EXPECT_EQ(L"What the layer is called", TipOf(form->lblName));
  form->lblName.ToolTipText("");
  form->lblName.Place({120, 120, 4500, 240});
  EXPECT_EQ(L"", TipOf(form->lblName));
}

class Win32ToolTips : public Win32Control {
 protected:
  /// Puts the mouse into the middle of a control and waits until a tool tip stands there, or has gone.
  bool Shows(const Control& control, bool isExpected) {
    Send(Tips(), TTM_SETDELAYTIME, TTDT_INITIAL, 1);
    RECT place;
    GetWindowRect(WindowOf(control), &place);
    SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    const HWND taker = WindowFromPoint({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
    // As the platform asks when the mouse has moved.
    Send(taker, WM_SETCURSOR, reinterpret_cast<WPARAM>(taker), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    const DWORD end = GetTickCount() + 2000;
    while (IsVisible() != isExpected && GetTickCount() < end) {
      desktop().ProcessPendingEvents();
      Sleep(1);
    }
    return IsVisible();
  }
  static bool IsVisible() { return IsWindowVisible(Tips()) != FALSE; }
};

TEST_F(Win32ToolTips, AreAlsoShownOverDisabledControls) {
  ShowForm();
  form->txtName.ToolTipText("The layer cannot be renamed");
  form->txtName.Enabled(false);
  ASSERT_TRUE(Tips());
  EXPECT_TRUE(Shows(form->txtName, true));
  EXPECT_EQ("The layer cannot be renamed", TextOf(Tips()));
  EXPECT_FALSE(Shows(form->cmdOK, false));
}

TEST_F(Win32ToolTips, AreShownWhereAWholeFrameIsDisabled) {
  ShowForm();
  form->txtFirst.ToolTipText("Not read");
  form->fraFirst.Enabled(false);
  EXPECT_TRUE(Shows(form->txtFirst, true));
  EXPECT_EQ("Not read", TextOf(Tips()));
}

TEST_F(Win32ToolTips, AreNotShownOverWhatHasNone) {
  ShowForm();
  form->txtSize.ToolTipText("Somewhere else");
  form->txtSize.Enabled(false);
  form->txtName.Enabled(false);
  EXPECT_TRUE(Shows(form->txtSize, true));
  EXPECT_FALSE(Shows(form->txtName, false));
}

TEST_F(Win32Notes, ALogShowsItsEndAndCannotBeTypedInto) {
  std::string lines;
  for (int line = 0; line < 50; ++line) lines += "line " + std::to_string(line) + "\n";
  notes->txtLog.Text(lines);
  SCROLLINFO info = {sizeof(info), SIF_ALL, 0, 0, 0, 0, 0};
  GetScrollInfo(FieldOf(notes->txtLog), SB_VERT, &info);
  EXPECT_GT(info.nMax, static_cast<int>(info.nPage));
  EXPECT_GE(info.nPos + static_cast<int>(info.nPage), info.nMax);
  user.Type(notes->txtLog, "x");
  EXPECT_EQ(lines, notes->txtLog.Text());
  EXPECT_TRUE(notes->txtLog.HasFocus());
}

TEST_F(Win32Notes, EnterBreaksALineWhereNoButtonTakesIt) {
  user.Type(notes->txtNote, "one");
  user.Press(*notes, kEnter);
  EXPECT_EQ("one\n", notes->txtNote.Text());
  EXPECT_EQ(4, notes->txtNote.SelStart());
}

TEST_F(Win32Notes, DrawingsArePaintedMarkByMark) {
  const auto pixel = std::make_shared<Image>(Image{1, 1, {0, 0, 255, 255}});
  Canvas& canvas = notes->pctDrawing.Drawing();
  canvas.Draw(FillMark{{0, 0, 40, 40}, {255, 0, 0}});
  canvas.Draw(LineMark{{{0, 20}, {30, 20}}, {0, 255, 0}, 1});
  canvas.Draw(ImageMark{{50, 50, 20, 20}, pixel});
  notes->pctDrawing.Refresh();
  EXPECT_EQ(RGB(255, 0, 0), PixelAt(10, 10));
  EXPECT_EQ(RGB(0, 255, 0), PixelAt(10, 20));
  EXPECT_EQ(RGB(0, 0, 255), PixelAt(60, 60));
  EXPECT_EQ(RGB(255, 255, 255), PixelAt(45, 10));
}

TEST_F(Win32Notes, WithoutAutomaticRedrawOnlyTheBackgroundIsPainted) {
  notes->pctDrawing.Drawing().Draw(FillMark{{0, 0, 40, 40}, {255, 0, 0}});
  notes->pctDrawing.BackColor({0, 0, 0});
  notes->pctDrawing.AutoRedraw(false);
  EXPECT_EQ(RGB(0, 0, 0), PixelAt(10, 10));
}

TEST_F(Win32Notes, TextsAreDrawnAroundTheirCentreAndTurned) {
  notes->pctDrawing.Drawing().Draw(TextMark{{50, 50}, "MMMM", {.Size = 12, .Bold = true}, {0, 0, 0}, 90});
  notes->pctDrawing.Refresh();
  RECT inked = {1000, 1000, 0, 0};
  for (int y = 0; y < 100; ++y)
    for (int x = 0; x < 100; ++x)
      if (GetGValue(PixelAt(x, y)) < 128) {
        inked = {std::min<LONG>(inked.left, x), std::min<LONG>(inked.top, y), std::max<LONG>(inked.right, x),
                 std::max<LONG>(inked.bottom, y)};
      }
  EXPECT_GT(inked.bottom - inked.top, 2 * (inked.right - inked.left));
  EXPECT_NEAR((inked.left + inked.right) / 2.0, 50, 5);
  EXPECT_NEAR((inked.top + inked.bottom) / 2.0, 50, 5);
}

}  // namespace
}  // namespace orx::test
