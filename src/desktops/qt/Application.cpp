#include "desktops/qt/Application.h"

#include <QApplication>
#include <QFontInfo>
#include <QThread>
#include <clocale>
#include <stdexcept>
#include <string>

#include "forms/Desktop.h"

namespace orx::qt {
namespace {

constexpr double kSmallestPoints = 9;

void MakeApplication() {
  // Qt keeps references to the arguments as long as the application lives.
  static int count = 1;
  static char name[] = "OrvexMapDialogs2";
  static char* arguments[] = {name, nullptr};
  const std::string numeric = std::setlocale(LC_NUMERIC, nullptr);
  // It stays to the end of the process: Qt cannot be shut down among the static objects.
  static QApplication* const application = new QApplication(count, arguments);
  application->setQuitOnLastWindowClosed(false);
  // Qt sets the C locale of the whole process; the way the host prints and reads numbers must not change.
  std::setlocale(LC_NUMERIC, numeric.c_str());
}

}  // namespace

void EnsureApplication() {
  if (!QCoreApplication::instance()) MakeApplication();
  if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
    throw std::logic_error("The dialogs need a QApplication; the host has made another kind of application object.");
  // Qt's widgets live on that thread alone, so windows made here would take the process down later.
  if (QThread::currentThread() != qApp->thread()) throw WrongThread();
}

QFont DialogFont() {
  QFont font = QApplication::font();
  if (QFontInfo(font).pointSizeF() < kSmallestPoints) font.setPointSizeF(kSmallestPoints);
  return font;
}

}  // namespace orx::qt
