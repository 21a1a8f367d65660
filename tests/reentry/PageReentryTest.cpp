// The dialogs with pages, closed or asked for more in the middle of a call of their host.
#include <algorithm>

#include "tests/reentry/ReentryTest.h"

namespace orx::test {
namespace {

class PageReentry : public Reentry {
 protected:
  /// The dialogs for a layer, each with the first of its pages.
  std::int32_t ShowProperties() { return service.ShowProperties(&object); }
};

/// What each button calls, in order.
struct Press {
  const char* Button;
  std::vector<std::string> Calls;
};

const std::vector<Press> kPresses{
    {"cmdApply", {"Properties.ApplyChanges", "Properties.IsDirty", "CallBack.ApplyNotify"}},
    {"cmdOK", {"Properties.SaveChanges", "Properties.IsDirty", "CallBack.OKNotify"}},
    {"cmdCancel", {"Properties.DiscardChanges", "Properties.IsDirty", "CallBack.CancelNotify"}},
};

TEST_F(PageReentry, TheCloseBoxInAnyCallOfAButtonEndsTheDialogAndNothingElseIsCalled) {
  for (const auto& [button, calls] : kPresses) {
    for (const std::string& call : calls) {
      SCOPED_TRACE(call);
      DuringPress("frmProperties", button, call, [&](Form& form) {
        log.Calls.clear();
        user.CloseBox(form);
        EXPECT_FALSE(form.Visible());
      });
      EXPECT_EQ(0, ShowProperties());
      EXPECT_EQ(Calls{"Properties.Gone"}, log.Calls);
      EXPECT_EQ(Pointer::Default, desktop().Pointer());
    }
  }
}

TEST_F(PageReentry, AnOwnerThatGoesInAnyCallOfAButtonTakesTheDialogWithIt) {
  for (const auto& [button, calls] : kPresses) {
    for (const std::string& call : calls) {
      SCOPED_TRACE(call);
      DuringPress("frmProperties", button, call, [](Form& form) { form.WindowLost(); });
      EXPECT_EQ(0, ShowProperties());
      EXPECT_FALSE(desktop().HasModalForm());
    }
  }
}

TEST_F(PageReentry, AFormThatIsClosedInApplyNotifyDoesNotLoadAgain) {
  DuringPress("frmProperties", "cmdApply", "CallBack.ApplyNotify", [&](Form& form) {
    log.Calls.clear();
    user.CloseBox(form);
  });
  EXPECT_EQ(0, ShowProperties());
  EXPECT_EQ(0, std::ranges::count_if(log.Calls, [](const std::string& call) { return call.starts_with("Pages."); }));
}

TEST_F(PageReentry, AModelessManagerThatIsClosedInApplyNotifyAsksItsMapNothingMore) {
  service.Show(&map, 0, {}, ShowMode::Modeless);
  const std::shared_ptr<Form> form = desktop().OpenForms().at(0);
  During("CallBack.ApplyNotify", [&] {
    user.CloseBox(*form);
    map.Questions = 0;
  });
  Press(*form, "cmdApply");
  EXPECT_EQ(0, map.Questions);
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_TRUE(desktop().OpenForms().empty());
}

TEST_F(PageReentry, AnotherButtonInTheMiddleOfOneComesToNothing) {
  DuringPress("frmProperties", "cmdOK", "Properties.SaveChanges", [&](Form& form) {
    Press(form, "cmdCancel");
    Press(form, "cmdApply");
  });
  EXPECT_EQ(0, ShowProperties());
  EXPECT_EQ(0, std::ranges::count(log.Calls, "Properties.DiscardChanges"));
  EXPECT_EQ(0, std::ranges::count(log.Calls, "Properties.ApplyChanges"));
  EXPECT_EQ(1, std::ranges::count(log.Calls, "CallBack.OKNotify(False)"));
}

TEST_F(PageReentry, TheSameDialogMayOpenAboveItselfInAnyCallOfAButton) {
  for (const auto& [button, calls] : kPresses) {
    for (const std::string& call : calls) {
      SCOPED_TRACE(call);
      DuringPress("frmProperties", button, call, [&](Form& form) {
        script.ExpectForm("frmProperties", [this](Form& above) { Press(above, "cmdOK"); });
        EXPECT_EQ(0, ShowProperties());
        EXPECT_TRUE(form.Visible());
      });
      EXPECT_EQ(0, ShowProperties());
    }
  }
}

TEST_F(PageReentry, APageThatIsMissingLeavesNoHourglass) {
  for (const char* const button : {"cmdApply", "cmdOK", "cmdCancel"}) {
    SCOPED_TRACE(button);
    log.Failing = {"Pages.CreatePage"};
    script.ExpectForm("frmProperties", [&](Form& form) {
      Press(form, button);
      EXPECT_EQ(Pointer::Default, desktop().Pointer());
      form.Hide();
    });
    EXPECT_EQ(0, ShowProperties());
  }
}

TEST_F(PageReentry, AnOwnerThatGoesWhileAPageHasADialogOpenLeavesThePageUntilThatIsDone) {
  bool wasThere = false;
  script.ExpectForm("frmSettings", [&](Form& form) {
    script.ExpectForm("frmManageColors", [&](Form& above) {
      form.WindowLost();
      log.Calls.clear();
      EXPECT_TRUE(form.IsRetired());
      above.Unload();
    });
    // The host's own page asks from an event of its own.
    Page(PageKind::DataProperties).ColorsRequested.Raise(nullptr);
    wasThere = log.Calls.empty();
  });
  EXPECT_EQ(0, service.Show(&object, 0));
  EXPECT_TRUE(wasThere);
}

TEST_F(PageReentry, ALanguageThatClosesTheFormIsAskedNoMore) {
  service.Language(&language);
  for (const char* const call : {"Language.EntryCount", "Language.TranslateText", "Language.TranslateForm"}) {
    SCOPED_TRACE(call);
    const auto form = std::make_shared<frmMapSettings>(desktop(), pages);
    form->Language(&language);
    During(call, [&] {
      form->Unload();
      log.Calls.clear();
    });
    EXPECT_NO_THROW(form->Load());
    EXPECT_EQ(0, std::ranges::count_if(log.Calls, [](const std::string& each) { return each.starts_with("Lang"); }));
    EXPECT_FALSE(form->IsLoaded());
  }
}

}  // namespace
}  // namespace orx::test
