// The one interface between forms and a platform. The public members keep the rules that all desktops share (the hook,
// modal sessions, modeless forms staying alive); the protected virtual ones are what a platform has to do.
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "forms/Appearance.h"
#include "forms/DesktopHook.h"
#include "forms/FormWindow.h"
#include "forms/Geometry.h"
#include "forms/SettingsStore.h"
#include "numbers/Numbers.h"

namespace orx {

/// Whether the user may size the window; SizableHeight: by its lower edge only.
enum class BorderStyle { Fixed, Sizable, SizableHeight };

/// The screen in twips: its size, the part not covered by task bars, and what a window's frame adds to the client area.
struct ScreenMetrics {
  Size Screen;
  Rect WorkArea;
  Size Frame;
};

/// What is asked of a desktop, or of a form of it, on a thread that did not make the desktop. Nothing has been done
/// yet.
class WrongThread final : public std::logic_error {
 public:
  WrongThread() : std::logic_error("Dialogs can be used only on the thread that made their desktop.") {}
};

/// Shows forms and messages on one platform. A host makes one on its user-interface thread and uses it only there; it
/// outlives all forms that were made for it. Whatever would show, ask or change something on another thread throws
/// WrongThread instead. Several threads may have a desktop each.
class Desktop {
 public:
  /// It belongs to this thread from now on.
  Desktop();
  virtual ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  /// Throws WrongThread unless it is called on the thread that made the desktop.
  void RequireThread() const;

  /// The hook that sees everything modal; null removes it. Not owned.
  void Hook(DesktopHook* hook) { mHook = hook; }

  /// Shows a message box and returns the answer. It belongs to the form that is shown on top.
  MessageAnswer ShowMessage(const Message& message);
  /// Has the user choose files in the platform's own dialog. False, with the request as it was, when nothing was
  /// chosen, and when the request has no buffer for an answer.
  bool OpenFiles(OpenFileRequest& request);
  /// Has the user choose a colour in the platform's own dialog. False, with the request as it was, when none was
  /// chosen.
  bool ChooseColor(ColorRequest& request);
  /// The same for a font.
  bool ChooseFont(FontRequest& request);
  /// Sounds the platform's warning signal.
  void Beep();
  /// The pointer that was set last; Default at first.
  orx::Pointer Pointer() const { return mPointer; }
  /// Sets the mouse pointer of the whole screen.
  void Pointer(orx::Pointer value);
  /// Opens the platform's help engine.
  void ShowHelp(const HelpRequest& request);

  /// The screen that dialogs open on, and the frame of a window with that border.
  virtual ScreenMetrics Metrics(BorderStyle border) const = 0;
  /// The parts of all screens that are not covered by task bars, in twips, that of the main screen first.
  virtual std::vector<Rect> WorkAreas() const { return {Metrics(BorderStyle::Fixed).WorkArea}; }
  /// Pixels in 15 twips: 1 at 96 dpi, 1.5 at 144 dpi.
  virtual double Scale() const = 0;
  /// Lengths converted by the scale, rounded to the nearest.
  int ToPixels(int twips) const;
  int ToTwips(int pixels) const;
  /// How far below the upper edge of a frame its line runs, with a caption and without one, in twips.
  virtual int FrameLine(bool hasCaption) const;
  /// The face names of the fonts for the screen, in the system's order. The first is the system's own, which no list
  /// offers; it may have no name.
  virtual std::vector<std::string> ScreenFonts() const = 0;
  /// A colour of the user's scheme.
  virtual Color SystemColor(orx::SystemColor which) const = 0;
  /// The codes for which a font has characters of its own.
  virtual CharacterCodes CharactersOf(const Font& face) const = 0;
  /// The separators of the user's locale.
  virtual numbers::Separators Separators() const = 0;
  /// A UTF-8 text with small letters in place of capital ones, of all alphabets that the platform knows.
  virtual std::string LowerCase(const std::string& text) const = 0;
  /// Where settings are kept between runs; lives as long as the desktop.
  virtual SettingsStore& Settings() = 0;
  /// Has pending paint and input events handled.
  void ProcessPendingEvents();

  /// True while a modal form is open.
  bool HasModalForm() const;
  /// True while a message box, a dialog of the platform or another modal form keeps the user from the form.
  bool IsBehindModal(const Form& form) const;
  /// The modeless forms that are open, in the order in which they were shown.
  const std::vector<std::shared_ptr<Form>>& OpenForms() const { return mOpenForms; }
  /// Unloads the modeless forms that are still open. The destructor of a desktop calls it while windows can be closed.
  void CloseOpenForms();

  /// For FormWindow::RunModal and DoShowMessage: the modal form or box is up and the user can act.
  void ModalIsRunning(const Modal& modal);

 protected:
  /// Makes the native window of a form, not shown yet, with a peer for each of its controls. Never null; what it throws
  /// comes out of Form::Show.
  virtual std::unique_ptr<FormWindow> OpenWindow(Form& form) = 0;
  /// Shows a message box above the window `owner` (null: none), calls ModalIsRunning once it is up, and returns when it
  /// was answered, with the answer.
  virtual MessageAnswer DoShowMessage(const Message& message, FormWindow* owner) = 0;
  /// Does what OpenFiles says; calls ModalIsRunning once the dialog is up.
  virtual bool DoOpenFiles(OpenFileRequest& request) = 0;
  /// Do what ChooseColor and ChooseFont say; call ModalIsRunning once the dialog is up.
  virtual bool DoChooseColor(ColorRequest& request) = 0;
  virtual bool DoChooseFont(FontRequest& request) = 0;
  /// What ProcessPendingEvents, Beep, Pointer and ShowHelp do after the hook has heard of it.
  virtual void DoProcessPendingEvents() = 0;
  virtual void DoBeep() = 0;
  virtual void DoSetPointer(orx::Pointer value) = 0;
  virtual void DoShowHelp(const HelpRequest& request) = 0;
  /// An outermost act of a form begins, so that no handler of any form is running: what waits to be deleted may go.
  virtual void DoTidyUp() {}

 private:
  friend class Form;

  struct Session {
    Form* Shown;
    std::unique_ptr<FormWindow> Retired;
    std::exception_ptr Error;
  };

  /// Runs what is modal between the hook's calls; while it runs, all forms are behind it.
  template <class Run>
  auto RunBox(const Modal& modal, Run&& run);
  void RunModal(Form& form);
  void EndModal(const Form& form);
  /// Takes over the window of a form that unloads, so that a modal loop still running in it can end.
  void Retire(const Form& form, std::unique_ptr<FormWindow> window);
  /// Keeps a modeless form alive until it is hidden or unloaded.
  void KeepOpen(std::shared_ptr<Form> form);
  void EnterAct() {
    if (mActs++ == 0) DoTidyUp();
  }
  void LeaveAct();
  void LetGoOfClosedForms();
  /// Takes an exception that a handler did not catch, so that the caller of the modal Show gets it; without a modal
  /// form the user is told.
  void HandlerFailed(const Form& form, std::exception_ptr error);

  /// The mark of the thread that made the desktop.
  const void* const mThread;
  DesktopHook* mHook = nullptr;
  orx::Pointer mPointer = orx::Pointer::Default;
  std::vector<Session*> mSessions;
  std::vector<std::shared_ptr<Form>> mOpenForms;
  int mActs = 0;
  /// All that is modal, from the bottom up: forms, and null for boxes and dialogs of the platform.
  std::vector<const Form*> mModals;
};

}  // namespace orx
