// The public service: its settings, the order of what it does with a dialog, captions, modes, results and failures.
#include "tests/support/ModelMap.h"
#include "tests/support/PageHostTest.h"

namespace orx::test {
namespace {

class Service : public PageHostTest {
 protected:
  using Member = std::function<std::int32_t(const std::string& caption, ShowMode mode)>;
  struct Entry {
    const char* Form;
    const char* Caption;
    Member Show;
  };

  std::vector<Entry> Members() {
    return {{"frmProperties", "Layer Properties",
             [this](const std::string& c, ShowMode m) { return service.ShowProperties(&object, c, m); }},
            {"frmLabels", "Properties",
             [this](const std::string& c, ShowMode m) { return service.ShowLabels(&object, c, m); }},
            {"frmCoordinates", "Properties",
             [this](const std::string& c, ShowMode m) { return service.ShowCoordinates(&object, c, m); }},
            {"frmLegend", "Map Annotation Properties",
             [this](const std::string& c, ShowMode m) { return service.ShowLegends(&object, 0, c, m); }},
            {"frmSettings", "Properties",
             [this](const std::string& c, ShowMode m) { return service.Show(&object, 0, c, m); }},
            {"frmMapSettings", "Map Layer Properties",
             [this](const std::string& c, ShowMode m) { return service.Show(&layers, 0, c, m); }},
            {"frmDataDialog", "Data Classify",
             [this](const std::string& c, ShowMode m) { return service.ShowDataProperties(&object, c, m); }}};
  }

  /// The captions that the user sees when each member is called with that caption.
  std::vector<std::string> CaptionsFor(const std::string& caption) {
    std::vector<std::string> captions;
    for (const Entry& member : Members()) {
      script.ExpectForm(member.Form, [&](Form& form) {
        captions.push_back(user.SeeCaption(form));
        form.Hide();
      });
      member.Show(caption, ShowMode::Modal);
    }
    return captions;
  }

  ModelMap map;
  ModelLayers layers{map};
};

TEST_F(Service, StartsWithoutSettings) {
  EXPECT_EQ("", service.RegistryKey());
  EXPECT_EQ(nullptr, service.CallBack());
  EXPECT_EQ(nullptr, service.Language());
}

TEST_F(Service, KeepsItsSettings) {
  service.RegistryKey("Maps");
  service.CallBack(&callBack);
  service.Language(&language);
  EXPECT_EQ("Maps", service.RegistryKey());
  EXPECT_EQ(&callBack, service.CallBack());
  EXPECT_EQ(&language, service.Language());
  service.CallBack(nullptr);
  service.Language(nullptr);
  EXPECT_EQ(nullptr, service.CallBack());
  EXPECT_EQ(nullptr, service.Language());
}

TEST_F(Service, ALanguageWithEntriesGivesTheHelpFile) {
  language.Texts["_HelpFileMapDialogs"] = "maps.hlp";
  service.Language(&language);
  EXPECT_EQ("maps.hlp", modMain::HelpFile());
  EXPECT_EQ((Calls{"Language.EntryCount", "Language.TranslateText(_HelpFileMapDialogs)"}), NewCalls());
}

TEST_F(Service, ALanguageWithoutEntriesOrNoneLeavesTheHelpFile) {
  modMain::HelpFile("before.hlp");
  language.Entries = 0;
  service.Language(&language);
  service.Language(nullptr);
  EXPECT_EQ("before.hlp", modMain::HelpFile());
  EXPECT_EQ((Calls{"Language.EntryCount"}), NewCalls());
}

TEST_F(Service, AnErrorOfTheLanguageReachesTheHost) {
  log.Failing = {"Language.EntryCount"};
  EXPECT_THROW(service.Language(&language), RunTimeError);
}

TEST_F(Service, RunsADialogInItsOrder) {
  service.Language(&language);
  service.CallBack(&callBack);
  service.RegistryKey("Maps");
  log.Calls.clear();
  script.ExpectForm("frmLabels", [&](Form& form) {
    log.Call("Shown");
    Press(form, "cmdOK");
  });
  EXPECT_EQ(0, service.ShowLabels(&object));
  EXPECT_EQ((Calls{"Language.EntryCount", "Pages.CreatePage(LabelProperties, LabelProperties1)", "Language.EntryCount",
                   "Language.TranslateText(_HelpLayerLabels)", "Page.Language(object)",
                   "Language.TranslateForm(frmLabels)", "Language.TranslateText(Properties)", "Page.Client(object)",
                   "CallBack.RegisterNotify", "Page.RefreshContents", "Shown", "Page.SaveChanges", "Page.IsDirty",
                   "CallBack.OKNotify(False)", "Page.IsDirty", "Page.Gone"}),
            NewCalls());
}

TEST_F(Service, TheLegendDialogGetsTheCallBackFirstAndTheIndexBeforeTheContents) {
  service.CallBack(&callBack);
  script.ExpectForm("frmLegend", [&](Form& form) { Press(form, "cmdCancel"); });
  EXPECT_EQ(0, service.ShowLegends(&object, 2));
  EXPECT_EQ((Calls{"CallBack.RegisterNotify", "Pages.CreatePage(Legends, Legends1)", "Page.Language(none)",
                   "Page.Client(object)", "Page.StartUpIndex(2)", "Page.RefreshContents", "Page.DiscardChanges",
                   "Page.IsDirty", "CallBack.CancelNotify(False)", "Page.Gone"}),
            NewCalls());
}

TEST_F(Service, BlankCaptionsLeaveTheDesignedOnes) {
  std::vector<std::string> designed;
  for (const Entry& member : Members()) designed.push_back(member.Caption);
  EXPECT_EQ(designed, CaptionsFor(""));
  EXPECT_EQ(designed, CaptionsFor("   "));
}

TEST_F(Service, CaptionsKeepTheirBlanks) {
  EXPECT_EQ((std::vector<std::string>(Members().size(), " Rivers ")), CaptionsFor(" Rivers "));
}

TEST_F(Service, ACaptionWinsOverTheTranslatedOne) {
  service.Language(&language);
  EXPECT_EQ((std::vector<std::string>(Members().size(), "Fl\u00fcsse")), CaptionsFor("Fl\u00fcsse"));
}

TEST_F(Service, EachMemberReturnsMinusOneForChangedAndZeroForNot) {
  for (const Entry& member : Members()) {
    SCOPED_TRACE(member.Form);
    script.ExpectForm(member.Form, [&](Form& form) {
      Edit(form, "x");
      Press(form, "cmdOK");
    });
    EXPECT_EQ(-1, member.Show("", ShowMode::Modal));
    script.ExpectForm(member.Form, [&](Form& form) { Press(form, "cmdOK"); });
    EXPECT_EQ(0, member.Show("", ShowMode::Modal));
  }
}

TEST_F(Service, AModalDialogIsUnloadedWhenTheCallReturns) {
  std::weak_ptr<Form> shown;
  script.ExpectForm("frmProperties", [&](Form& form) {
    shown = form.weak_from_this();
    Press(form, "cmdOK");
  });
  service.ShowProperties(&object);
  EXPECT_TRUE(shown.expired());
}

TEST_F(Service, AModelessDialogReturnsAtOnceAndLivesOnItsOwn) {
  for (const Entry& member : Members()) {
    SCOPED_TRACE(member.Form);
    log.Calls.clear();
    EXPECT_EQ(0, member.Show("", ShowMode::Modeless));
    EXPECT_EQ("Page.IsDirty", log.Calls.back());
  }
  EXPECT_EQ(0, std::count(log.Calls.begin(), log.Calls.end(), "Page.Gone"));
}

TEST_F(Service, AModelessDialogKeepsWorkingAndGoesWhenItIsClosed) {
  service.CallBack(&callBack);
  Form* shown = nullptr;
  pages.Created = [&](Container& parent) { shown = &parent.ContainingForm(); };
  EXPECT_EQ(0, service.ShowProperties(&object, "", ShowMode::Modeless));
  ASSERT_NE(nullptr, shown);
  Edit(*shown, "x");
  Press(*shown, "cmdApply");
  EXPECT_EQ("CallBack.ApplyNotify(True)", log.Calls.back());
  Press(*shown, "cmdOK");
  EXPECT_EQ((Calls{"CallBack.OKNotify(True)", "Page.Gone"}), (Calls{log.Calls.end() - 2, log.Calls.end()}));
}

TEST_F(Service, AModelessDialogGoesByItsCloseBox) {
  Form* shown = nullptr;
  pages.Created = [&](Container& parent) { shown = &parent.ContainingForm(); };
  service.ShowLegends(&object, 0, "", ShowMode::Modeless);
  ASSERT_NE(nullptr, shown);
  const std::weak_ptr<Form> watch = shown->weak_from_this();
  user.CloseBox(*shown);
  EXPECT_TRUE(watch.expired());
}

TEST_F(Service, AboveAModalDialogNoneIsShownModeless) {
  script.ExpectForm("frmProperties", [&](Form& form) {
    for (const Entry& member : Members()) EXPECT_EQ(0, member.Show("", ShowMode::Modeless)) << member.Form;
    EXPECT_TRUE(desktop().OpenForms().empty());
    EXPECT_TRUE(form.Visible());
    Press(form, "cmdOK");
  });
  service.ShowProperties(&object);
}

TEST_F(Service, ANullObjectIsHandedOnAsNone) {
  script.ExpectForm("frmProperties", [&](Form& form) { Press(form, "cmdOK"); });
  EXPECT_EQ(0, service.ShowProperties(nullptr));
  EXPECT_EQ(1, std::count(log.Calls.begin(), log.Calls.end(), "Page.Client(none)"));
}

TEST_F(Service, ADialogMayBelongToAFormOfTheHost) {
  const auto owner =
      std::make_shared<Form>(desktop(), "frmOwner", FormDesign{.Caption = "Owner", .Client = {9000, 6000}});
  owner->Show(ShowMode::Modeless);
  script.ExpectForm("frmProperties", [&](Form& form) { Press(form, "cmdOK"); });
  EXPECT_EQ(0, service.ShowProperties(&object, "", ShowMode::Modal, {owner.get(), 0}));
  EXPECT_TRUE(owner->Visible());
  owner->Unload();
}

// Failures: each point where language, page, call-back or factory can fail before the dialog is up. The step that fails
// is skipped, the others are taken, and the dialog is shown.

struct StepFailure {
  const char* Failing;
  Calls Expected;
};

TEST_F(Service, AFailingStepIsSkippedAndTheDialogIsShown) {
  const std::string create = "Pages.CreatePage(Properties, Properties1)";
  const std::string help = "Language.TranslateText(_HelpMapLayerProperties)";
  const std::string form = "Language.TranslateForm(frmProperties)";
  const Calls rest{"CallBack.RegisterNotify", "Page.RefreshContents", "Shown"};
  const auto with = [&](Calls calls) {
    calls.insert(calls.end(), rest.begin(), rest.end());
    return calls;
  };
  const StepFailure cases[] = {
      {"Language.EntryCount", with({"Language.EntryCount", create, "Language.EntryCount"})},
      {"Language.TranslateText", with({"Language.EntryCount", create, "Language.EntryCount", help})},
      {"Page.Language", with({"Language.EntryCount", create, "Language.EntryCount", help, "Page.Language(object)"})},
      {"Language.TranslateForm",
       with({"Language.EntryCount", create, "Language.EntryCount", help, "Page.Language(object)", form})},
      {"Page.Client", with({"Language.EntryCount", create, "Language.EntryCount", help, "Page.Language(object)", form,
                            "Language.TranslateText(Layer Properties)", "Page.Client(object)"})},
      {"CallBack.RegisterNotify",
       with({"Language.EntryCount", create, "Language.EntryCount", help, "Page.Language(object)", form,
             "Language.TranslateText(Layer Properties)", "Page.Client(object)"})},
      {"Page.RefreshContents",
       with({"Language.EntryCount", create, "Language.EntryCount", help, "Page.Language(object)", form,
             "Language.TranslateText(Layer Properties)", "Page.Client(object)"})},
  };
  service.Language(&language);
  service.CallBack(&callBack);
  for (const StepFailure& each : cases) {
    SCOPED_TRACE(each.Failing);
    log.Calls.clear();
    log.Failing = {each.Failing};
    Calls calls;
    script.ExpectForm("frmProperties", [&](Form& shown) {
      log.Calls.push_back("Shown");
      calls = NewCalls();
      shown.Hide();
    });
    EXPECT_EQ(0, service.ShowProperties(&object));
    EXPECT_EQ(each.Expected, calls);
    log.Failing.clear();
  }
}

TEST_F(Service, WithoutAPageTheDialogIsShownEmptyAndReturnsZero) {
  log.Failing = {"Pages.CreatePage"};
  script.ExpectForm("frmProperties", [&](Form& form) {
    EXPECT_EQ(nullptr, form.Find("txtValue"));
    Press(form, "cmdOK");
    EXPECT_TRUE(form.Visible());
    form.Hide();
  });
  EXPECT_EQ(0, service.ShowProperties(&object));
}

TEST_F(Service, ACallBackThatFailsToRegisterIsStillTold) {
  service.CallBack(&callBack);
  log.Failing = {"CallBack.RegisterNotify"};
  script.ExpectForm("frmProperties", [&](Form& form) {
    Press(form, "cmdApply");
    EXPECT_EQ("CallBack.ApplyNotify(False)", log.Calls.back());
    Press(form, "cmdOK");
  });
  EXPECT_EQ(0, service.ShowProperties(&object));
}

}  // namespace
}  // namespace orx::test
