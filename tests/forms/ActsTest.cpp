// An act keeps its form: what runs when a form is unloaded in the middle of its own code finds everything as it was.
#include "tests/forms/SampleForm.h"

namespace orx::test {
namespace {

/// Holds something as dialogs hold their pages.
struct HoldingForm final : Form {
  explicit HoldingForm(Desktop& desktop)
      : Form(desktop, "frmHolding", {.Caption = "Holding", .Client = {3000, 1500}}) {}

  void Form_Load() override {
    ++Loads;
    Page = std::make_shared<int>(7);
    if (WhenLoading) WhenLoading();
  }
  void Form_Unload() override {
    if (WhenUnloading) WhenUnloading();
  }
  void Form_Release() override {
    ++Releases;
    Page.reset();
  }

  Button cmdOK{*this, "cmdOK", {.Caption = "&OK", .Place = {120, 900, 1275, 375}}, ButtonRole::Default};
  std::shared_ptr<int> Page;
  std::function<void()> WhenLoading;
  std::function<void()> WhenUnloading;
  int Loads = 0;
  int Releases = 0;
};

class FormsActs : public DesktopTest {
 protected:
  ~FormsActs() override { form->Unload(); }

  std::shared_ptr<HoldingForm> form = std::make_shared<HoldingForm>(desktop());
};

TEST_F(FormsActs, WhatAFormHoldsOutlivesAnUnloadInItsHandler) {
  bool wasThere = false;
  form->cmdOK.Click = [&] {
    form->Unload();
    wasThere = form->Page != nullptr;
  };
  script.ExpectForm("frmHolding", [this](Form&) { user.Click(form->cmdOK); });
  form->Show();
  EXPECT_TRUE(wasThere);
  EXPECT_EQ(nullptr, form->Page);
  EXPECT_EQ(1, form->Releases);
}

TEST_F(FormsActs, WithoutAnActItGoesAtOnce) {
  form->Load();
  form->Unload();
  EXPECT_EQ(nullptr, form->Page);
  EXPECT_FALSE(form->IsRetired());
}

TEST_F(FormsActs, ItWaitsForTheOutermostOfNestedActs) {
  form->Load();
  {
    const Form::Act outer(*form);
    {
      const Form::Act inner(*form);
      form->Unload();
    }
    EXPECT_NE(nullptr, form->Page);
  }
  EXPECT_EQ(nullptr, form->Page);
}

TEST_F(FormsActs, ARetiredFormNeitherLoadsNorShows) {
  form->cmdOK.Click = [&] {
    form->Unload();
    EXPECT_TRUE(form->IsRetired());
    EXPECT_FALSE(form->IsLoaded());
    form->Load();
    form->Show();
    EXPECT_FALSE(form->IsLoaded());
  };
  script.ExpectForm("frmHolding", [this](Form&) { user.Click(form->cmdOK); });
  form->Show();
  EXPECT_EQ(1, form->Loads);
  EXPECT_FALSE(form->Visible());
}

TEST_F(FormsActs, AfterTheOutermostActTheFormLoadsAgain) {
  form->cmdOK.Click = [&] { form->Unload(); };
  for (int i = 0; i < 2; ++i) {
    script.ExpectForm("frmHolding", [this](Form&) { user.Click(form->cmdOK); });
    form->Show();
  }
  EXPECT_EQ(2, form->Loads);
}

TEST_F(FormsActs, AFormThatUnloadsAsItLoadsIsNotShown) {
  form->WhenLoading = [&] {
    form->Unload();
    EXPECT_NE(nullptr, form->Page);
  };
  form->Show();
  EXPECT_FALSE(form->Visible());
  EXPECT_EQ(nullptr, form->Page);
}

TEST_F(FormsActs, TheLastReferenceMayGoInsideAnAct) {
  HoldingForm& shown = *form;
  const std::weak_ptr<HoldingForm> watch = form;
  bool wasThere = false;
  shown.cmdOK.Click = [&] {
    form = std::make_shared<HoldingForm>(desktop());
    shown.Unload();
    wasThere = shown.Page != nullptr;
  };
  script.ExpectForm("frmHolding", [&](Form&) { user.Click(shown.cmdOK); });
  shown.Show();
  EXPECT_TRUE(wasThere);
  EXPECT_TRUE(watch.expired());
}

TEST_F(FormsActs, AnErrorInFormUnloadTravelsWhenTheWindowIsGone) {
  form->Show(ShowMode::Modeless);
  form->WhenUnloading = [] { throw std::runtime_error("disk full"); };
  EXPECT_THROW(form->Unload(), std::runtime_error);
  EXPECT_EQ(nullptr, form->Window());
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_EQ(nullptr, form->Page);
}

TEST_F(FormsActs, ClosingAllFormsGoesOnBehindOneThatCannotKeepItsState) {
  const auto other = std::make_shared<HoldingForm>(desktop());
  form->WhenUnloading = [] { throw std::runtime_error("disk full"); };
  form->Show(ShowMode::Modeless);
  other->Show(ShowMode::Modeless);
  EXPECT_NO_THROW(desktop().CloseOpenForms());
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_FALSE(other->IsLoaded());
}

TEST_F(FormsActs, TheCloseBoxOfAFormBehindItsMessageBoxDoesNothing) {
  const Message message{"Wait", "Holding", MessageIcon::Information};
  form->cmdOK.Click = [&] {
    script.WhenMessageIsUp = [this] { form->UserClose(); };
    script.ExpectMessage(message);
    desktop().ShowMessage(message);
    EXPECT_TRUE(form->IsLoaded());
    form->Hide();
  };
  script.ExpectForm("frmHolding", [this](Form&) { user.Click(form->cmdOK); });
  form->Show();
  EXPECT_TRUE(form->IsLoaded());
}

TEST_F(FormsActs, TheCloseBoxOfAFormBehindAModalOneDoesNothing) {
  const auto above = std::make_shared<HoldingForm>(desktop());
  above->cmdOK.Click = [&] { above->Unload(); };
  form->cmdOK.Click = [&] {
    script.ExpectForm("frmHolding", [&](Form&) {
      form->UserClose();
      EXPECT_TRUE(form->IsLoaded());
      user.Click(above->cmdOK);
    });
    above->Show();
    form->UserClose();
  };
  script.ExpectForm("frmHolding", [this](Form&) { user.Click(form->cmdOK); });
  form->Show();
  EXPECT_FALSE(form->IsLoaded());
}

}  // namespace
}  // namespace orx::test
