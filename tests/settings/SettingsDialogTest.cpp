// The dialog for all settings of a layer: its four pages, what each member and button asks of them, and its tabs.
#include <algorithm>

#include "propertydialogs/frmSettings.h"
#include "tests/support/PageHostTest.h"
#include "tests/support/RecordedData.h"

namespace orx::test {
namespace {

class SettingsDialog : public PageHostTest {
 protected:
  SettingsDialog() {
    pages.NamesPages = true;
    service.CallBack(&callBack);
  }

  using Action = std::function<void(frmSettings&)>;
  /// Shows the dialog through the service; the user acts with an empty list of calls.
  std::int32_t Show(const Action& act) {
    script.ExpectForm("frmSettings", [this, act](Form& form) {
      log.Calls.clear();
      script.Pointers.clear();
      act(dynamic_cast<frmSettings&>(form));
      if (form.Visible()) Press(form, "cmdCancel");
    });
    return service.Show(&object, 3);
  }
  void EditPage(frmSettings& form, int tab, const std::string& text) {
    const PageKind kinds[] = {PageKind::Properties, PageKind::LabelProperties, PageKind::DataProperties,
                              PageKind::Coordinates};
    user.SelectTab(form.ssTab, tab);
    user.Type(pages.Made.at(kinds[tab])->Field(), text);
  }
  static Calls EachPage(const std::string& member) {
    return {"Properties." + member, "LabelProperties." + member, "DataProperties." + member, "Coordinates." + member};
  }
  static Calls Of(const Calls& calls, const std::string& start) {
    Calls found;
    std::ranges::copy_if(calls, std::back_inserter(found),
                         [&](const std::string& call) { return call.starts_with(start); });
    return found;
  }
  static Calls First(const Calls& calls, std::ptrdiff_t count) { return {calls.begin(), calls.begin() + count}; }
  static Calls Last(const Calls& calls, std::ptrdiff_t count) { return {calls.end() - count, calls.end()}; }
};

TEST_F(SettingsDialog, HasFourTabsWithTheirPages) {
  Show([&](frmSettings& form) {
    EXPECT_EQ("Properties", user.SeeCaption(form));
    EXPECT_EQ("Properties", user.See(form.ssTab).Text);
    for (const auto& [tab, caption] : {std::pair{1, "Label"}, {2, "Data"}, {3, "Coordinates"}, {0, "Properties"}}) {
      user.SelectTab(form.ssTab, tab);
      EXPECT_EQ(caption, user.See(form.ssTab).Text);
    }
    EXPECT_EQ(Calls{}, NewCalls());
  });
}

TEST_F(SettingsDialog, IsOpenedInItsOrder) {
  service.Language(&language);
  language.Texts["_HelpMapLayerSettings"] = "12.6";
  log.Calls.clear();
  script.ExpectForm("frmSettings", [&](Form& form) {
    const Calls calls = NewCalls();
    EXPECT_EQ("Language.EntryCount", calls.front());
    EXPECT_EQ(
        (Calls{"Pages.CreatePage(Properties, Properties1)", "Pages.CreatePage(LabelProperties, LabelProperties1)",
               "Pages.CreatePage(DataProperties, DataProperties1)", "Pages.CreatePage(Coordinates, Coordinates1)"}),
        Of(calls, "Pages."));
    EXPECT_EQ(
        (Calls{"Language.EntryCount", "Language.EntryCount", "Language.TranslateText(_HelpMapLayerSettings)",
               "Language.TranslateForm(frmSettings)", "Language.TranslateText(Properties)",
               "Language.TranslateText(Label)", "Language.TranslateText(Data)", "Language.TranslateText(Coordinates)"}),
        Of(calls, "Language."));
    EXPECT_EQ((Calls{"LabelProperties.Language(object)", "LabelProperties.Client(object)",
                     "LabelProperties.RefreshContents", "LabelProperties.RefreshContents"}),
              Of(calls, "LabelProperties."));
    EXPECT_EQ(13, form.HelpContextId());
    form.Hide();
  });
  service.Show(&object, 0);
}

TEST_F(SettingsDialog, TheTabsAreTranslatedAndTheFirstOneIsCurrent) {
  service.Language(&language);
  Show([&](frmSettings& form) {
    EXPECT_EQ(0, form.ssTab.Tab());
    EXPECT_EQ("Properties", form.ssTab.TabCaption(0));
    EXPECT_EQ("<Label>", form.ssTab.TabCaption(1));
    EXPECT_EQ("<Data>", form.ssTab.TabCaption(2));
    EXPECT_EQ("<Coordinates>", form.ssTab.TabCaption(3));
    EXPECT_EQ("<Properties>", user.SeeCaption(form));
  });
}

/// Translates the tabs with the form, as far as it has words for them.
class TabLanguage final : public ILanguage {
 public:
  std::int32_t EntryCount() override { return 3; }
  std::string TranslateText(const std::string& key) override { return key == "Daten" ? "Werte" : key; }
  void TranslateForm(Form& form) override {
    if (auto* const tabs = dynamic_cast<TabControl*>(form.Find("ssTab"))) tabs->TabCaption(2, "Daten");
  }
};

TEST_F(SettingsDialog, ATabIsLookedUpByTheCaptionThatTheTranslatedFormGivesIt) {
  TabLanguage words;
  service.Language(&words);
  Show([&](frmSettings& form) {
    EXPECT_EQ("Label", form.ssTab.TabCaption(1));
    EXPECT_EQ("Werte", form.ssTab.TabCaption(2));
  });
}

TEST_F(SettingsDialog, HelpNumbersUpToTheEndsOf32BitsCount) {
  service.Language(&language);
  const std::pair<const char*, std::int32_t> numbers[] = {
      {"2147483647", 2147483647}, {"-2147483648", -2147483647 - 1}, {"2147483648", 0}, {"-2147483649", 0}};
  for (const auto& [text, expected] : numbers) {
    language.Texts["_HelpMapLayerSettings"] = text;
    Show([expected = expected](frmSettings& form) { EXPECT_EQ(expected, form.HelpContextId()); });
  }
}

TEST_F(SettingsDialog, WithoutALanguageTheTabOfTheDesignIsCurrent) {
  int switches = 0;
  const auto form = std::make_shared<frmSettings>(desktop(), pages);
  form->ssTab.Tab(2);
  form->ssTab.Click = [&](int) { ++switches; };
  form->RegisterClient(&object, "");
  EXPECT_EQ(2, form->ssTab.Tab());
  EXPECT_EQ(0, switches);
  form->Unload();
}

TEST_F(SettingsDialog, ALanguageWithoutEntriesReachesThePagesOnly) {
  language.Entries = 0;
  service.Language(&language);
  Show([&](frmSettings& form) {
    EXPECT_EQ("Label", form.ssTab.TabCaption(1));
    EXPECT_EQ(&language, pages.Made.at(PageKind::Coordinates)->Language());
  });
}

TEST_F(SettingsDialog, OKSavesAllPagesTellsAndHides) {
  Calls calls;
  EXPECT_EQ(-1, Show([&](frmSettings& form) {
    EditPage(form, 3, "x");
    log.Calls.clear();
    Press(form, "cmdOK");
    calls = NewCalls();
    EXPECT_FALSE(form.Canceled());
    EXPECT_EQ((std::vector<Pointer>{Pointer::Hourglass, Pointer::Default}), script.Pointers);
  }));
  EXPECT_EQ(EachPage("SaveChanges"), First(calls, 4));
  EXPECT_EQ("CallBack.OKNotify(True)", calls.back());
}

TEST_F(SettingsDialog, EditedLabelsAreToldButAreNoResult) {
  Calls notes;
  EXPECT_EQ(0, Show([&](frmSettings& form) {
              EditPage(form, 1, "x");
              Press(form, "cmdOK");
              notes = Of(NewCalls(), "CallBack.");
              EXPECT_TRUE(form.LastChange());
            }));
  EXPECT_EQ(Calls{"CallBack.OKNotify(True)"}, notes);
}

TEST_F(SettingsDialog, EachOtherPageIsTheResult) {
  for (const int tab : {0, 2, 3}) {
    EXPECT_EQ(-1, Show([&](frmSettings& form) {
      EditPage(form, tab, "x");
      Press(form, "cmdOK");
    })) << tab;
  }
}

TEST_F(SettingsDialog, ApplyThenOKTellsOfNoFurtherChange) {
  EXPECT_EQ(0, Show([&](frmSettings& form) {
              EditPage(form, 0, "x");
              log.Calls.clear();
              script.Pointers.clear();
              Press(form, "cmdApply");
              const Calls calls = NewCalls();
              EXPECT_EQ(EachPage("ApplyChanges"), First(calls, 4));
              EXPECT_EQ(Calls{"CallBack.ApplyNotify(True)"}, Of(calls, "CallBack."));
              EXPECT_EQ(EachPage("IsDirty(False)"), Last(calls, 4));
              EXPECT_EQ((std::vector<Pointer>{Pointer::Hourglass, Pointer::Default}), script.Pointers);
              Press(form, "cmdOK");
              EXPECT_EQ(Calls{"CallBack.OKNotify(False)"}, Of(NewCalls(), "CallBack."));
            }));
}

TEST_F(SettingsDialog, WithoutACallBackApplyIsVisibleAndCleansAllPages) {
  service.CallBack(nullptr);
  EXPECT_EQ(0, Show([&](frmSettings& form) {
              EXPECT_TRUE(user.See(form.cmdApply).Visible);
              EXPECT_EQ(3720, form.cmdCancel.Left());
              EditPage(form, 0, "x");
              log.Calls.clear();
              Press(form, "cmdApply");
              const Calls calls = NewCalls();
              EXPECT_EQ(EachPage("ApplyChanges"), First(calls, 4));
              EXPECT_EQ(EachPage("IsDirty(False)"), Last(calls, 4));
              EXPECT_EQ(8U, calls.size());
              EXPECT_FALSE(form.LastChange());
              Press(form, "cmdOK");
            }));
}

TEST_F(SettingsDialog, CancelDiscardsInAllPagesAndReturnsZero) {
  EXPECT_EQ(0, Show([&](frmSettings& form) {
              EditPage(form, 2, "x");
              log.Calls.clear();
              script.Pointers.clear();
              Press(form, "cmdCancel");
              const Calls calls = NewCalls();
              EXPECT_EQ(EachPage("DiscardChanges"), First(calls, 4));
              EXPECT_EQ("CallBack.CancelNotify(False)", calls.back());
              EXPECT_TRUE(script.Pointers.empty());
              EXPECT_TRUE(form.Canceled());
            }));
}

TEST_F(SettingsDialog, SizingTheFormLoadsAllPagesAgain) {
  Show([&](frmSettings& form) {
    EditPage(form, 0, "x");
    log.Calls.clear();
    form.ClientSize({form.ClientSize().Width + 150, form.ClientSize().Height});
    EXPECT_EQ(EachPage("RefreshContents"), NewCalls());
  });
}

TEST_F(SettingsDialog, TheDirtyStateIsSetOnAllPages) {
  const auto form = std::make_shared<frmSettings>(desktop(), pages);
  form->RegisterClient(&object, "Maps");
  log.Calls.clear();
  form->IsDirty(true);
  EXPECT_EQ(EachPage("IsDirty(True)"), NewCalls());
  EXPECT_TRUE(form->IsDirty());
  EXPECT_EQ((Calls{"Properties.IsDirty", "DataProperties.IsDirty", "Coordinates.IsDirty"}), NewCalls());
  form->Unload();
  EXPECT_FALSE(form->IsDirty());
}

TEST_F(SettingsDialog, IsShownWithoutPagesWhenOneCannotBeMade) {
  pages.Created = [](Container&) { throw std::runtime_error("No page"); };
  bool isShown = false;
  EXPECT_EQ(0, Show([&](frmSettings& form) {
              isShown = true;
              form.ClientSize({form.ClientSize().Width + 150, form.ClientSize().Height});
              EXPECT_FALSE(form.IsDirty());
              user.CloseBox(form);
            }));
  EXPECT_TRUE(isShown);
}

TEST_F(SettingsDialog, AFailingPageEndsTheButtonAndTheHourglassStays) {
  for (const char* const button : {"cmdApply", "cmdOK"}) {
    SCOPED_TRACE(button);
    const std::string member = std::string(button) == "cmdOK" ? "SaveChanges" : "ApplyChanges";
    log.Failing = {"LabelProperties." + member};
    script.ExpectForm("frmSettings", [&](Form& form) {
      log.Calls.clear();
      Press(form, button);
      EXPECT_EQ((Calls{"Properties." + member, "LabelProperties." + member}), NewCalls());
      EXPECT_TRUE(form.Visible());
      form.Hide();
    });
    EXPECT_EQ(0, service.Show(&object, 0));
    EXPECT_EQ(Pointer::Hourglass, desktop().Pointer());
    desktop().Pointer(Pointer::Default);
    log.Failing.clear();
  }
}

TEST_F(SettingsDialog, AFailingCallBackEndsTheButton) {
  log.Failing = {"CallBack.CancelNotify"};
  bool canceled = true;
  script.ExpectForm("frmSettings", [&](Form& form) {
    Press(form, "cmdCancel");
    canceled = dynamic_cast<frmSettings&>(form).Canceled();
    EXPECT_TRUE(form.Visible());
    form.Hide();
  });
  EXPECT_EQ(0, service.Show(&object, 0));
  EXPECT_FALSE(canceled);
}

TEST_F(SettingsDialog, TheCloseBoxRunsNoButton) {
  EXPECT_EQ(0, Show([&](frmSettings& form) {
              EditPage(form, 0, "x");
              Press(form, "cmdApply");
              log.Calls.clear();
              user.CloseBox(form);
              EXPECT_EQ(Calls{}, Of(NewCalls(), "CallBack."));
            }));
}

TEST_F(SettingsDialog, ANewNameIsNotAnswered) {
  Show([&](frmSettings&) { EXPECT_FALSE(pages.Made.at(PageKind::Properties)->NameChanged.HasHandler()); });
}

TEST_F(SettingsDialog, TheRequestsOfTheDataPageOpenTheirDialogs) {
  RecordedData data;
  service.Language(&language);
  Show([&](frmSettings&) {
    RecordingPage& page = *pages.Made.at(PageKind::DataProperties);
    script.ExpectForm("frmDataOptions", [&](Form& form) {
      EXPECT_NE(std::string::npos, user.SeeCaption(form).find('<'));
      user.CloseBox(form);
    });
    DataRequest request{&data, true};
    page.OptionsRequested.Raise(request);
    EXPECT_FALSE(request.Changed);
    script.ExpectForm("frmManageColors", [&](Form& form) { user.CloseBox(form); });
    page.ColorsRequested.Raise(nullptr);
    script.ExpectMessage({"Sorry, Data Style not yet supported", "Data Style", MessageIcon::Information});
    page.DataStyleRequested.Raise();
  });
}

TEST_F(SettingsDialog, EnterPressesOKAndEscapeCancel) {
  EXPECT_EQ(-1, Show([&](frmSettings& form) {
    EditPage(form, 0, "x");
    user.Press(form, kEnter);
    EXPECT_FALSE(form.Visible());
  }));
  Show([&](frmSettings& form) {
    user.Press(form, kEscape);
    EXPECT_TRUE(form.Canceled());
  });
}

}  // namespace
}  // namespace orx::test
