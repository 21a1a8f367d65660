// OK, Apply and Cancel of the layer manager, its dirty state, its language, and the answers to its pages.
#include <algorithm>

#include "tests/layermanager/LayerManagerTest.h"
#include "tests/support/RecordedData.h"

namespace orx::test {
namespace {

const std::vector<Pointer> kWaited{Pointer::Hourglass, Pointer::Default};
const std::vector<Pointer> kDefault{Pointer::Default};

/// Those of the calls that begin so.
Calls Of(const Calls& calls, const std::string& start) {
  Calls found;
  std::ranges::copy_if(calls, std::back_inserter(found),
                       [&](const std::string& call) { return call.starts_with(start); });
  return found;
}

class LayerManagerButtons : public LayerManager {
 protected:
  LayerManagerButtons() {
    Fill({"Roads", "Rivers"});
    service.CallBack(&callBack);
  }

  static Calls EachPage(const std::string& member) {
    return {"Properties." + member, "LabelProperties." + member, "DataProperties." + member, "Coordinates." + member};
  }
};

TEST_F(LayerManagerButtons, OKSavesAllPagesTellsAndHides) {
  Calls calls;
  EXPECT_EQ(-1, Show([&](frmMapSettings& form) {
    EditPage(form, PageKind::DataProperties, "x");
    log.Calls.clear();
    script.Pointers.clear();
    Press(form, "cmdOK");
    calls = NewCalls();
    EXPECT_EQ(kWaited, script.Pointers);
    EXPECT_FALSE(form.Visible());
    EXPECT_FALSE(form.Canceled());
    EXPECT_TRUE(form.LastChange());
  }));
  EXPECT_EQ(EachPage("SaveChanges"), (Calls{calls.begin(), calls.begin() + 4}));
  EXPECT_EQ("CallBack.OKNotify(True)", calls.back());
}

TEST_F(LayerManagerButtons, EditedLabelsAreToldButAreNoResult) {
  Calls notes;
  EXPECT_EQ(0, Show([&](frmMapSettings& form) {
              EditPage(form, PageKind::LabelProperties, "x");
              Press(form, "cmdOK");
              notes = Of(NewCalls(), "CallBack.");
            }));
  EXPECT_EQ(Calls{"CallBack.OKNotify(True)"}, notes);
}

TEST_F(LayerManagerButtons, EachOtherPageCounts) {
  for (const PageKind kind : {PageKind::Properties, PageKind::DataProperties, PageKind::Coordinates}) {
    EXPECT_EQ(-1, Show([&](frmMapSettings& form) {
      EditPage(form, kind, "x");
      Press(form, "cmdOK");
    }));
  }
}

TEST_F(LayerManagerButtons, ApplyTellsAndCleansAndStaysOpen) {
  EXPECT_EQ(
      0, Show([&](frmMapSettings& form) {
        EditPage(form, PageKind::Properties, "x");
        user.Click(form.sftLayers, 1);
        user.Click(form.cmdUp);
        log.Calls.clear();
        script.Pointers.clear();
        Press(form, "cmdApply");
        Calls calls = NewCalls();
        EXPECT_EQ(EachPage("ApplyChanges"), (Calls{calls.begin(), calls.begin() + 4}));
        EXPECT_EQ(Calls{"CallBack.ApplyNotify(True)"}, Of(calls, "CallBack."));
        EXPECT_EQ(EachPage("IsDirty(False)"), (Calls{calls.end() - 4, calls.end()}));
        EXPECT_EQ(kWaited, script.Pointers);
        EXPECT_FALSE(form.IsDirty());
        EXPECT_TRUE(form.Visible());
        Press(form, "cmdApply");
        Press(form, "cmdOK");
        EXPECT_EQ((Calls{"CallBack.ApplyNotify(False)", "CallBack.OKNotify(False)"}), Of(NewCalls(), "CallBack."));
      }));
}

TEST_F(LayerManagerButtons, WithoutACallBackApplyStaysVisibleAndLeavesTheDirtyState) {
  service.CallBack(nullptr);
  EXPECT_EQ(-1, Show([&](frmMapSettings& form) {
    EXPECT_TRUE(user.See(form.cmdApply).Visible);
    user.Click(form.cmdDown);
    script.Pointers.clear();
    Press(form, "cmdApply");
    EXPECT_TRUE(form.IsDirty());
    EXPECT_EQ(kDefault, script.Pointers);
    Press(form, "cmdOK");
  }));
}

TEST_F(LayerManagerButtons, CancelDiscardsTellsAndReturnsZeroThoughLayersWereMoved) {
  EXPECT_EQ(0, Show([&](frmMapSettings& form) {
              user.Click(form.cmdDown);
              log.Calls.clear();
              script.Pointers.clear();
              Press(form, "cmdCancel");
              const Calls calls = NewCalls();
              EXPECT_EQ(EachPage("DiscardChanges"), (Calls{calls.begin(), calls.begin() + 4}));
              EXPECT_EQ("CallBack.CancelNotify(True)", calls.back());
              EXPECT_EQ(kDefault, script.Pointers);
              EXPECT_TRUE(form.Canceled());
              EXPECT_FALSE(form.Visible());
            }));
  EXPECT_EQ((Texts{"Rivers", "Roads"}), map.Names());
}

TEST_F(LayerManagerButtons, AFailingPageKeepsNoButtonFromItsWork) {
  for (const char* const button : {"cmdApply", "cmdOK", "cmdCancel"}) {
    SCOPED_TRACE(button);
    const std::string notify = std::string("CallBack.") + (button + 3) + "Notify(False)";
    const std::string member = std::string(button) == "cmdApply" ? "ApplyChanges"
                               : std::string(button) == "cmdOK"  ? "SaveChanges"
                                                                 : "DiscardChanges";
    Show([&](frmMapSettings& form) {
      log.Failing = {"Properties." + member, "DataProperties." + member};
      Press(form, button);
      log.Failing.clear();
      const Calls calls = NewCalls();
      EXPECT_EQ(EachPage(member), (Calls{calls.begin(), calls.begin() + 4}));
      EXPECT_EQ(Calls{notify}, Of(calls, "CallBack."));
      EXPECT_EQ(Pointer::Default, desktop().Pointer());
      EXPECT_EQ(std::string(button) == "cmdApply", form.Visible());
    });
  }
}

TEST_F(LayerManagerButtons, AFailingCallBackKeepsTheFormFromNothing) {
  log.Failing = {"CallBack.OKNotify"};
  EXPECT_EQ(0, Show([&](frmMapSettings& form) {
              Press(form, "cmdOK");
              EXPECT_FALSE(form.Visible());
              EXPECT_EQ(Pointer::Default, desktop().Pointer());
            }));
}

TEST_F(LayerManagerButtons, TheDirtyStateCanBeSetFromOutside) {
  const auto form = std::make_shared<frmMapSettings>(desktop(), pages);
  form->RegisterClient(&map, "");
  form->RefreshContents();
  EXPECT_FALSE(form->IsDirty());
  form->IsDirty(true);
  EXPECT_TRUE(form->IsDirty());
  EXPECT_TRUE(Page(PageKind::LabelProperties).IsDirty());
  form->IsDirty(false);
  EXPECT_FALSE(form->IsDirty());
  form->Unload();
}

TEST_F(LayerManagerButtons, TheServiceGivesLanguageClientCallBackAndFlagsInOrder) {
  service.Language(&language);
  language.Texts["_HelpMapSettings"] = "41";
  mFlags = 12;
  log.Calls.clear();
  script.ExpectForm("frmMapSettings", [&](Form& shown) {
    auto& form = dynamic_cast<frmMapSettings&>(shown);
    EXPECT_EQ(12, form.Flags());
    EXPECT_EQ(41, form.HelpContextId());
    EXPECT_EQ("<Map Layer Properties>", user.SeeCaption(form));
    const Calls calls = NewCalls();
    EXPECT_EQ("Language.EntryCount", calls.at(0));
    EXPECT_EQ("CallBack.RegisterNotify", calls.at(1));
    EXPECT_EQ(
        (Calls{"Pages.CreatePage(Properties, Properties1)", "Pages.CreatePage(LabelProperties, LabelProperties1)",
               "Pages.CreatePage(DataProperties, DataProperties1)", "Pages.CreatePage(Coordinates, Coordinates1)"}),
        Of(calls, "Pages."));
    EXPECT_EQ((Calls{"Properties.Language(object)"}), Of(calls, "Properties.Language"));
    EXPECT_EQ((Calls{"Language.EntryCount", "Language.EntryCount", "Language.TranslateText(_HelpMapSettings)",
                     "Language.TranslateForm(frmMapSettings)", "Language.TranslateText(Map Layer Properties)"}),
              Of(calls, "Language."));
    form.Hide();
  });
  EXPECT_EQ(0, service.Show(&map, mFlags));
}

TEST_F(LayerManagerButtons, ThePagesAreLoadedOnceBySelectingAndOnceByTheService) {
  script.ExpectForm("frmMapSettings", [&](Form& form) {
    EXPECT_EQ(2, std::ranges::count(log.Calls, "Coordinates.RefreshContents"));
    form.Hide();
  });
  log.Calls.clear();
  service.Show(&map, 0);
}

TEST_F(LayerManagerButtons, TheRequestsOfThePagesOpenTheirDialogs) {
  RecordedData data;
  Show([&](frmMapSettings&) {
    RecordingPage& page = Page(PageKind::DataProperties);
    script.ExpectForm("frmDataClassify", [&](Form& form) { user.CloseBox(form); });
    ClassifyRequest classify{&data, 0, 10, 0, false};
    page.ClassifyRequested.Raise(classify);
    script.ExpectForm("frmDataOptions", [&](Form& form) { user.CloseBox(form); });
    DataRequest options{&data, true};
    page.OptionsRequested.Raise(options);
    EXPECT_FALSE(options.Changed);
    script.ExpectMessage({"Sorry, Data Style not yet supported", "Data Style", MessageIcon::Information});
    page.DataStyleRequested.Raise();
    script.ExpectForm("frmManageColors", [&](Form& form) { user.CloseBox(form); });
    page.ColorsRequested.Raise(nullptr);
    script.ExpectFiles([&](OpenFileRequest& request) { user.CancelFiles(request); });
    BrowseRequest browse{"before.dat", false};
    page.BrowseRequested.Raise(browse);
    EXPECT_EQ("before.dat", browse.FileName);
    EXPECT_TRUE(browse.Cancel);
    DataRequest none{nullptr, false};
    script.Beeps = 0;
    page.ShadeRequested.Raise(none);
    page.IsolineRequested.Raise(none);
    EXPECT_EQ(2, script.Beeps);
  });
}

TEST_F(LayerManagerButtons, TheWholeDialogWorksByKeyboard) {
  Show([&](frmMapSettings& form) {
    EXPECT_TRUE(user.See(form.sftLayers).Focused);
    std::vector<std::string> walk;
    for (int i = 0; i < 11; ++i) {
      user.Press(form, kTab);
      walk.push_back(form.ActiveControl()->Name());
    }
    EXPECT_EQ((std::vector<std::string>{"cmdAdd", "cmdUp", "cmdDown", "cmdRemove", "ssTab", "txtValue", "cmdHelp",
                                        "cmdOK", "cmdCancel", "cmdApply", "sftLayers"}),
              walk);
  });
}

TEST_F(LayerManagerButtons, TheCloseBoxRunsNoButtonAndTheMovedLayerIsStillTheResult) {
  EXPECT_EQ(-1, Show([&](frmMapSettings& form) {
    user.Click(form.cmdDown);
    log.Calls.clear();
    user.CloseBox(form);
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_EQ(Calls{}, log.Calls);
  }));
  // The pages go when nothing of the dialog runs any more, and that is all.
  EXPECT_EQ(4U, log.Calls.size());
  EXPECT_EQ(4, std::ranges::count_if(log.Calls, [](const std::string& call) { return call.ends_with(".Gone"); }));
}

}  // namespace
}  // namespace orx::test
