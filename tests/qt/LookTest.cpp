// What can be told apart in the pictures of the dialogs, in light and in dark schemes of colours.
#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QStyle>
#include <QWidget>

#include "datadialogs/frmDataClassify.h"
#include "datadialogs/frmDataOptions.h"
#include "datadialogs/frmManageColors.h"
#include "desktops/qt/Colors.h"
#include "forms/Contrast.h"
#include "pickers/frmMsgBox.h"
#include "tests/qt/QtTest.h"
#include "tests/support/RecordedData.h"

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

/// The application has another style as long as this lives.
class OtherStyle {
 public:
  explicit OtherStyle(const QString& name) { QApplication::setStyle(name); }
  ~OtherStyle() { QApplication::setStyle(mBefore); }
  OtherStyle(const OtherStyle&) = delete;
  OtherStyle& operator=(const OtherStyle&) = delete;

 private:
  QString mBefore = QApplication::style()->name();
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

  /// How many pixels the line at the top of a frame runs below its upper edge. It is looked for where neither caption
  /// nor contents are.
  static int LineOf(const Frame& frame) {
    const QImage picture = PictureOf(frame);
    const int x = picture.width() - 1 - static_cast<int>(std::lround(8 * picture.devicePixelRatio()));
    int y = 0;
    while (y < picture.height() && picture.pixelColor(x, y) == picture.pixelColor(x, 0)) ++y;
    // Without a caption the line may be the very edge.
    const bool isEdge = frame.Caption().empty() && y <= 2 * picture.devicePixelRatio();
    return isEdge ? 0 : static_cast<int>(std::lround(y / picture.devicePixelRatio()));
  }

  /// The contents of all frames of a form are as far from its lines as designed.
  void ExpectDesignedDistances(const Form& form) {
    for (const Control* const control : form.All()) {
      const auto* const frame = dynamic_cast<const Frame*>(control);
      if (!frame) continue;
      const int line = frame->Caption().empty() ? 0 : kFrameLine;
      const int height = Native<QWidget>(*frame).height();
      for (const Control* const inner : frame->Children()) {
        const QRect place = Native<QWidget>(*inner).geometry();
        EXPECT_NEAR(desktop().ToPixels(inner->Top() - line), place.top() - LineOf(*frame), 1.5) << inner->Name();
        EXPECT_NEAR(desktop().ToPixels(frame->Place().Height - inner->Place().Bottom()),
                    height - place.top() - place.height(), 1.5)
            << inner->Name();
      }
    }
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

TEST_F(QtLook, ContentsAreAsFarFromTheLineOfTheirFrameInEveryStyle) {
  for (const char* const name : {"Fusion", "Windows"}) {
    SCOPED_TRACE(name);
    const OtherStyle style(name);
    RecordedData data;
    const auto options = std::make_shared<frmDataOptions>(desktop());
    options->Data(&data);
    options->Show(ShowMode::Modeless);
    ExpectDesignedDistances(*options);
    options->Unload();
    const auto classes = std::make_shared<frmDataClassify>(desktop());
    classes->SetData(&data, 0, 100, 0, {});
    classes->Show(ShowMode::Modeless);
    ExpectDesignedDistances(*classes);
    classes->Unload();
  }
}

}  // namespace
}  // namespace orx::test
