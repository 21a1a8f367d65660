// Single characters of fonts as Qt paints them: what the pixels of the picker's grid show.
#include <QFontDatabase>
#include <set>

#include "desktops/qt/Characters.h"
#include "pickers/frmTrueType.h"
#include "tests/qt/QtTest.h"

namespace orx::test {
namespace {

class QtCharacters : public QtFormsTest {
 protected:
  QtCharacters() {
    picker->SelFont(QApplication::font().family().toStdString());
    picker->SelCharacter('A');
  }
  ~QtCharacters() override { picker->Unload(); }

  QImage Grid() { return Native<QWidget>(picker->picFont).grab().toImage(); }
  /// The pixels of a cell as far as no neighbour reaches into it.
  QImage Cell(const QImage& grid, int code) {
    const CharacterGrid places(desktop().Scale());
    const Point at = places.PlaceOf(code);
    const int side = places.PlaceOf(1).X - places.PlaceOf(0).X - 2;
    const double ratio = grid.devicePixelRatio();
    return grid.copy(QRectF(at.X * ratio, at.Y * ratio, side * ratio, side * ratio).toRect());
  }
  QColor PixelIn(int code) {
    const QImage grid = Grid();
    const Point at = CharacterGrid(desktop().Scale()).PlaceOf(code);
    return grid.pixelColor((QPointF(at.X, at.Y + 2) * grid.devicePixelRatio()).toPoint());
  }
  QColor Known(SystemColor which) {
    const Color color = desktop().SystemColor(which);
    return {color.Red, color.Green, color.Blue};
  }

  std::shared_ptr<frmTrueType> picker = std::make_shared<frmTrueType>(desktop());
};

TEST_F(QtCharacters, EveryFamilyOfTheSystemCanBeChosen) {
  picker->Load();
  std::set<std::string> offered;
  for (int i = 0; i < picker->cboFont.ListCount(); ++i) offered.insert(picker->cboFont.List(i));
  for (const QString& family : QFontDatabase::families())
    EXPECT_TRUE(offered.contains(family.toStdString())) << family.toStdString();
}

TEST_F(QtCharacters, EachLetterLooksDifferent) {
  picker->Show(ShowMode::Modeless);
  const QImage grid = Grid();
  std::set<QByteArray> pictures;
  for (int code = '!'; code <= '~'; ++code) {
    const QImage cell = Cell(grid, code).convertToFormat(QImage::Format_RGB888);
    QByteArray pixels;
    for (int y = 0; y < cell.height(); ++y)
      pixels.append(reinterpret_cast<const char*>(cell.constScanLine(y)), 3 * qsizetype{cell.width()});
    pictures.insert(pixels);
  }
  EXPECT_GE(pictures.size(), 93U);
}

TEST_F(QtCharacters, TheSelectedCellHasTheColorOfSelections) {
  picker->Show(ShowMode::Modeless);
  EXPECT_EQ(Known(SystemColor::Highlight), PixelIn('A'));
  EXPECT_EQ(Known(SystemColor::Window), PixelIn('V'));
  picker->picFont.UserMouseDown(CharacterGrid(desktop().Scale()).PlaceOf('L'));
  EXPECT_EQ(Known(SystemColor::Window), PixelIn('A'));
}

TEST_F(QtCharacters, AssistiveSoftwareReadsTheSelectedCharacter) {
  picker->Show(ShowMode::Modeless);
  EXPECT_EQ("Selected character: 65", Native<QWidget>(picker->picFont).accessibleName());
  picker->picFont.UserMouseDown(CharacterGrid(desktop().Scale()).PlaceOf('L'));
  EXPECT_EQ("Selected character: 76", Native<QWidget>(picker->picFont).accessibleName());
}

TEST_F(QtCharacters, LettersStandUnderTheirCodesAndSpacesShowNothing) {
  picker->Show(ShowMode::Modeless);
  const QImage grid = Grid();
  const auto isBlank = [&](int code) {
    const QImage cell = Cell(grid, code);
    for (int y = 0; y < cell.height(); ++y)
      for (int x = 0; x < cell.width(); ++x)
        if (cell.pixelColor(x, y) != Known(SystemColor::Window)) return false;
    return true;
  };
  EXPECT_TRUE(isBlank(' '));
  EXPECT_TRUE(isBlank(0xA0));
  for (const int code : {0x30, 0x80, 0x99, 0xB0, 0xE4, 0xFF}) EXPECT_FALSE(isBlank(code)) << code;
}

TEST_F(QtCharacters, AFontWithTooLongANameIsThatOfTheDialog) {
  const std::string tooLong(32, 'x');
  const Font own{.Name = QApplication::font().family().toStdString(), .Size = QApplication::font().pointSizeF()};
  EXPECT_EQ(qt::CharacterFont(own, QApplication::font()).Measure('W'),
            qt::CharacterFont({.Name = tooLong, .Size = 40}, QApplication::font()).Measure('W'));
}

TEST_F(QtCharacters, WidthsAreThoseOfTheCharactersAndHeightsThoseOfTheFont) {
  const Font font{.Name = QApplication::font().family().toStdString(), .Size = 12};
  EXPECT_GT(desktop().MeasureCharacter(font, 'W').Width, desktop().MeasureCharacter(font, 'i').Width);
  EXPECT_EQ(desktop().MeasureCharacter(font, 'W').Height, desktop().MeasureCharacter(font, 'i').Height);
  EXPECT_GE(desktop().MeasureCharacter({.Name = font.Name, .Size = 24}, 'W').Width,
            2 * desktop().MeasureCharacter(font, 'W').Width - 2);
}

TEST(QtCharacterFor, TheLetterComesBeforeTheSign) {
  const auto both = [](char32_t) { return true; };
  const auto signs = [](char32_t character) { return character >= 0xF000 && character <= 0xF0FF; };
  EXPECT_EQ(U'A', qt::CharacterFor('A', both));
  EXPECT_EQ(U'\u20AC', qt::CharacterFor(0x80, both));
  EXPECT_EQ(char32_t{0xF041}, qt::CharacterFor('A', signs));
  EXPECT_EQ(char32_t{0xF080}, qt::CharacterFor(0x80, signs));
  EXPECT_EQ(char32_t{0xF020}, qt::CharacterFor(' ', signs));
  EXPECT_EQ(std::nullopt, qt::CharacterFor(0x1F, signs));
  EXPECT_EQ(std::nullopt, qt::CharacterFor('A', [](char32_t) { return false; }));
}

}  // namespace
}  // namespace orx::test
