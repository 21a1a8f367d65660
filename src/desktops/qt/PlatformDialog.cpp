#include "desktops/qt/PlatformDialog.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <QWindow>
#include <exception>

#include "desktops/qt/PlainPointer.h"

namespace orx::qt {
namespace {

void PutBefore(QDialog& dialog, std::uintptr_t owner) {
  QWindow* window = nullptr;
  for (QWindow* const top : QGuiApplication::topLevelWindows())
    if (top->handle() && owner != 0 && top->winId() == owner) window = top;
  if (!window && QApplication::activeWindow()) window = QApplication::activeWindow()->windowHandle();
  if (!window) return;
  dialog.winId();
  dialog.windowHandle()->setTransientParent(window);
}

}  // namespace

bool RunPlatformDialog(QDialog& dialog, std::uintptr_t owner, const std::function<void()>& running) {
  dialog.setWindowModality(Qt::ApplicationModal);
  dialog.setAttribute(Qt::WA_QuitOnClose, false);
  PutBefore(dialog, owner);
  const PlainPointer pointer;
  std::exception_ptr error;
  QTimer::singleShot(0, &dialog, [&] {
    try {
      running();
    } catch (...) {
      error = std::current_exception();
      dialog.reject();
    }
  });
  const bool accepted = dialog.exec() == QDialog::Accepted;
  if (error) std::rethrow_exception(error);
  return accepted;
}

}  // namespace orx::qt
