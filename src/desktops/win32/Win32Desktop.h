// The desktop of Windows: shows the dialogs as native windows. Hosts include this header alone; it needs no headers of
// the platform.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "forms/NativeDesktop.h"

namespace orx::win32 {

/// For one thread only, which has a message queue. The desktop is a guest there: the look of the common controls and
/// the awareness of the screen's dpi are set for the duration of a call and then restored. Dialogs use the user's font
/// for messages, at 9 points or more, and grow with it and with the system's dpi.
class Win32Desktop final : public NativeDesktop {
 public:
  Win32Desktop();
  /// Closes the forms that are still open.
  ~Win32Desktop() override;

  double Scale() const override;
  std::vector<std::string> ScreenFonts() const override;
  Color SystemColor(orx::SystemColor which) const override;
  CharacterCodes CharactersOf(const Font& face) const override;
  std::string LowerCase(const std::string& text) const override;
  SettingsStore& Settings() override;
  bool SavePicture(const Form& form, const std::string& pngPath) const override;
  bool SaveMessagePicture(const std::string& pngPath) const override;

  /// Replaces the platform's help engine.
  void HelpEngine(std::function<void(const HelpRequest&)> engine);

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

 private:
  struct State;
  std::unique_ptr<State> mState;
};

}  // namespace orx::win32
