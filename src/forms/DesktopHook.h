// Everything that a desktop shows or sounds passes here: tests answer and record it, a gallery takes its pictures, and
// a server without a screen decides.
#pragma once

#include "forms/Appearance.h"
#include "forms/Message.h"
#include "forms/Requests.h"

namespace orx {

class Form;

/// Something modal: a form, a message box or one of the dialogs for choosing files, a colour or a font; the other
/// pointers are null.
struct Modal {
  Form* ShownForm = nullptr;
  const Message* ShownMessage = nullptr;
  /// The answer to the message where no user answers it: the harmless one unless set here.
  MessageAnswer* Answer = nullptr;
  /// Where no user answers, PutAnswer does.
  OpenFileRequest* ShownFiles = nullptr;
  /// Where no user answers, set its Answer.
  ColorRequest* ShownColor = nullptr;
  FontRequest* ShownFont = nullptr;
};

/// Derive from it, override what matters, and give it to Desktop::Hook.
class DesktopHook {
 public:
  virtual ~DesktopHook() = default;
  /// A modal form or box is about to open.
  virtual void ModalOpening(const Modal&) {}
  /// It is up and waits for the user. What is done here happens inside its modal loop; an exception ends the loop of a
  /// form and comes out of Form::Show.
  virtual void ModalRunning(const Modal&) {}
  /// It has closed.
  virtual void ModalClosed(const Modal&) {}
  /// The program is about to have pending events handled; without a screen, the user acts here.
  virtual void EventsPending() {}
  /// The desktop was told to show another mouse pointer, or to sound its signal.
  virtual void PointerChanged(Pointer) {}
  virtual void Beeped() {}
  /// True when the hook has dealt with the request, so that the platform's help engine is not asked.
  virtual bool HelpRequested(const HelpRequest&) { return false; }
};

}  // namespace orx
