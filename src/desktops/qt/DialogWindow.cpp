#include "desktops/qt/DialogWindow.h"

#include <QApplication>
#include <QTimer>
#include <QWindow>

#include "desktops/qt/PlainPointer.h"
#include "desktops/qt/Text.h"
#include "forms/Form.h"
#include "forms/PeerMaker.h"

namespace orx::qt {
namespace {

/// The window that the host has named as owner, null when there is none.
QWindow* NamedWindow(const OwnerWindow& owner) {
  if (owner.OwnerForm && owner.OwnerForm->Window()) {
    const Dialog* const dialog = static_cast<DialogWindow*>(owner.OwnerForm->Window())->Native();
    return dialog ? dialog->windowHandle() : nullptr;
  }
  if (owner.NativeHandle) {
    for (QWindow* const window : QGuiApplication::allWindows())
      if (window->handle() && window->winId() == owner.NativeHandle) return window;
  }
  return nullptr;
}

}  // namespace

DialogWindow::DialogWindow(Form& form) : mForm(form), mDialog(new Dialog(form)) {
  MakePeers(form, nullptr);
  // A label looks for the peer of its neighbour, so all peers exist before the first one shows anything.
  for (const std::unique_ptr<Peer>& peer : mPeers) peer->UpdateAll();
  mDialog->Content().Complete();
  OrderTabs();
  UpdateCaption();
}

DialogWindow::~DialogWindow() {
  Abandon();
}

void DialogWindow::MakePeers(const Container& container, QWidget* parent) {
  for (Control* const control : container.Children()) {
    QWidget& home = parent ? *parent : mDialog->Content().HomeOf(*control);
    Peer& peer = *mPeers.emplace_back(PeerMaker<Peer, Dialog, QWidget>(*mDialog, home).Make(*control));
    control->Peer(&peer);
    if (const Container* const inner = control->AsContainer()) MakePeers(*inner, &peer.Widget());
  }
}

void DialogWindow::OrderTabs() const {
  QWidget* before = nullptr;
  for (const Control* const control : mForm.All()) {
    if (!control->TakesFocus()) continue;
    QWidget* const widget = &PeerOf(*control)->FocusWidget();
    if (before) QWidget::setTabOrder(before, widget);
    before = widget;
  }
}

QWindow* DialogWindow::WindowOf(const OwnerWindow& owner) const {
  QWindow* const named = NamedWindow(owner);
  const QWidget* const modal = QApplication::activeModalWidget();
  if (!modal || modal == mDialog) return named;
  // A modal window of the host keeps the user from all windows that are not in front of it.
  for (const QWindow* at = named; at; at = at->transientParent())
    if (at == modal->windowHandle()) return named;
  return modal->windowHandle();
}

void DialogWindow::EndWith(const OwnerWindow& owner) {
  QObject::disconnect(mOwnerLost);
  const QWindow* const host = owner.OwnerForm ? nullptr : NamedWindow(owner);
  if (!host) return;
  mOwnerLost = QObject::connect(host, &QObject::destroyed, mDialog,
                                [dialog = mDialog, this] { dialog->Tell([this] { mForm.WindowLost(); }); });
}

void DialogWindow::Show(ShowMode mode, OwnerWindow owner) {
  const Dialog::Quiet quiet(*mDialog);
  mEnded = false;
  mDialog->setWindowModality(mode == ShowMode::Modal ? Qt::ApplicationModal : Qt::NonModal);
  UpdatePlace();
  // The owner is no parent widget: Qt deletes a parent's dialogs with it, but here each form owns its window.
  mDialog->winId();
  mDialog->windowHandle()->setTransientParent(WindowOf(owner));
  EndWith(owner);
  mDialog->show();
  mDialog->activateWindow();
}

void DialogWindow::Hide() {
  const Dialog::Quiet quiet(*mDialog);
  mDialog->hide();
}

void DialogWindow::RunModal() {
  if (mEnded) return;
  const PlainPointer pointer;
  Desktop& desktop = mForm.OwnerDesktop();
  QTimer::singleShot(0, &mLoop, [this, &desktop] {
    // Exceptions must not pass through Qt's event loops.
    try {
      if (!mEnded) desktop.ModalIsRunning({.ShownForm = &mForm});
    } catch (...) {
      mHookError = std::current_exception();
      EndModal();
    }
  });
  mLoop.exec();
  // The host's application is about to end: the dialog closes as if by its close box.
  if (!mEnded) mForm.WindowLost();
  if (mHookError) std::rethrow_exception(std::exchange(mHookError, nullptr));
}

void DialogWindow::EndModal() {
  mEnded = true;
  mLoop.quit();
}

void DialogWindow::UpdateCaption() {
  mDialog->setWindowTitle(ToQt(mForm.Caption()));
}

void DialogWindow::UpdatePlace() {
  const Dialog::Quiet quiet(*mDialog);
  const Desktop& desktop = mForm.OwnerDesktop();
  const QSize size = mDialog->Content().WindowSize();
  if (mForm.Border() == BorderStyle::Fixed) {
    mDialog->setFixedSize(size);
  } else {
    if (mForm.Border() == BorderStyle::SizableHeight) mDialog->setFixedWidth(size.width());
    mDialog->resize(size);
  }
  mDialog->move(desktop.ToPixels(mForm.Left()), desktop.ToPixels(mForm.Top()));
  mDialog->Content().Arrange();
}

void DialogWindow::UpdateEnabled() {
  mDialog->BlockInput(!mForm.Enabled());
}

void DialogWindow::Repaint() {
  mDialog->repaint();
}

void DialogWindow::PaintChanges() {
  // Qt would send this itself before long.
  QEvent request(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(mDialog, &request);
}

void DialogWindow::CallShowUpdates(std::chrono::milliseconds after) {
  mDialog->CallShowUpdates(after);
}

void DialogWindow::DragBottomEdge() {
  mDialog->DragBottomEdge();
}

std::uintptr_t DialogWindow::NativeHandle() const {
  return mDialog->winId();
}

void DialogWindow::Abandon() {
  if (!mDialog) return;
  mPeers.clear();
  std::exchange(mDialog, nullptr)->Retire();
}

}  // namespace orx::qt
