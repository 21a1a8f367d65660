// A service that its host destroys in the middle of a call, and dialogs that keep their place whatever happens.
#include "service/CCommonProgressDialog.h"
#include "tests/reentry/ReentryTest.h"
#include "tests/support/KeptPlacement.h"

namespace orx::test {
namespace {

class ServiceReentry : public Reentry {
 protected:
  ServiceReentry() {
    own->CallBack(&callBack);
    own->Language(&language);
  }
  void Destroy() { own.reset(); }

  std::unique_ptr<CCommonMapDialogs> own = std::make_unique<CCommonMapDialogs>(desktop(), pages);
};

TEST_F(ServiceReentry, MayBeDestroyedWhileADialogIsRegisteredOrShown) {
  for (const char* const call : {"CallBack.RegisterNotify", "Language.EntryCount", "Pages.CreatePage",
                                 "Properties.RefreshContents", "Properties.SaveChanges"}) {
    SCOPED_TRACE(call);
    own = std::make_unique<CCommonMapDialogs>(desktop(), pages);
    own->CallBack(&callBack);
    own->Language(&language);
    own->RegistryKey(key);
    During(call, [this] { Destroy(); });
    script.ExpectForm("frmProperties", [this](Form& form) { Press(form, "cmdOK"); });
    EXPECT_EQ(0, own->ShowProperties(&object));
    EXPECT_EQ(nullptr, own);
  }
}

TEST_F(ServiceReentry, MayBeDestroyedWhileTheMapIsAskedWhatItIs) {
  During("ViewFor", [this] { Destroy(); });
  script.ExpectForm("frmMapSettings", [this](Form& form) { Press(form, "cmdOK"); });
  EXPECT_EQ(0, own->Show(&map, 0));
}

TEST_F(ServiceReentry, MayBeDestroyedWhileItTakesALanguage) {
  During("Language.EntryCount", [this] { Destroy(); });
  own->Language(&language);
  EXPECT_EQ(nullptr, own);
}

TEST_F(ServiceReentry, MayBeDestroyedUnderTheFilePrompt) {
  std::string found = "before";
  bool cancelAll = false;
  desktop().Pointer(Pointer::Hourglass);
  script.ExpectForm("frmMsgBox", [this](Form& form) {
    Destroy();
    Press(form, "cmdCancelAll");
  });
  EXPECT_FALSE(own->ShowFileNotFound("/gone/a.shp", found, cancelAll));
  EXPECT_TRUE(cancelAll);
  EXPECT_EQ("", found);
  EXPECT_EQ(Pointer::Hourglass, desktop().Pointer());
}

TEST_F(ServiceReentry, MayBeDestroyedUnderAListSelection) {
  std::vector<std::int32_t> selected;
  script.ExpectForm("frmListSelection", [this](Form& form) {
    Destroy();
    Press(form, "cmdOK");
  });
  EXPECT_EQ(1, own->ShowListSelection({{"one", "two"}, 5}, false, 2, "List", false, {}, selected));
  EXPECT_EQ(std::vector<std::int32_t>{6}, selected);
}

TEST_F(ServiceReentry, TheFilePromptGivesThePointerBackAfterAnError) {
  std::string found;
  bool cancelAll = false;
  desktop().Pointer(Pointer::Hourglass);
  log.Failing = {"Language.EntryCount"};
  EXPECT_THROW(own->ShowFileNotFound("/gone/a.shp", found, cancelAll), RunTimeError);
  EXPECT_EQ(Pointer::Hourglass, desktop().Pointer());
}

TEST_F(ServiceReentry, ADialogMayBeClosedAsItIsLoaded) {
  pages.Created = [](Container& parent) { parent.ContainingForm().WindowLost(); };
  EXPECT_EQ(0, own->ShowProperties(&object));
  EXPECT_EQ(0, own->Show(&map, 0));
  EXPECT_TRUE(desktop().OpenForms().empty());
}

TEST_F(ServiceReentry, AProgressDialogMayGoWhileItIsShownModal) {
  auto progress = std::make_unique<CCommonProgressDialog>(desktop());
  script.ExpectForm("frmProperties", [&](Form& form) {
    script.ExpectForm("frmProgress", [&](Form&) { progress.reset(); });
    progress->Show();
    EXPECT_EQ(nullptr, progress);
    Press(form, "cmdOK");
  });
  EXPECT_EQ(0, own->ShowProperties(&object));
}

TEST_F(ServiceReentry, AProgressDialogMayGoWhileEventsAreHandled) {
  for (const bool isShown : {false, true}) {
    auto progress = std::make_unique<CCommonProgressDialog>(desktop());
    if (isShown) progress->Show();
    script.WhenEventsPend = [&] { progress.reset(); };
    if (isShown) {
      progress->Hide();
    } else {
      progress->Show();
    }
    script.WhenEventsPend = nullptr;
    EXPECT_EQ(nullptr, progress);
    EXPECT_TRUE(desktop().OpenForms().empty());
  }
}

class PlaceReentry : public Reentry {
 protected:
  /// Opens the dialog modeless under the key, moves it and ends it.
  void MoveAndPress(const std::string& dialog, const std::string& key, const std::string& button) {
    service.RegistryKey(key);
    if (dialog == "frmDataDialog") {
      service.ShowDataProperties(&object, {}, ShowMode::Modeless);
    } else {
      service.Show(&map, 0, {}, ShowMode::Modeless);
    }
    const std::shared_ptr<Form> form = desktop().OpenForms().at(0);
    form->Move(1500, 900);
    Press(*form, button);
    EXPECT_FALSE(form->IsLoaded());
    EXPECT_TRUE(desktop().OpenForms().empty());
  }
};

TEST_F(PlaceReentry, AModelessDialogKeepsItsPlaceByWhateverButtonItIsEnded) {
  for (const auto& [dialog, section] :
       {std::pair{"frmDataDialog", "DataDialog"}, std::pair{"frmMapSettings", "MapSettings"}}) {
    for (const char* const button : {"cmdOK", "cmdCancel"}) {
      SCOPED_TRACE(std::string(dialog) + " " + button);
      KeptPlacement kept(desktop(), section);
      MoveAndPress(dialog, kept.Key(), button);
      EXPECT_EQ("1500", kept.Read("Left"));
      EXPECT_EQ("900", kept.Read("Top"));
    }
  }
}

TEST_F(PlaceReentry, ADialogWithoutItsPageLeavesTheKeptPlaceAlone) {
  for (const auto& [dialog, section] :
       {std::pair{"frmDataDialog", "DataDialog"}, std::pair{"frmMapSettings", "MapSettings"}}) {
    SCOPED_TRACE(dialog);
    KeptPlacement kept(desktop(), section);
    kept.Write("Left", "1500");
    log.Failing = {"Pages.CreatePage"};
    service.RegistryKey(kept.Key());
    script.ExpectForm(dialog, [this](Form& form) { user.CloseBox(form); });
    if (std::string(dialog) == "frmDataDialog") {
      service.ShowDataProperties(&object);
    } else {
      service.Show(&map, 0);
    }
    EXPECT_EQ("1500", kept.Read("Left"));
    EXPECT_EQ("(none)", kept.Read("Top"));
  }
}

}  // namespace
}  // namespace orx::test
