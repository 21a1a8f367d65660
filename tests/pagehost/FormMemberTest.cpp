// The members that a page-host dialog offers to the service: language, call-back, client, dirty state, and what loading
// and unloading does with them.
#include "propertydialogs/frmLegend.h"
#include "propertydialogs/frmProperties.h"
#include "tests/support/PageHostTest.h"

namespace orx::test {
namespace {

class PageHostMembers : public PageHostTest {
 protected:
  std::shared_ptr<frmProperties> form = std::make_shared<frmProperties>(desktop(), pages);

  /// The help number that the form takes from this text.
  std::int32_t HelpNumberFor(const std::string& text) {
    language.Texts["_HelpMapLayerProperties"] = text;
    const auto fresh = std::make_shared<frmProperties>(desktop(), pages);
    fresh->HelpContextId(99);
    fresh->Language(&language);
    fresh->Load();
    return fresh->HelpContextId();
  }
};

TEST_F(PageHostMembers, SettingTheLanguageAsksForItsEntriesAndLoadsNothing) {
  form->Language(&language);
  EXPECT_EQ((Calls{"Language.EntryCount"}), NewCalls());
  EXPECT_EQ(&language, form->Language());
  EXPECT_FALSE(form->IsLoaded());
  form->Language(nullptr);
  EXPECT_EQ(nullptr, form->Language());
}

TEST_F(PageHostMembers, LoadingGoesInItsOrder) {
  form->Language(&language);
  log.Calls.clear();
  form->Load();
  EXPECT_EQ((Calls{"Pages.CreatePage(Properties, Properties1)", "Language.EntryCount",
                   "Language.TranslateText(_HelpMapLayerProperties)", "Page.Language(object)",
                   "Language.TranslateForm(frmProperties)", "Language.TranslateText(Layer Properties)"}),
            NewCalls());
  EXPECT_EQ("<Layer Properties>", form->Caption());
  EXPECT_EQ("<&Help>", form->cmdHelp.Caption());
}

TEST_F(PageHostMembers, ALanguageWithoutEntriesReachesThePageAndTranslatesNothing) {
  language.Entries = 0;
  form->Language(&language);
  log.Calls.clear();
  form->Load();
  EXPECT_EQ((Calls{"Pages.CreatePage(Properties, Properties1)", "Language.EntryCount", "Page.Language(object)"}),
            NewCalls());
  EXPECT_EQ("Layer Properties", form->Caption());
}

TEST_F(PageHostMembers, WithoutALanguageThePageIsToldSo) {
  form->Load();
  EXPECT_EQ((Calls{"Pages.CreatePage(Properties, Properties1)", "Page.Language(none)"}), NewCalls());
}

TEST_F(PageHostMembers, ALanguageThatLosesItsEntriesBeforeLoadingTranslatesNothing) {
  form->Language(&language);
  language.Entries = 0;
  form->Load();
  EXPECT_EQ("Layer Properties", form->Caption());
}

TEST_F(PageHostMembers, HelpNumbersAreRoundedHalfToEven) {
  EXPECT_EQ(13, HelpNumberFor("12.6"));
  EXPECT_EQ(12, HelpNumberFor("12.5"));
  EXPECT_EQ(14, HelpNumberFor("13.5"));
  EXPECT_EQ(1000, HelpNumberFor(" 1,000 "));
  EXPECT_EQ(-3, HelpNumberFor("-3"));
}

TEST_F(PageHostMembers, HelpTextsThatAreNoNumberLeaveTheNumberUnchanged) {
  for (const char* text : {"", "   ", "twelve", "12a", "1,5", "1E99", "4294967296"})
    EXPECT_EQ(99, HelpNumberFor(text)) << '"' << text << '"';
}

TEST_F(PageHostMembers, HelpNumbersFollowTheUsersLocale) {
  testDesktop().Separators({",", ".", "€"});
  EXPECT_EQ(13, HelpNumberFor("12,6"));
  EXPECT_EQ(99, HelpNumberFor("12.6"));
}

TEST_F(PageHostMembers, EveryFormHasItsHelpKey) {
  language.Texts = {{"_HelpMapLayerProperties", "1"},
                    {"_HelpLayerCoordinates", "2"},
                    {"_HelpLayerLabels", "3"},
                    {"_HelpMapLegend", "4"}};
  service.Language(&language);
  const auto expectHelp = [&](const char* name, std::int32_t number) {
    script.ExpectForm(name, [&, number](Form& shown) {
      EXPECT_EQ(number, shown.HelpContextId());
      shown.Hide();
    });
  };
  expectHelp("frmProperties", 1);
  service.ShowProperties(&object);
  expectHelp("frmCoordinates", 2);
  service.ShowCoordinates(&object);
  expectHelp("frmLabels", 3);
  service.ShowLabels(&object);
  expectHelp("frmLegend", 4);
  service.ShowLegends(&object);
}

TEST_F(PageHostMembers, TheHelpButtonOpensTheLibrarysFileAtTheFormsNumber) {
  language.Texts = {{"_HelpFileMapDialogs", "maps.hlp"}, {"_HelpMapLayerProperties", "12.6"}};
  service.Language(&language);
  script.ExpectForm("frmProperties", [&](Form& shown) {
    Press(shown, "cmdHelp");
    ASSERT_EQ(1U, script.Helps.size());
    EXPECT_EQ((std::pair{std::string("maps.hlp"), 13}),
              (std::pair{script.Helps[0].FileName, static_cast<int>(script.Helps[0].ContextId)}));
    EXPECT_EQ(shown.Window()->NativeHandle(), script.Helps[0].WindowHandle);
    shown.Hide();
  });
  service.ShowProperties(&object);
}

TEST_F(PageHostMembers, TheHelpButtonWithoutAHelpFileSaysSo) {
  script.ExpectForm("frmProperties", [&](Form& shown) {
    script.ExpectMessage(
        {"Unable to display Help. There is no Help associated with this project.", "Help", MessageIcon::Information});
    Press(shown, "cmdHelp");
    EXPECT_TRUE(shown.Visible());
    shown.Hide();
  });
  service.ShowProperties(&object);
}

TEST_F(PageHostMembers, RegisteringACallBackTellsItAndLoadsNothing) {
  form->RegisterCallBack(&callBack);
  EXPECT_EQ((Calls{"CallBack.RegisterNotify"}), NewCalls());
  EXPECT_FALSE(form->IsLoaded());
}

TEST_F(PageHostMembers, RegisteringNoneClearsTheCallBackWithoutACall) {
  form->RegisterCallBack(&callBack);
  form->RegisterCallBack(nullptr);
  form->Load();
  log.Calls.clear();
  form->cmdApply.Click.Raise();
  EXPECT_EQ((Calls{"Page.ApplyChanges"}), NewCalls());
}

TEST_F(PageHostMembers, RegisteringAClientLoadsTheFormAndHandsTheClientToThePage) {
  form->RegisterClient(&object, "Key");
  EXPECT_EQ((Calls{"Pages.CreatePage(Properties, Properties1)", "Page.Language(none)", "Page.Client(object)"}),
            NewCalls());
}

TEST_F(PageHostMembers, IsDirtyIsThePages) {
  form->RegisterClient(&object, "");
  EXPECT_FALSE(form->IsDirty());
  form->IsDirty(true);
  EXPECT_TRUE(form->IsDirty());
  EXPECT_EQ("Page.IsDirty", log.Calls.back());
}

TEST_F(PageHostMembers, IsDirtyIsFalseAfterUnloading) {
  form->IsDirty(true);
  form->Unload();
  EXPECT_FALSE(form->IsDirty());
}

TEST_F(PageHostMembers, StartUpIndexIsThePages) {
  const auto legend = std::make_shared<frmLegend>(desktop(), pages);
  legend->StartUpIndex(3);
  EXPECT_EQ(3, legend->StartUpIndex());
  EXPECT_EQ("Page.StartUpIndex", log.Calls.back());
}

TEST_F(PageHostMembers, UnloadingClearsLanguageAndCallBackWithoutACall) {
  form->Language(&language);
  form->RegisterCallBack(&callBack);
  form->RegisterClient(&object, "");
  log.Calls.clear();
  form->Unload();
  EXPECT_EQ((Calls{"Page.Gone"}), NewCalls());
  EXPECT_EQ(nullptr, form->Language());
}

}  // namespace
}  // namespace orx::test
