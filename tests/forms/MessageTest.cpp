// The contract of message boxes: what they ask, and the answer.
#include "tests/forms/SampleForm.h"

namespace orx::test {
namespace {

const Message kQuestion{"Remove A & B?", "Layers", MessageIcon::Exclamation, MessageButtons::YesNo};

class FormsMessage : public DesktopTest {};

TEST_F(FormsMessage, AMessageIsAnsweredByItsOneButton) {
  script.ExpectMessage({"Done", "Layers", MessageIcon::Information});
  EXPECT_EQ(MessageAnswer::OK, desktop().ShowMessage({"Done", "Layers", MessageIcon::Information}));
}

TEST_F(FormsMessage, AQuestionIsAnsweredByYesOrNo) {
  script.ExpectMessage(kQuestion, MessageAnswer::Yes);
  EXPECT_EQ(MessageAnswer::Yes, desktop().ShowMessage(kQuestion));
  script.ExpectMessage(kQuestion, MessageAnswer::No);
  EXPECT_EQ(MessageAnswer::No, desktop().ShowMessage(kQuestion));
}

/// Throws in each box.
struct ThrowingHook final : DesktopHook {
  void ModalRunning(const Modal&) override { throw std::runtime_error("no answer"); }
};

TEST_F(FormsMessage, AnErrorWhileAQuestionIsOpenClosesItAndTravels) {
  ThrowingHook hook;
  desktop().Hook(&hook);
  EXPECT_THROW(desktop().ShowMessage(kQuestion), std::runtime_error);
  desktop().Hook(&script);
}

TEST_F(FormsMessage, TheHookHearsThatABoxHasClosedEvenIfItThrew) {
  struct Counting final : DesktopHook {
    void ModalOpening(const Modal&) override { ++Open; }
    void ModalRunning(const Modal&) override { throw std::runtime_error("no answer"); }
    void ModalClosed(const Modal&) override { --Open; }
    int Open = 0;
  } hook;
  desktop().Hook(&hook);
  EXPECT_THROW(desktop().ShowMessage(kQuestion), std::runtime_error);
  Events log;
  const auto form = std::make_shared<SampleForm>(desktop(), log);
  EXPECT_THROW(form->Show(), std::runtime_error);
  desktop().Hook(&script);
  EXPECT_EQ(0, hook.Open);
  EXPECT_FALSE(desktop().HasModalForm());
  EXPECT_FALSE(form->Visible());
}

TEST_F(FormsMessage, AHookThatThrowsBeforeABoxOpensLeavesNothingModal) {
  struct Refusing final : DesktopHook {
    void ModalOpening(const Modal&) override { throw std::runtime_error("not now"); }
  } hook;
  Events log;
  const auto form = std::make_shared<SampleForm>(desktop(), log);
  desktop().Hook(&hook);
  EXPECT_THROW(desktop().ShowMessage(kQuestion), std::runtime_error);
  EXPECT_THROW(form->Show(), std::runtime_error);
  desktop().Hook(&script);
  EXPECT_FALSE(desktop().HasModalForm());
  EXPECT_FALSE(desktop().IsBehindModal(*form));
  EXPECT_FALSE(form->Visible());
}

struct AskingForm final : Form {
  explicit AskingForm(Desktop& desktop) : Form(desktop, "frmAsking", {.Caption = "Layers", .Client = {3000, 2000}}) {
    cmdAsk.Click = [this] {
      if (OwnerDesktop().ShowMessage(kQuestion) == MessageAnswer::Yes) Hide();
    };
  }
  Button cmdAsk{*this, "cmdAsk", {.Caption = "&Ask", .Place = {120, 120, 1500, 375}}};
};

TEST_F(FormsMessage, AQuestionStandsBeforeTheFormThatPutsIt) {
  const auto form = std::make_shared<AskingForm>(desktop());
  script.ExpectForm("frmAsking", [&](Form&) {
    script.ExpectMessage(kQuestion, MessageAnswer::No);
    user.Click(form->cmdAsk);
    EXPECT_TRUE(form->Visible());
    EXPECT_TRUE(user.See(form->cmdAsk).Focused);
    script.ExpectMessage(kQuestion, MessageAnswer::Yes);
    user.Click(form->cmdAsk);
    EXPECT_FALSE(form->Visible());
  });
  form->Show();
}

}  // namespace
}  // namespace orx::test
