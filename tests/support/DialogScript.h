// The dialogs that a test expects, in order, and what the user does in each. A missing or an unexpected one fails the
// test; whatever happens is closed again, so that no test can hang.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/DesktopHook.h"
#include "tests/support/User.h"

namespace orx::test {

class DialogScript final : public DesktopHook {
 public:
  explicit DialogScript(User& user) : mUser(user) {}

  using FormAction = std::function<void(Form&)>;
  /// Expects the modal form of that name; `action` is what the user does in it and must close it.
  void ExpectForm(const std::string& name, FormAction action);
  using FilesAction = std::function<void(OpenFileRequest&)>;
  /// Expects the platform's dialog for files; `action` is what the user does in it and must close it.
  void ExpectFiles(FilesAction action);
  using ColorAction = std::function<void(ColorRequest&)>;
  /// Expects the platform's dialog for colours; `action` is what the user does in it and must close it.
  void ExpectColor(ColorAction action);
  using FontAction = std::function<void(FontRequest&)>;
  /// The same for fonts.
  void ExpectFont(FontAction action);
  /// Expects the message box and presses a button: OK, and No where a question is put, unless told.
  void ExpectMessage(const Message& message);
  void ExpectMessage(const Message& message, MessageAnswer answer);
  /// Fails the test when an expected dialog was not shown.
  void Verify();

  /// What the user does when the program lets waiting events be handled, each time that it does.
  std::function<void()> WhenEventsPend;

  /// While it is set, message boxes are not listed: they are answered harmlessly and noted here.
  std::vector<Message>* Noted = nullptr;

  /// The next form need not be closed: an error of its handler ends its loop.
  bool LoopEndsByError = false;
  /// What happens while the next message box is up, before the user answers it.
  std::function<void()> WhenMessageIsUp;

  /// What was asked of the desktop, oldest first.
  std::vector<Pointer> Pointers;
  std::vector<HelpRequest> Helps;
  int Beeps = 0;

  void ModalOpening(const Modal& modal) override;
  void ModalRunning(const Modal& modal) override;
  void EventsPending() override;
  void PointerChanged(Pointer pointer) override { Pointers.push_back(pointer); }
  void Beeped() override { ++Beeps; }
  bool HelpRequested(const HelpRequest& request) override;

 private:
  struct Expected {
    std::string FormName = {};
    FormAction Action = nullptr;
    Message Box = {};
    std::optional<MessageAnswer> Answer = {};
    FilesAction Choice = nullptr;
    ColorAction Color = nullptr;
    FontAction Face = nullptr;
  };

  void Fail(const Modal& modal, const std::string& reason);
  void CloseAnyway(const Modal& modal);

  User& mUser;
  bool mIsActing = false;
  std::deque<Expected> mExpected;
};

}  // namespace orx::test
