// Single characters of fonts as Qt paints them: what the pixels of the picker's grid show.
#include <QApplication>
#include <QFontDatabase>
#include <QPainter>
#include <set>

#include "desktops/qt/Characters.h"
#include "forms/Contrast.h"
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
  /// The pixels of a cell.
  QImage Cell(const QImage& grid, int code) {
    const Rect cell = CharacterGrid(desktop().Scale()).CellOf(code);
    const double ratio = grid.devicePixelRatio();
    return grid.copy(QRectF(cell.Left * ratio, cell.Top * ratio, cell.Width * ratio, cell.Height * ratio).toRect());
  }
  /// The part of a cell that is not of its ground, in its own pixels.
  static QRect InkIn(const QImage& cell, QColor ground) {
    QRect ink;
    for (int y = 0; y < cell.height(); ++y)
      for (int x = 0; x < cell.width(); ++x)
        if (cell.pixelColor(x, y) != ground) ink |= QRect(x, y, 1, 1);
    return ink;
  }
  QColor Known(SystemColor which) {
    const Color color = desktop().SystemColor(which);
    return {color.Red, color.Green, color.Blue};
  }

  void Pick(int code) {
    const Rect cell = CharacterGrid(desktop().Scale()).CellOf(code);
    picker->picFont.UserMouseDown({cell.Left, cell.Top});
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
  const QImage selected = Cell(Grid(), 'A');
  // At a scale with a fraction the very edge is shared with the neighbours.
  const QRect filled = selected.rect().adjusted(1, 1, -1, -1);
  for (const QPoint corner : {filled.topLeft(), filled.topRight(), filled.bottomLeft(), filled.bottomRight()})
    EXPECT_EQ(Known(SystemColor::Highlight), selected.pixelColor(corner));
  EXPECT_EQ(Known(SystemColor::Window), Cell(Grid(), 'V').pixelColor(1, 1));
  Pick('L');
  EXPECT_EQ(Known(SystemColor::Window), Cell(Grid(), 'A').pixelColor(1, 1));
}

TEST_F(QtCharacters, CharactersStandInTheMiddleOfTheirCellsAndTouchNoNeighbour) {
  picker->Show(ShowMode::Modeless);
  const QImage grid = Grid();
  for (int code = 0; code < 256; ++code) {
    if (code == picker->SelCharacter()) continue;
    const QImage cell = Cell(grid, code);
    const QRect ink = InkIn(cell, Known(SystemColor::Window));
    if (ink.isEmpty()) continue;
    EXPECT_TRUE(cell.rect().adjusted(1, 1, -1, -1).contains(ink)) << code;
    EXPECT_NEAR(cell.width() - 1, ink.left() + ink.right(), 3 * grid.devicePixelRatio()) << code;
  }
}

TEST_F(QtCharacters, EvenTheWidestCharactersOfALargeFontStayInTheirCells) {
  for (const int code : {0x57, 0x4D, 0x40, 0x89, 0xC6}) {
    QImage drawn(40, 40, QImage::Format_RGB32);
    drawn.fill(Qt::white);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    qt::CharacterFont({.Size = 60}, QApplication::font()).Draw(painter, QRectF(10, 10, 20, 20), code);
    painter.end();
    const QRect ink = InkIn(drawn, Qt::white);
    EXPECT_TRUE(QRect(11, 11, 18, 18).contains(ink)) << code;
    EXPECT_GE(std::max(ink.width(), ink.height()), 14) << code;
  }
}

TEST_F(QtCharacters, CodesWithoutACharacterShowTheirNumbersInGray) {
  picker->Show(ShowMode::Modeless);
  const QImage grid = Grid();
  ASSERT_FALSE(desktop().CharactersOf({.Name = picker->SelFont()}).test(0x81));
  const QImage cell = Cell(grid, 0x81);
  EXPECT_FALSE(InkIn(cell, Known(SystemColor::Window)).isEmpty());
  const Color gray =
      FadedInk(desktop().SystemColor(SystemColor::WindowText), desktop().SystemColor(SystemColor::Window));
  for (int y = 0; y < cell.height(); ++y)
    for (int x = 0; x < cell.width(); ++x) EXPECT_GE(cell.pixelColor(x, y).lightness(), gray.Red - 2);
}

TEST_F(QtCharacters, AssistiveSoftwareReadsTheSelectedCharacter) {
  picker->Show(ShowMode::Modeless);
  EXPECT_EQ("Selected character: 65", Native<QWidget>(picker->picFont).accessibleName());
  Pick('L');
  EXPECT_EQ("Selected character: 76", Native<QWidget>(picker->picFont).accessibleName());
}

TEST_F(QtCharacters, LettersStandUnderTheirCodesAndSpacesShowNothing) {
  picker->Show(ShowMode::Modeless);
  const QImage grid = Grid();
  const auto isBlank = [&](int code) { return InkIn(Cell(grid, code), Known(SystemColor::Window)).isEmpty(); };
  EXPECT_TRUE(isBlank(' '));
  EXPECT_TRUE(isBlank(0xA0));
  for (const int code : {0x30, 0x80, 0x99, 0xB0, 0xE4, 0xFF}) EXPECT_FALSE(isBlank(code)) << code;
}

TEST_F(QtCharacters, AFontWithTooLongANameIsThatOfTheDialog) {
  const std::string tooLong(32, 'x');
  const Font own{.Name = QApplication::font().family().toStdString(), .Size = QApplication::font().pointSizeF()};
  EXPECT_EQ(desktop().CharactersOf(own), desktop().CharactersOf({.Name = tooLong}));
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
