#include "tests/support/QtCommonDialogs.h"

#include <gtest/gtest.h>

#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include "desktops/qt/ColorDialog.h"
#include "desktops/qt/FileDialog.h"
#include "desktops/qt/FontDialog.h"
#include "desktops/qt/Text.h"

namespace orx::test {
namespace {

using qt::FromQt;
using qt::ToQt;

/// Types into the name field and presses Open, which the toolkit enables when it has read the folder.
void EnterName(QFileDialog& dialog, const QString& text) {
  dialog.findChild<QLineEdit*>("fileNameEdit")->setText(text);
  auto& button = *dialog.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Open);
  EXPECT_TRUE(QTest::qWaitFor([&] { return button.isEnabled(); })) << qt::FromQt(text);
  QTest::mouseClick(&button, Qt::LeftButton);
}
void PickFilter(QFileDialog& dialog, int index) {
  auto& box = *dialog.findChild<QComboBox*>("fileTypeCombo");
  box.setFocus();
  while (box.currentIndex() != index) QTest::keyClick(&box, box.currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
}
}  // namespace

void TypeInto(QWidget& focused, const std::string& text) {
  const QPointer<QWidget> widget(&focused);
  QTest::keyClick(&focused, Qt::Key_A, Qt::ControlModifier);
  if (text.empty()) QTest::keyClick(&focused, Qt::Key_Delete);
  for (const char32_t character : ToQt(text).toUcs4())
    if (widget) QTest::sendKeyEvent(QTest::Click, widget, Qt::Key(0), QString::fromUcs4(&character, 1), Qt::NoModifier);
}

void PickFilesInDialog(const Picked& files) {
  QFileDialog* const dialog = qt::OpenFileDialog();
  if (!dialog) return;
  if (files.Filter != 0) PickFilter(*dialog, files.Filter - 1);
  dialog->setDirectory(qt::ToQt(files.Folder));
  QString names;
  for (const std::string& name : files.Names) names += "\"" + qt::ToQt(name) + "\" ";
  EnterName(*dialog, files.Names.size() == 1 ? qt::ToQt(files.Names.front()) : names.trimmed());
}

void CancelFilesInDialog() {
  if (QFileDialog* const dialog = qt::OpenFileDialog()) QTest::keyClick(dialog, Qt::Key_Escape);
}

void PickColorInDialog(Color color) {
  QColorDialog* const dialog = qt::OpenColorDialog();
  if (!dialog) return;
  // The user types the three parts.
  const QColor wanted(color.Red, color.Green, color.Blue);
  QLineEdit& html = *dialog->findChild<QLineEdit*>();
  html.setFocus();
  TypeInto(html, FromQt(wanted.name()));
  QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

void CancelColorInDialog() {
  if (QColorDialog* const dialog = qt::OpenColorDialog()) QTest::keyClick(dialog, Qt::Key_Escape);
}

void PickFontInDialog(const ColoredFont& font) {
  qt::ColoredFontDialog* const dialog = qt::OpenFontDialog();
  if (!dialog) return;
  QFont chosen(ToQt(font.Face.Name));
  chosen.setPointSizeF(font.Face.Size);
  chosen.setBold(font.Face.Bold);
  chosen.setItalic(font.Face.Italic);
  chosen.setUnderline(font.Face.Underline);
  chosen.setStrikeOut(font.Face.Strikethrough);
  dialog->setCurrentFont(chosen);
  dialog->ChosenColor(font.Color);
  QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

void CancelFontInDialog() {
  if (QWidget* const dialog = qt::OpenFontDialog()) QTest::keyClick(dialog, Qt::Key_Escape);
}

}  // namespace orx::test
