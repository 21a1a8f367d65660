// Single characters of fonts as the platform paints them: what the pixels of the picker's grid show.
#include <algorithm>
#include <set>

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
  /// The pixels of a cell as far as no neighbour reaches into it.
  std::vector<COLORREF> Cell(int code) {
    UpdateWindow(WindowOf(picker->picFont));
    const win32::WindowContext context(WindowOf(picker->picFont));
    const Point at = Grid().PlaceOf(code);
    const int side = Grid().PlaceOf(1).X - Grid().PlaceOf(0).X - 2;
    std::vector<COLORREF> pixels;
    for (int y = 0; y < side; ++y)
      for (int x = 0; x < side; ++x) pixels.push_back(GetPixel(context.Get(), at.X + x, at.Y + y));
    return pixels;
  }
  CharacterGrid Grid() { return CharacterGrid(desktop().Scale()); }

  std::shared_ptr<frmTrueType> picker = std::make_shared<frmTrueType>(desktop());
};

TEST_F(Win32Characters, EachLetterLooksDifferent) {
  std::set<std::vector<COLORREF>> pictures;
  for (int code = '!'; code <= '~'; ++code) pictures.insert(Cell(code));
  EXPECT_GE(pictures.size(), 90U);
}

TEST_F(Win32Characters, TheSelectedCellHasTheColorOfSelections) {
  const Point selected = Grid().PlaceOf('A');
  EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), PixelAt(selected.X - 1, selected.Y));
  picker->picFont.UserMouseDown(Grid().PlaceOf('L'));
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), PixelAt(selected.X - 1, selected.Y));
}

TEST_F(Win32Characters, TheFocusIsMarkedOnTheEdgeOfTheSelectedCell) {
  const Point selected = Grid().PlaceOf('A');
  const auto edge = [&] {
    std::vector<COLORREF> pixels;
    for (int x = 0; x < 8; ++x) pixels.push_back(PixelAt(selected.X - 1 + x, selected.Y));
    return pixels;
  };
  const std::vector<COLORREF> before = edge();
  picker->picFont.SetFocus();
  EXPECT_NE(before, edge());
  picker->txtRot.SetFocus();
  EXPECT_EQ(before, edge());
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
                                     {SystemColor::DialogFace, COLOR_BTNFACE},
                                     {SystemColor::GrayText, COLOR_GRAYTEXT}}) {
    const Color color = desktop().SystemColor(which);
    EXPECT_EQ(GetSysColor(index), RGB(color.Red, color.Green, color.Blue));
  }
}

TEST_F(Win32Characters, ATooLongNameTakesTheFontOfTheDevice) {
  const win32::WindowContext screen(nullptr);
  SIZE size = {};
  GetTextExtentPoint32A(screen.Get(), "W", 1, &size);
  const std::string tooLong(32, 'x');
  EXPECT_EQ((Size{size.cx, size.cy}), desktop().MeasureCharacter({.Name = tooLong, .Size = 40}, 'W'));
  const std::string longest(31, 'x');
  EXPECT_NE((Size{size.cx, size.cy}), desktop().MeasureCharacter({.Name = longest, .Size = 40}, 'W'));
}

}  // namespace
}  // namespace orx::test
