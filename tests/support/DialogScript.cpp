#include "tests/support/DialogScript.h"

#include <gtest/gtest.h>

#include <utility>

namespace orx::test {
namespace {

std::string Describe(const Modal& modal) {
  if (modal.ShownForm) return "form " + modal.ShownForm->Name();
  if (modal.ShownColor) return "colors";
  if (modal.ShownFont) return "fonts";
  if (modal.ShownFiles) return "files \"" + modal.ShownFiles->Title + "\"";
  return "message \"" + modal.ShownMessage->Title + "\": " + modal.ShownMessage->Text;
}

}  // namespace

void DialogScript::ExpectForm(const std::string& name, FormAction action) {
  mExpected.push_back({.FormName = name, .Action = std::move(action)});
}

void DialogScript::ExpectMessage(const Message& message) {
  ExpectMessage(message, message.Harmless());
}

void DialogScript::ExpectMessage(const Message& message, MessageAnswer answer) {
  mExpected.push_back({.Box = message, .Answer = answer});
}

void DialogScript::ExpectFiles(FilesAction action) {
  mExpected.push_back({.Choice = std::move(action)});
}

void DialogScript::ExpectColor(ColorAction action) {
  mExpected.push_back({.Color = std::move(action)});
}

void DialogScript::ExpectFont(FontAction action) {
  mExpected.push_back({.Face = std::move(action)});
}

void DialogScript::Verify() {
  for (const Expected& left : mExpected)
    ADD_FAILURE() << "Not shown: "
                  << (left.Choice             ? "files"
                      : left.Color            ? "colors"
                      : left.Face             ? "fonts"
                      : left.FormName.empty() ? "message " + left.Box.Text
                                              : "form " + left.FormName);
  mExpected.clear();
}

void DialogScript::Fail(const Modal& modal, const std::string& reason) {
  ADD_FAILURE() << reason << ": " << Describe(modal);
}

void DialogScript::CloseAnyway(const Modal& modal) {
  if (modal.ShownForm) {
    modal.ShownForm->Unload();
  } else if (modal.ShownFiles) {
    mUser.CancelFiles(*modal.ShownFiles);
  } else if (modal.ShownColor) {
    mUser.CancelColor(*modal.ShownColor);
  } else if (modal.ShownFont) {
    mUser.CancelFont(*modal.ShownFont);
  } else {
    mUser.AnswerMessage(modal, modal.ShownMessage->Harmless());
  }
}

void DialogScript::ModalOpening(const Modal& modal) {
  if (Noted && modal.ShownMessage) return;
  if (mExpected.empty()) return Fail(modal, "Unexpected");
  const Expected& next = mExpected.front();
  if (modal.ShownForm) {
    EXPECT_EQ(next.FormName, modal.ShownForm->Name());
  } else if (modal.ShownFiles) {
    EXPECT_TRUE(next.Choice) << Describe(modal);
  } else if (modal.ShownColor) {
    EXPECT_TRUE(next.Color) << Describe(modal);
  } else if (modal.ShownFont) {
    EXPECT_TRUE(next.Face) << Describe(modal);
  } else {
    EXPECT_EQ(next.Box.Text, modal.ShownMessage->Text);
    EXPECT_EQ(next.Box.Title, modal.ShownMessage->Title);
    EXPECT_EQ(next.Box.Icon, modal.ShownMessage->Icon);
    EXPECT_EQ(next.Box.Buttons, modal.ShownMessage->Buttons);
  }
}

void DialogScript::ModalRunning(const Modal& modal) {
  if (Noted && modal.ShownMessage) {
    Noted->push_back(*modal.ShownMessage);
    return mUser.AnswerMessage(modal, modal.ShownMessage->Harmless());
  }
  if (mExpected.empty()) return CloseAnyway(modal);
  const Expected next = std::move(mExpected.front());
  mExpected.pop_front();
  if (modal.ShownFiles && next.Choice) return next.Choice(*modal.ShownFiles);
  if (modal.ShownColor && next.Color) return next.Color(*modal.ShownColor);
  if (modal.ShownFont && next.Face) return next.Face(*modal.ShownFont);
  if (const auto happens = std::exchange(WhenMessageIsUp, nullptr); modal.ShownMessage && happens) happens();
  if (modal.ShownMessage && next.Answer && next.Box.Buttons == modal.ShownMessage->Buttons)
    return mUser.AnswerMessage(modal, *next.Answer);
  if (!modal.ShownForm || !next.Action) return CloseAnyway(modal);
  // The form may go while the user acts.
  const std::weak_ptr<Form> form = modal.ShownForm->weak_from_this();
  next.Action(*modal.ShownForm);
  const std::shared_ptr<Form> left = form.lock();
  if (left && left->Visible() && !std::exchange(LoopEndsByError, false)) {
    Fail(modal, "Left open");
    CloseAnyway(modal);
  }
}

void DialogScript::EventsPending() {
  // What the user does is handled in its turn.
  if (!WhenEventsPend || mIsActing) return;
  mIsActing = true;
  WhenEventsPend();
  mIsActing = false;
}

bool DialogScript::HelpRequested(const HelpRequest& request) {
  Helps.push_back(request);
  return true;
}

}  // namespace orx::test
