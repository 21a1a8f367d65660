#include "desktops/qt/QtDesktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGroupBox>
#include <QLocale>
#include <QMessageBox>
#include <QPalette>
#include <QPixmap>
#include <QScreen>
#include <QStyle>
#include <QStyleOption>
#include <QUrl>
#include <algorithm>

#include "desktops/qt/Application.h"
#include "desktops/qt/Characters.h"
#include "desktops/qt/ColorDialog.h"
#include "desktops/qt/Colors.h"
#include "desktops/qt/DialogWindow.h"
#include "desktops/qt/FileDialog.h"
#include "desktops/qt/FileSettings.h"
#include "desktops/qt/FontDialog.h"
#include "desktops/qt/MessageBox.h"
#include "desktops/qt/Text.h"
#include "forms/Form.h"

namespace orx::qt {
namespace {

/// The font size, in points, for which the dialogs are designed.
constexpr double kDesignPoints = 9;
constexpr double kDesignDotsPerInch = 96;

/// The size that the window manager adds to a dialog, estimated from the style's frames. The exact size is known only
/// after a window has been shown, and dialogs are placed before that.
QSize FrameSize() {
  const QStyle& style = *QApplication::style();
  const int edge = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
  return {2 * edge, 2 * edge + style.pixelMetric(QStyle::PM_TitleBarHeight)};
}

bool Save(QWidget& window, const std::string& pngPath) {
  return window.grab().save(ToQt(pngPath), "PNG");
}

QPalette::ColorRole RoleOf(SystemColor which) {
  switch (which) {
    case SystemColor::Window:
      return QPalette::Base;
    case SystemColor::Highlight:
      return QPalette::Highlight;
    case SystemColor::HighlightText:
      return QPalette::HighlightedText;
    case SystemColor::DialogFace:
      return QPalette::Window;
    case SystemColor::WindowText:
      break;
  }
  return QPalette::Text;
}

/// How far below the upper edge of a group box its line runs, in pixels.
int LineOfFrame(const QStyle& style, bool hasCaption) {
  QGroupBox box;
  box.setFont(DialogFont());
  QStyleOptionGroupBox option;
  option.initFrom(&box);
  option.rect = {0, 0, 1000, 1000};
  option.lineWidth = 1;
  option.subControls = QStyle::SC_GroupBoxFrame;
  if (hasCaption) {
    option.text = "X";
    option.subControls |= QStyle::SC_GroupBoxLabel;
  }
  const QRect frame = style.subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxFrame, &box);
  if (frame.top() > 0) return frame.top();
  // A style that writes the caption above the line counts both as the frame; its contents are as far from the line at
  // the top as at the side.
  const QRect contents = style.subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, &box);
  return std::max(0, contents.top() - contents.left());
}

Rect InTwips(const Desktop& desktop, const QRect& place) {
  return {desktop.ToTwips(place.x()), desktop.ToTwips(place.y()), desktop.ToTwips(place.width()),
          desktop.ToTwips(place.height())};
}

}  // namespace

struct QtDesktop::State {
  FileSettings Settings;
  bool PointerIsOurs = false;
  /// The scale, and what it was computed from: measuring a font takes longer than everything else in placing a control.
  double Scale = 1;
  double Dots = 0;
  QFont MeasuredFont;
  /// The lines of frames without and with a caption, in twips, and what they were measured in.
  int FrameLines[2] = {0, 0};
  QString FrameStyle;
  QFont FrameFont;
};

QtDesktop::QtDesktop() : mState(std::make_unique<State>()) {
  EnsureApplication();
}

QtDesktop::~QtDesktop() {
  CloseOpenForms();
  DoSetPointer(orx::Pointer::Default);
  Dialog::DeleteRetired();
}

ScreenMetrics QtDesktop::SystemMetrics(BorderStyle) const {
  ScreenMetrics metrics;
  if (const QScreen* const screen = QGuiApplication::primaryScreen()) {
    const Rect whole = InTwips(*this, screen->geometry());
    metrics.Screen = {whole.Width, whole.Height};
    metrics.WorkArea = InTwips(*this, screen->availableGeometry());
  }
  const QSize frame = FrameSize();
  metrics.Frame = {ToTwips(frame.width()), ToTwips(frame.height())};
  return metrics;
}

std::vector<Rect> QtDesktop::FurtherWorkAreas() const {
  std::vector<Rect> areas;
  for (const QScreen* const screen : QGuiApplication::screens())
    if (screen != QGuiApplication::primaryScreen()) areas.push_back(InTwips(*this, screen->availableGeometry()));
  return areas;
}

double QtDesktop::Scale() const {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  const double dots = screen ? screen->logicalDotsPerInchY() : kDesignDotsPerInch;
  const QFont font = QApplication::font();
  if (dots != mState->Dots || font != mState->MeasuredFont) {
    mState->Scale = dots / kDesignDotsPerInch * std::max(1.0, QFontInfo(DialogFont()).pointSizeF() / kDesignPoints);
    mState->Dots = dots;
    mState->MeasuredFont = font;
  }
  return mState->Scale;
}

int QtDesktop::FrameLine(bool hasCaption) const {
  const QStyle& style = *QApplication::style();
  const QFont font = DialogFont();
  if (style.name() != mState->FrameStyle || font != mState->FrameFont) {
    for (const bool captioned : {false, true}) mState->FrameLines[captioned] = ToTwips(LineOfFrame(style, captioned));
    mState->FrameStyle = style.name();
    mState->FrameFont = font;
  }
  return mState->FrameLines[hasCaption];
}

std::vector<std::string> QtDesktop::ScreenFonts() const {
  // The system's own font has no name here: what it is drawn with is one of the families.
  std::vector<std::string> names(1);
  for (const QString& family : QFontDatabase::families()) names.push_back(FromQt(family));
  return names;
}

Color QtDesktop::SystemColor(orx::SystemColor which) const {
  return FromQt(QApplication::palette().color(QPalette::Active, RoleOf(which)));
}

CharacterCodes QtDesktop::CharactersOf(const Font& face) const {
  return CharacterFont(face, DialogFont()).Codes();
}

numbers::Separators QtDesktop::LocaleSeparators() const {
  const QLocale locale = QLocale::system();
  return {FromQt(locale.decimalPoint()), FromQt(locale.groupSeparator()), FromQt(locale.currencySymbol())};
}

std::string QtDesktop::LowerCase(const std::string& text) const {
  return FromQt(ToQt(text).toLower());
}

SettingsStore& QtDesktop::Settings() {
  return mState->Settings;
}

void QtDesktop::DoProcessPendingEvents() {
  QCoreApplication::processEvents();
}

void QtDesktop::DoTidyUp() {
  Dialog::DeleteRetired();
}

bool QtDesktop::SavePicture(const Form& form, const std::string& pngPath) const {
  return form.Visible() && Save(*static_cast<DialogWindow*>(form.Window())->Native(), pngPath);
}

bool QtDesktop::SaveMessagePicture(const std::string& pngPath) const {
  QMessageBox* const box = OpenMessageBox();
  return box && Save(*box, pngPath);
}

std::unique_ptr<FormWindow> QtDesktop::OpenWindow(Form& form) {
  return std::make_unique<DialogWindow>(form);
}

MessageAnswer QtDesktop::DoShowMessage(const Message& message, FormWindow* owner) {
  const Dialog* const dialog = owner ? static_cast<DialogWindow*>(owner)->Native() : nullptr;
  return RunMessageBox(message, dialog ? dialog->windowHandle() : nullptr,
                       [&] { ModalIsRunning({.ShownMessage = &message}); });
}

bool QtDesktop::DoOpenFiles(OpenFileRequest& request) {
  return RunFileDialog(request, [&] { ModalIsRunning({.ShownFiles = &request}); });
}

bool QtDesktop::DoChooseColor(ColorRequest& request) {
  return RunColorDialog(request, [&] { ModalIsRunning({.ShownColor = &request}); });
}

bool QtDesktop::DoChooseFont(FontRequest& request) {
  return RunFontDialog(request, [&] { ModalIsRunning({.ShownFont = &request}); });
}

void QtDesktop::DoBeep() {
  QApplication::beep();
}

void QtDesktop::DoSetPointer(orx::Pointer value) {
  // At most one override is this desktop's own; the host's below it stay.
  if (mState->PointerIsOurs) QGuiApplication::restoreOverrideCursor();
  mState->PointerIsOurs = value != orx::Pointer::Default;
  if (mState->PointerIsOurs)
    QGuiApplication::setOverrideCursor(value == orx::Pointer::Hourglass ? Qt::WaitCursor : Qt::SizeVerCursor);
}

void QtDesktop::DoShowHelp(const HelpRequest& request) {
  const QFileInfo file(ToQt(request.FileName));
  if (file.isFile()) QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
}

}  // namespace orx::qt
