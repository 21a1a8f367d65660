// The dialogs of the map library's pages show all their text, in every language and at every resolution.
#include "forms/FrameRoom.h"
#include "languages/PseudoLanguage.h"
#include "maplibrary/model/SampleMap.h"
#include "pickers/frmProgress.h"
#include "service/modMain.h"
#include "tests/layout/LayoutCheck.h"
#include "tests/maplibrary/pages/PagesTest.h"
#include "tests/support/InstalledLanguages.h"
#include "tests/support/RecordedData.h"
#include "tests/support/RecordedGrid.h"

namespace orx::test {
namespace {

class PageLayout : public PagesTest {
 protected:
  PageLayout() { legends.Legends.emplace_back(legends.Log, "Elevation"); }

  /// Shows the four dialogs and looks each over.
  void ExpectAllTextShown(ILanguage* language) {
    service.Language(language);
    const auto look = [this] { EXPECT_EQ(std::vector<std::string>{}, LayoutProblems(*form)); };
    InDialog("frmProperties", look);
    service.ShowProperties(&layer);
    InDialog("frmLabels", look);
    service.ShowLabels(&layer);
    InDialog("frmCoordinates", look);
    service.ShowCoordinates(&layer);
    InDialog("frmLegend", look);
    service.ShowLegends(&legends);
    const auto lookAtTabs = [this](Form& shown) {
      auto& tabs = dynamic_cast<TabControl&>(*shown.Find("ssTab"));
      for (int tab = 0; tab < tabs.TabCount(); ++tab) {
        user.SelectTab(tabs, tab);
        EXPECT_EQ(std::vector<std::string>{}, LayoutProblems(shown)) << "tab " << tab;
      }
      user.CloseBox(shown);
    };
    layer.Behind = &data;
    script.ExpectForm("frmSettings", lookAtTabs);
    service.Show(&layer, 0);
    const auto sample = maplibrary::MakeSampleMap(ORX_DATA_DIR "/jacksboro.bil");
    sample->Layer(1)->Name("A layer with a name that is longer than the list is wide");
    script.ExpectForm("frmMapSettings", lookAtTabs);
    service.Show(sample.get(), 0);
    script.ExpectForm("frmDataDialog", lookAtTabs);
    service.ShowDataProperties(&layer);
    const auto lookAt = [this](Form& shown) {
      EXPECT_EQ(std::vector<std::string>{}, LayoutProblems(shown));
      user.CloseBox(shown);
    };
    script.ExpectForm("frmDataClassify", lookAt);
    bool isDirty = false;
    service.ShowDataClassify(&data, 0, 1, 0, isDirty);
    script.ExpectForm("frmDataOptions", lookAt);
    service.ShowDataOptions(&data);
    bool changed = false;
    for (const std::int32_t method : {shadeversion::kDarkening, shadeversion::kSunAndShadow}) {
      shade.HeldShadeVersion = method;
      script.ExpectForm("frmDataShade", lookAt);
      modMain::ShowShadeDialog(desktop(), &shade, changed, language);
    }
    // A number that is longer than its field scrolls.
    isolines.HeldLabelDistance = 0.25;
    script.ExpectForm("frmDataIsoline", lookAt);
    modMain::ShowIsolineDialog(desktop(), &isolines, changed, language);
    script.ExpectForm("frmManageColors", lookAt);
    modMain::ShowColorsDialog(desktop(), language);
    script.ExpectForm("frmGeoreference", lookAt);
    service.ShowGeoReference(&map);
    for (const double rotation : {0.0, -360.0}) {
      CharacterRequest choice{"Map Signs", 255, rotation};
      script.ExpectForm("frmTrueType", lookAt);
      modMain::ShowCharacterDialog(desktop(), choice, language);
    }
    std::vector<std::int32_t> chosen;
    for (const bool several : {false, true}) {
      script.ExpectForm("frmListSelection", lookAt);
      service.ShowListSelection({{"Roads", std::string(200, 'w')}, 1}, several, 1, "Select Layer", false, "", chosen);
    }
    std::string found;
    bool cancelAll = false;
    script.ExpectForm("frmMsgBox", lookAt);
    service.ShowDataFileNotFound("/a long path/with many folders/and & signs/that leads to/missing.vkr", found,
                                 cancelAll);
    const auto progress = std::make_shared<frmProgress>(desktop());
    progress->Language(language);
    progress->Show(ShowMode::Modeless);
    EXPECT_EQ(std::vector<std::string>{}, LayoutProblems(*progress));
    progress->Unload();
  }

  RecordedLegends legends;
  RecordedData data;
  RecordedShade shade;
  RecordedIsolines isolines;
  RecordedMap map;
};

TEST_F(PageLayout, NothingIsCutOffInEnglish) {
  ExpectAllTextShown(nullptr);
}

TEST_F(PageLayout, NothingIsCutOffInAnyLanguage) {
  for (const auto& [name, language] : ReadInstalledLanguages()) {
    SCOPED_TRACE(name);
    ExpectAllTextShown(language.get());
  }
}

TEST_F(PageLayout, ButtonsHaveAirAroundTheirTextsInEachLanguage) {
  const int air = 2 * desktop().ToPixels(60);
  for (const auto& [name, language] : ReadInstalledLanguages()) {
    SCOPED_TRACE(name);
    service.Language(language.get());
    InDialog("frmProperties", [&] {
      for (const char* const button : {"cmdHelp", "cmdOK", "cmdCancel", "cmdApply"}) {
        const TextFit fit = LayoutOfDesktop().FitOf(*form->Find(button), *form);
        EXPECT_LE(fit.Need.Width + air, fit.Room.Width) << button;
      }
    });
    service.ShowProperties(&layer);
  }
}

TEST_F(PageLayout, NothingIsCutOffWhenTextsGrowByAThird) {
  languages::PseudoLanguage pseudo;
  ExpectAllTextShown(&pseudo);
}

TEST_F(PageLayout, NothingIsCutOffFromRightToLeft) {
  languages::PseudoLanguage pseudo(true);
  ExpectAllTextShown(&pseudo);
}

// The dialogs with property pages are designed higher than that.
TEST_F(PageLayout, DialogsWithoutPagesFitAScreenOf1280By800PixelsAtTwiceTheSize) {
  // In twips, with the room that the frames take in the style of the desktop, whatever screen there is.
  const auto fits = [this](Form& shown) {
    const Size frame = desktop().Metrics(shown.Border()).Frame;
    EXPECT_LE(shown.ClientSize().Width + frame.Width, 640 * kTwipsPerPixel) << shown.Name();
    EXPECT_LE(shown.ClientSize().Height + FrameRoom(shown).Growth() + frame.Height, 400 * kTwipsPerPixel)
        << shown.Name();
    user.CloseBox(shown);
  };
  for (const char* const name : {"frmDataOptions", "frmDataIsoline", "frmTrueType"}) script.ExpectForm(name, fits);
  service.ShowDataOptions(&data);
  bool changed = false;
  modMain::ShowIsolineDialog(desktop(), &isolines, changed, nullptr);
  CharacterRequest choice{"Arial", 65, 0};
  modMain::ShowCharacterDialog(desktop(), choice, nullptr);
}

TEST_F(PageLayout, NothingIsCutOffWithTheChoiceOfASymbol) {
  const auto page = MakePage(PageKind::Properties);
  page->Page->CharacterRequested = [](CharacterRequest&) {};
  page->Page->Client(&layer);
  page->Page->RefreshContents();
  languages::PseudoLanguage().TranslateForm(*page);
  page->Show(ShowMode::Modeless);
  EXPECT_EQ(std::vector<std::string>{}, LayoutProblems(*page));
  page->Unload();
}

TEST_F(PageLayout, NothingIsCutOffOnPagesThatOfferAllTheirDialogs) {
  for (const auto& [kind, client] :
       {std::pair<PageKind, HostObject*>{PageKind::DataProperties, &data}, {PageKind::Coordinates, &map}}) {
    const auto page = MakePage(kind);
    HandleAllRequests(*page->Page);
    page->Page->Client(client);
    page->Page->RefreshContents();
    languages::PseudoLanguage().TranslateForm(*page);
    page->Show(ShowMode::Modeless);
    EXPECT_EQ(std::vector<std::string>{}, LayoutProblems(*page)) << PageKindName(kind);
    page->Unload();
  }
}

}  // namespace
}  // namespace orx::test
