#include "desktops/qt/MessageBox.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>
#include <exception>

#include "desktops/qt/Application.h"
#include "desktops/qt/PlainPointer.h"
#include "desktops/qt/Text.h"

namespace orx::qt {
namespace {

QMessageBox::Icon NativeIcon(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Critical:
      return QMessageBox::Critical;
    case MessageIcon::Question:
      return QMessageBox::Question;
    case MessageIcon::Exclamation:
      return QMessageBox::Warning;
    case MessageIcon::Information:
      return QMessageBox::Information;
    case MessageIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

/// Puts the box in front of its owner's window. The owner is not a parent widget, as the box must outlive it.
void PutBefore(QMessageBox& box, QWindow* owner) {
  if (!owner) return;
  box.winId();
  box.windowHandle()->setTransientParent(owner);
  box.adjustSize();
  box.move(owner->geometry().center() - box.rect().center());
}

}  // namespace

MessageAnswer RunMessageBox(const Message& message, QWindow* owner, const std::function<void()>& running) {
  const bool isQuestion = message.Buttons == MessageButtons::YesNo;
  QMessageBox box(NativeIcon(message.Icon), ToQt(message.Title), ToQt(message.Text),
                  isQuestion ? QMessageBox::Yes | QMessageBox::No : QMessageBox::StandardButtons(QMessageBox::Ok));
  if (isQuestion) box.setDefaultButton(QMessageBox::Yes);
  box.setTextFormat(Qt::PlainText);
  box.setFont(DialogFont());
  box.setWindowModality(Qt::ApplicationModal);
  box.setAttribute(Qt::WA_QuitOnClose, false);
  const QWidget* const active = QApplication::activeWindow();
  PutBefore(box, owner || !active ? owner : active->windowHandle());
  // A question is answered by its buttons. The toolkit adds the close box when it makes the window, so it is removed
  // last.
  box.winId();
  if (isQuestion) box.setWindowFlag(Qt::WindowCloseButtonHint, false);
  const PlainPointer pointer;
  std::exception_ptr error;
  QTimer::singleShot(0, &box, [&] {
    try {
      running();
    } catch (...) {
      error = std::current_exception();
      box.accept();
    }
  });
  const int pressed = box.exec();
  if (error) std::rethrow_exception(error);
  return pressed == QMessageBox::Yes ? MessageAnswer::Yes : message.Harmless();
}

QMessageBox* OpenMessageBox() {
  return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

}  // namespace orx::qt
