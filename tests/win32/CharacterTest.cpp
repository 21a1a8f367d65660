// Single characters of fonts as the platform paints them: what the pixels of the picker's grid show.
#include <algorithm>
#include <set>

#include "desktops/win32/Characters.h"
#include "desktops/win32/Handles.h"
#include "pickers/frmTrueType.h"
#include "tests/win32/Win32Test.h"

namespace orx::test {
namespace {

class Win32Characters : public Win32FormsTest {
 protected:
  Win32Characters() {
    picker->SelFont(desktop().ScreenFonts().at(1));
    picker->SelCharacter('A');
    picker->Show(ShowMode::Modeless);
  }
  ~Win32Characters() override { picker->Unload(); }

  COLORREF PixelAt(int x, int y) {
    UpdateWindow(WindowOf(picker->picFont));
    return GetPixel(win32::WindowContext(WindowOf(picker->picFont)).Get(), x, y);
  }
  /// The pixels of a cell, row by row.
  std::vector<COLORREF> Cell(int code) {
    UpdateWindow(WindowOf(picker->picFont));
    const win32::WindowContext context(WindowOf(picker->picFont));
    const Rect cell = Grid().CellOf(code);
    std::vector<COLORREF> pixels;
    for (int y = cell.Top; y < cell.Bottom(); ++y)
      for (int x = cell.Left; x < cell.Right(); ++x) pixels.push_back(GetPixel(context.Get(), x, y));
    return pixels;
  }
  void Pick(int code) { picker->picFont.UserMouseDown({Grid().CellOf(code).Left, Grid().CellOf(code).Top}); }
  CharacterGrid Grid() { return CharacterGrid(desktop().Scale()); }

  std::shared_ptr<frmTrueType> picker = std::make_shared<frmTrueType>(desktop());
};

TEST_F(Win32Characters, EachLetterLooksDifferent) {
  std::set<std::vector<COLORREF>> pictures;
  for (int code = '!'; code <= '~'; ++code) pictures.insert(Cell(code));
  EXPECT_GE(pictures.size(), 90U);
}

TEST_F(Win32Characters, TheSelectedCellHasTheColorOfSelections) {
  for (const std::size_t corner : {std::size_t{0}, Cell('A').size() - 1}) {
    EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), Cell('A')[corner]);
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), Cell('V')[corner]);
  }
  Pick('L');
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), Cell('A').front());
}

TEST_F(Win32Characters, TheFocusIsMarkedOnTheEdgeOfTheSelectedCell) {
  const std::vector<COLORREF> before = Cell('A');
  picker->picFont.SetFocus();
  EXPECT_NE(before, Cell('A'));
  picker->txtRot.SetFocus();
  EXPECT_EQ(before, Cell('A'));
}

TEST_F(Win32Characters, CharactersStandInTheMiddleOfTheirCellsAndTouchNoNeighbour) {
  const int side = Grid().CellOf(0).Width;
  for (int code = 0; code < 256; ++code) {
    if (code == picker->SelCharacter()) continue;
    const std::vector<COLORREF> pixels = Cell(code);
    int left = side;
    int right = -1;
    for (int i = 0; i < side * side; ++i) {
      if (pixels[static_cast<std::size_t>(i)] == GetSysColor(COLOR_WINDOW)) continue;
      left = std::min(left, i % side);
      right = std::max(right, i % side);
      EXPECT_TRUE(i / side > 0 && i / side < side - 1) << code;
    }
    if (right < 0) continue;
    EXPECT_GT(left, 0) << code;
    EXPECT_LT(right, side - 1) << code;
    EXPECT_NEAR(side - 1, left + right, 3 * desktop().Scale()) << code;
  }
}

TEST_F(Win32Characters, SpacesShowNothingAndLettersSomething) {
  const auto isBlank = [this](int code) {
    const std::vector<COLORREF> pixels = Cell(code);
    return std::all_of(pixels.begin(), pixels.end(), [](COLORREF pixel) { return pixel == GetSysColor(COLOR_WINDOW); });
  };
  EXPECT_TRUE(isBlank(' '));
  for (const int code : {0x30, 0x57, 0x80, 0xE4, 0xFF}) EXPECT_FALSE(isBlank(code)) << code;
}

TEST_F(Win32Characters, TheColorsAreThoseOfTheSystem) {
  for (const auto& [which, index] : {std::pair{SystemColor::Window, COLOR_WINDOW},
                                     {SystemColor::WindowText, COLOR_WINDOWTEXT},
                                     {SystemColor::Highlight, COLOR_HIGHLIGHT},
                                     {SystemColor::HighlightText, COLOR_HIGHLIGHTTEXT},
                                     {SystemColor::DialogFace, COLOR_BTNFACE}}) {
    const Color color = desktop().SystemColor(which);
    EXPECT_EQ(GetSysColor(index), RGB(color.Red, color.Green, color.Blue));
  }
}

TEST_F(Win32Characters, ATooLongNameTakesTheFontOfTheDevice) {
  const win32::WindowContext screen(nullptr);
  EXPECT_FALSE(win32::MakeCharacterFont(screen.Get(), {.Name = std::string(32, 'x'), .Size = 40}));
  EXPECT_TRUE(win32::MakeCharacterFont(screen.Get(), {.Name = std::string(31, 'x'), .Size = 40}));
  EXPECT_TRUE(desktop().CharactersOf({.Name = std::string(32, 'x')}).test('W'));
}

}  // namespace
}  // namespace orx::test
