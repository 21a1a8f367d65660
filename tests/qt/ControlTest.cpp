// What the native controls do beyond the scenarios that run on every desktop.
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QtTest>

#include "tests/forms/MoreForms.h"
#include "tests/qt/QtTest.h"

namespace orx::test {
namespace {

using QtControl = QtFormsTest;

class QtNotes : public QtControl {
 protected:
  ~QtNotes() override { notes->Unload(); }
  QColor PixelAt(int x, int y) { return Native<QWidget>(notes->pctDrawing).grab().toImage().pixelColor(x, y); }

  std::shared_ptr<NoteForm> notes = std::make_shared<NoteForm>(desktop());
};

TEST_F(QtControl, LabelsUnderlineTheirMnemonicAndSpeakOfTheNextField) {
  ShowForm();
  const auto& label = Native<QLabel>(form->lblName);
  EXPECT_EQ("&Name:", label.text());
  EXPECT_EQ(&Native<QWidget>(form->txtName), label.buddy());
}

TEST_F(QtControl, TextsThatAreLongerThanTheirPlaceEndWithAnEllipsisAndHaveAToolTip) {
  ShowForm();
  const std::string text = "&A text that is much longer than the place that it stands in";
  const QString whole = "A text that is much longer than the place that it stands in";
  form->lblName.Caption(text);
  form->chkShow.Caption(text);
  form->cmdOK.Caption(text);
  const auto expectCut = [&](const QWidget& widget, const QString& shown) {
    EXPECT_TRUE(shown.endsWith(QChar(0x2026))) << shown.toStdString();
    EXPECT_TRUE(shown.startsWith("&A")) << shown.toStdString();
    EXPECT_EQ(whole, widget.toolTip());
  };
  expectCut(Native<QLabel>(form->lblName), Native<QLabel>(form->lblName).text());
  expectCut(Native<QCheckBox>(form->chkShow), Native<QCheckBox>(form->chkShow).text());
  expectCut(Native<QPushButton>(form->cmdOK), Native<QPushButton>(form->cmdOK).text());
  form->cmdOK.ToolTipText("What it does");
  EXPECT_EQ("What it does", Native<QWidget>(form->cmdOK).toolTip());
  form->lblName.Caption("&Name:");
  EXPECT_EQ("&Name:", Native<QLabel>(form->lblName).text());
  EXPECT_EQ("", Native<QLabel>(form->lblName).toolTip());
}

TEST_F(QtControl, AWiderPlaceShowsMoreOfAText) {
  ShowForm();
  form->lblName.Caption("A text that is longer");
  ASSERT_NE("", Native<QLabel>(form->lblName).toolTip());
  form->lblName.Place({120, 120, 4000, 240});
  EXPECT_EQ("A text that is longer", Native<QLabel>(form->lblName).text());
  EXPECT_EQ("", Native<QLabel>(form->lblName).toolTip());
}

TEST_F(QtControl, AnEntryThatIsLongerThanItsBoxEndsWithAnEllipsisAndHasAToolTip) {
  ShowForm();
  form->cboKind.AddItem(std::string(80, 'W'));
  form->cboKind.ListIndex(form->cboKind.ListCount() - 1);
  auto& combo = Native<QComboBox>(form->cboKind);
  EXPECT_EQ(QString(80, 'W'), combo.toolTip());
  EXPECT_EQ(QString(80, 'W'), combo.currentText());
  const QImage cut = combo.grab().toImage();
  form->cboKind.AddItem(std::string(4, 'W'));
  form->cboKind.ListIndex(form->cboKind.ListCount() - 1);
  EXPECT_EQ("", combo.toolTip());
  EXPECT_NE(cut, combo.grab().toImage());
}

TEST_F(QtControl, LabelsStandWhereTheirFormIsReadFrom) {
  ShowForm();
  EXPECT_TRUE(Native<QLabel>(form->lblName).alignment().testFlag(Qt::AlignLeft));
  form->Unload();
  form->RightToLeft(true);
  ShowForm();
  EXPECT_TRUE(Native<QLabel>(form->lblName).alignment().testFlag(Qt::AlignRight));
  EXPECT_TRUE(Native<QLabel>(form->lblName).alignment().testFlag(Qt::AlignAbsolute));
}

TEST_F(QtControl, AssistiveSoftwareReadsTheNames) {
  ShowForm();
  EXPECT_EQ("Name:", Native<QLineEdit>(form->txtName).accessibleName());
  EXPECT_EQ("Kind", Native<QComboBox>(form->cboKind).accessibleName());
  EXPECT_EQ("txtName", Native<QLineEdit>(form->txtName).objectName());
}

TEST_F(QtControl, TheSelectionOfTheUserIsCountedInCharacters) {
  ShowForm();
  form->txtName.Text("\U0001F30D\U0001F30D ab");
  Native<QLineEdit>(form->txtName).setSelection(5, 2);
  EXPECT_EQ(3, form->txtName.SelStart());
  EXPECT_EQ(2, form->txtName.SelLength());
}

TEST_F(QtControl, TheSelectionOfTheProgramIsShown) {
  ShowForm();
  form->txtName.Text("\U0001F30Dabc");
  form->txtName.SelStart(1);
  form->txtName.SelLength(2);
  EXPECT_EQ("ab", Native<QLineEdit>(form->txtName).selectedText());
}

TEST_F(QtControl, EscapeInAnOpenListClosesTheListOnly) {
  ShowForm();
  auto& combo = Native<QComboBox>(form->cboKind);
  QTest::mouseClick(&combo, Qt::LeftButton);
  ASSERT_TRUE(combo.view()->isVisible());
  QTest::keyClick(combo.view(), Qt::Key_Escape);
  EXPECT_FALSE(combo.view()->isVisible());
  EXPECT_EQ(0, std::count(events.begin(), events.end(), "cmdCancel_Click"));
}

TEST_F(QtControl, ArrowKeysChooseInAClosedList) {
  ShowForm();
  form->cboKind.SetFocus();
  events.clear();
  QTest::keyClick(&Native<QComboBox>(form->cboKind), Qt::Key_Down);
  EXPECT_EQ(0, form->cboKind.ListIndex());
  EXPECT_EQ((Events{"cboKind_Click"}), NewEvents());
}

TEST_F(QtControl, ArrowKeysOnAButtonMoveTheFocusOfTheForm) {
  ShowSettled();
  form->cmdOK.SetFocus();
  events.clear();
  QTest::keyClick(&Native<QWidget>(form->cmdOK), Qt::Key_Right);
  EXPECT_EQ((Events{"cmdOK_LostFocus", "cmdCancel_GotFocus"}), NewEvents());
}

TEST_F(QtNotes, FieldsThatCannotBeTypedInHaveTheGroundOfTheDialog) {
  notes->Show(ShowMode::Modeless);
  const QPalette& plain = Native<QWidget>(notes->txtNote).palette();
  const QPalette& locked = Native<QWidget>(notes->txtLog).palette();
  EXPECT_EQ(plain.color(QPalette::Window), locked.color(QPalette::Base));
  EXPECT_NE(plain.color(QPalette::Base), locked.color(QPalette::Base));
}

TEST_F(QtNotes, ALogShowsItsEndAndCannotBeTypedInto) {
  notes->Show(ShowMode::Modeless);
  std::string lines;
  for (int line = 0; line < 50; ++line) lines += "line " + std::to_string(line) + "\n";
  notes->txtLog.Text(lines);
  const QScrollBar& bar = *Native<QPlainTextEdit>(notes->txtLog).verticalScrollBar();
  EXPECT_GT(bar.maximum(), 0);
  EXPECT_EQ(bar.maximum(), bar.value());
  user.Type(notes->txtLog, "x");
  EXPECT_EQ(lines, notes->txtLog.Text());
  EXPECT_TRUE(notes->txtLog.HasFocus());
}

TEST_F(QtNotes, EnterBreaksALineWhereNoButtonTakesIt) {
  notes->Show(ShowMode::Modeless);
  user.Type(notes->txtNote, "one");
  user.Press(*notes, kEnter);
  EXPECT_EQ("one\n", notes->txtNote.Text());
  EXPECT_EQ(4, notes->txtNote.SelStart());
}

TEST_F(QtNotes, LabelsShowPlainText) {
  notes->Show(ShowMode::Modeless);
  EXPECT_EQ("R & D <b>", Native<QLabel>(notes->lblPlain).text());
  EXPECT_EQ(Qt::PlainText, Native<QLabel>(notes->lblPlain).textFormat());
}

TEST_F(QtNotes, DrawingsArePaintedMarkByMark) {
  notes->Show(ShowMode::Modeless);
  const auto pixel = std::make_shared<Image>(Image{1, 1, {0, 0, 255, 255}});
  Canvas& canvas = notes->pctDrawing.Drawing();
  canvas.Draw(FillMark{{0, 0, 40, 40}, {255, 0, 0}});
  canvas.Draw(LineMark{{{0, 20}, {30, 20}}, {0, 255, 0}, 1});
  canvas.Draw(ImageMark{{50, 50, 20, 20}, pixel});
  notes->pctDrawing.Refresh();
  const double ratio = DialogOf(*notes).devicePixelRatio();
  const auto at = [&](int x, int y) { return PixelAt(static_cast<int>(x * ratio), static_cast<int>(y * ratio)); };
  EXPECT_EQ(QColor(Qt::red), at(10, 10));
  EXPECT_EQ(QColor(Qt::green), at(10, 20));
  EXPECT_EQ(QColor(Qt::blue), at(60, 60));
  EXPECT_EQ(QColor(Qt::white), at(45, 10));
}

TEST_F(QtNotes, WithoutAutomaticRedrawOnlyTheBackgroundIsPainted) {
  notes->Show(ShowMode::Modeless);
  notes->pctDrawing.Drawing().Draw(FillMark{{0, 0, 40, 40}, {255, 0, 0}});
  notes->pctDrawing.BackColor({0, 0, 0});
  notes->pctDrawing.AutoRedraw(false);
  EXPECT_EQ(QColor(Qt::black), PixelAt(10, 10));
}

TEST_F(QtNotes, TextsAreDrawnAroundTheirCentreAndTurned) {
  notes->Show(ShowMode::Modeless);
  notes->pctDrawing.Drawing().Draw(TextMark{{50, 50}, "MMMM", {.Size = 12, .Bold = true}, {0, 0, 0}, 90});
  const QImage image = Native<QWidget>(notes->pctDrawing).grab().toImage();
  QRect inked;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y).lightness() < 128) inked |= QRect(x, y, 1, 1);
  EXPECT_GT(inked.height(), 2 * inked.width());
  const QPoint off = inked.center() - QPointF(50, 50).toPoint() * image.devicePixelRatio();
  EXPECT_LE(off.manhattanLength(), 8 * image.devicePixelRatio());
}

}  // namespace
}  // namespace orx::test
