// The desktop of Linux and macOS: shows the dialogs as native Qt Widgets windows. Hosts include this header alone; it
// needs no Qt headers.
#pragma once

#include <memory>
#include <string>

#include "forms/NativeDesktop.h"

namespace orx::qt {

/// For the thread of the QApplication only. Dialogs use the application's font, at 9 points or more, and grow with it.
class QtDesktop final : public NativeDesktop {
 public:
  /// Uses the host's QApplication. When there is none, one is made that serves all desktops to come and stays until the
  /// process ends. Throws std::logic_error when the host's application object is no QApplication, and WrongThread
  /// on another thread than the application's.
  QtDesktop();
  /// Closes the forms that are still open.
  ~QtDesktop() override;

  double Scale() const override;
  int FrameLine(bool hasCaption) const override;
  std::vector<std::string> ScreenFonts() const override;
  Color SystemColor(orx::SystemColor which) const override;
  CharacterCodes CharactersOf(const Font& face) const override;
  std::string LowerCase(const std::string& text) const override;
  SettingsStore& Settings() override;
  bool SavePicture(const Form& form, const std::string& pngPath) const override;
  bool SaveMessagePicture(const std::string& pngPath) const override;

 protected:
  ScreenMetrics SystemMetrics(BorderStyle border) const override;
  std::vector<Rect> FurtherWorkAreas() const override;
  numbers::Separators LocaleSeparators() const override;
  std::unique_ptr<FormWindow> OpenWindow(Form& form) override;
  MessageAnswer DoShowMessage(const Message& message, FormWindow* owner) override;
  bool DoOpenFiles(OpenFileRequest& request) override;
  bool DoChooseColor(ColorRequest& request) override;
  bool DoChooseFont(FontRequest& request) override;
  void DoProcessPendingEvents() override;
  void DoBeep() override;
  void DoSetPointer(orx::Pointer value) override;
  void DoShowHelp(const HelpRequest& request) override;
  void DoTidyUp() override;

 private:
  struct State;
  std::unique_ptr<State> mState;
};

}  // namespace orx::qt
