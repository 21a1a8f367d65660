// What passes from a native dialog to its form, and how long the dialog stays in memory.
#include "forms/FormGate.h"

#include <gtest/gtest.h>

#include "desktops/headless/HeadlessDesktop.h"
#include "forms/Form.h"

namespace orx::test {
namespace {

class RecordedGate final : public FormGate {
 public:
  using FormGate::CutOff;
  using FormGate::FormGate;

  int TimesLetGo = 0;

 private:
  void LetGo() override { ++TimesLetGo; }
};

class FormGates : public testing::Test {
 protected:
  ~FormGates() override { form->Unload(); }

  bool Passes() {
    bool passed = false;
    gate.Report([&] { passed = true; });
    return passed;
  }

  headless::HeadlessDesktop desktop;
  std::shared_ptr<Form> form = std::make_shared<Form>(desktop, "frmAny", FormDesign{.Client = {3000, 1500}});
  RecordedGate gate{*form};
};

TEST_F(FormGates, OnlyWhatHappensToAShownFormThatTakesInputPasses) {
  EXPECT_FALSE(Passes());
  form->Show(ShowMode::Modeless);
  EXPECT_TRUE(Passes());
  form->Enabled(false);
  EXPECT_FALSE(Passes());
  form->Enabled(true);
  form->Hide();
  EXPECT_FALSE(Passes());
}

TEST_F(FormGates, WhatTheProgramDoesDoesNotPass) {
  form->Show(ShowMode::Modeless);
  {
    const FormGate::Quiet outer(gate);
    {
      const FormGate::Quiet inner(gate);
      EXPECT_FALSE(Passes());
    }
    EXPECT_FALSE(Passes());
  }
  EXPECT_TRUE(Passes());
}

TEST_F(FormGates, OnceCutOffNothingPassesAndTheDialogGoesAtOnce) {
  form->Show(ShowMode::Modeless);
  EXPECT_FALSE(gate.IsRetired());
  gate.CutOff();
  EXPECT_TRUE(gate.IsRetired());
  EXPECT_EQ(1, gate.TimesLetGo);
  EXPECT_FALSE(Passes());
}

TEST_F(FormGates, ADialogThatIsCutOffInAnEventGoesWhenTheOutermostOneHasEnded) {
  form->Show(ShowMode::Modeless);
  {
    const FormGate::Busy busy(gate);
    gate.Report([&] { gate.CutOff(); });
    EXPECT_EQ(0, gate.TimesLetGo);
  }
  EXPECT_EQ(1, gate.TimesLetGo);
}

TEST_F(FormGates, AnActKeepsItsForm) {
  std::shared_ptr<Form> other = std::make_shared<Form>(desktop, "frmOther", FormDesign{.Client = {3000, 1500}});
  other->Show(ShowMode::Modeless);
  RecordedGate otherGate(*other);
  const std::weak_ptr<Form> otherWatched = other;
  otherGate.Report([&] {
    other->Unload();
    other.reset();
    EXPECT_FALSE(otherWatched.expired());
  });
  EXPECT_TRUE(otherWatched.expired());
}

}  // namespace
}  // namespace orx::test
