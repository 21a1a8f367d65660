// What can be told apart in the pictures of the dialogs, in light and in dark schemes of colours.
#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QWidget>

#include "datadialogs/frmManageColors.h"
#include "desktops/qt/Colors.h"
#include "forms/Contrast.h"
#include "pickers/frmMsgBox.h"
#include "tests/qt/QtTest.h"

namespace orx::test {
namespace {

/// The application's palette is a dark one as long as this lives.
class DarkScheme {
 public:
  DarkScheme() { QApplication::setPalette(QPalette(QColor(49, 54, 59), QColor(35, 38, 41))); }
  ~DarkScheme() { QApplication::setPalette(mBefore); }
  DarkScheme(const DarkScheme&) = delete;
  DarkScheme& operator=(const DarkScheme&) = delete;

 private:
  QPalette mBefore = QApplication::palette();
};

QColor Middle(const QImage& picture) {
  return picture.pixelColor(picture.rect().center());
}

class QtLook : public QtFormsTest {
 protected:
  static QImage PictureOf(const Control& control) { return Native<QWidget>(control).grab().toImage(); }

  /// The best contrast of any pixel against the face of the button, whose border and shade lie outside of the part that
  /// is looked at.
  static double ContrastOfPicture(const Button& button) {
    const QImage picture = PictureOf(button);
    const QPoint middle = picture.rect().center();
    const int reach = picture.height() / 4;
    double best = 1;
    for (int y = middle.y() - reach; y <= middle.y() + reach; ++y)
      for (int x = middle.x() - reach; x <= middle.x() + reach; ++x)
        best = std::max(best, Contrast(qt::FromQt(picture.pixelColor(x, y)),
                                       qt::FromQt(picture.pixelColor(picture.width() / 8, y))));
    return best;
  }

  void ExpectReadablePictures(frmManageColors& form) {
    form.Show(ShowMode::Modeless);
    for (Button* const button : {&form.cmdNew, &form.cmdSave, &form.cmdRemove, &form.cmdProperties}) {
      button->Enabled(true);
      const double enabled = ContrastOfPicture(*button);
      button->Enabled(false);
      const double disabled = ContrastOfPicture(*button);
      EXPECT_GE(disabled, 3) << button->Name();
      EXPECT_GE(enabled, 1.5 * disabled) << button->Name();
    }
    form.Unload();
  }

  std::shared_ptr<frmManageColors> colors = std::make_shared<frmManageColors>(desktop());
};

TEST_F(QtLook, PicturesOnButtonsCanBeToldFromTheirGround) {
  ExpectReadablePictures(*colors);
}

TEST_F(QtLook, PicturesOnButtonsCanBeToldFromTheirGroundInADarkScheme) {
  const DarkScheme dark;
  ExpectReadablePictures(*colors);
}

TEST_F(QtLook, PicturesOnButtonsFollowAnotherScheme) {
  colors->Show(ShowMode::Modeless);
  {
    const DarkScheme dark;
    desktop().ProcessPendingEvents();
    EXPECT_GE(ContrastOfPicture(colors->cmdRemove), 3);
  }
  colors->Unload();
}

TEST_F(QtLook, TheWarningSignStandsOnTheGroundOfItsDialog) {
  const DarkScheme dark;
  const auto prompt = std::make_shared<frmMsgBox>(desktop());
  prompt->Show(ShowMode::Modeless);
  const QImage sign = PictureOf(prompt->imgIcon);
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), sign.pixelColor(0, 0));
  EXPECT_NE(sign.pixelColor(0, 0), Middle(sign));
  prompt->Unload();
}

}  // namespace
}  // namespace orx::test
