// The pages in other languages: every text is translated, and mnemonics stay unique.
#include <map>
#include <set>

#include "forms/FieldTexts.h"
#include "languages/PseudoLanguage.h"
#include "languages/TextLanguage.h"
#include "pages/PageTexts.h"
#include "service/modMain.h"
#include "tests/maplibrary/pages/CheckedLanguage.h"
#include "tests/maplibrary/pages/PagesTest.h"
#include "tests/support/RecordedData.h"
#include "tests/support/RecordedGrid.h"

namespace orx::test {
namespace {

using languages::PseudoLanguage;
using languages::TextLanguage;

struct Dialog {
  const char* Form;
  std::int32_t (*Show)(CCommonMapDialogs& service, HostObject* client);
};

constexpr Dialog kDialogs[] = {
    {"frmProperties", [](CCommonMapDialogs& service, HostObject* client) { return service.ShowProperties(client); }},
    {"frmLabels", [](CCommonMapDialogs& service, HostObject* client) { return service.ShowLabels(client); }},
    {"frmCoordinates", [](CCommonMapDialogs& service, HostObject* client) { return service.ShowCoordinates(client); }},
    {"frmLegend", [](CCommonMapDialogs& service, HostObject* client) { return service.ShowLegends(client); }},
    {"frmDataClassify",
     [](CCommonMapDialogs& service, HostObject* client) {
       bool isDirty = false;
       return service.ShowDataClassify(client, 0, 1, 0, isDirty);
     }},
    {"frmDataOptions", [](CCommonMapDialogs& service, HostObject* client) { return service.ShowDataOptions(client); }},
    {"frmDataShade", nullptr},
    {"frmDataIsoline", nullptr},
    {"frmGeoreference",
     [](CCommonMapDialogs& service, HostObject* client) { return service.ShowGeoReference(client); }},
    {"frmTrueType", [](CCommonMapDialogs& service, HostObject*) {
       std::string font = "Map Signs";
       std::int32_t character = 'A';
       double rotation = 0;
       bool changed = false;
       return service.ShowCharacterSelection(font, character, rotation, changed);
     }}};

class MapLibraryLanguagePages : public PagesTest, public testing::WithParamInterface<Dialog> {
 protected:
  MapLibraryLanguagePages() { legends.Legends.emplace_back(legends.Log, "Elevation"); }

  /// Shows the dialog in that language, has `acts` look at it, and closes it with OK.
  template <class Acts>
  void Look(ILanguage* language, Acts acts) {
    service.Language(language);
    bool changed = false;
    if (std::string_view(GetParam().Form) == "frmDataShade") {
      InDialog(GetParam().Form, acts);
      modMain::ShowShadeDialog(desktop(), &shade, changed, language);
      return;
    }
    if (std::string_view(GetParam().Form) == "frmDataIsoline") {
      InDialog(GetParam().Form, acts);
      modMain::ShowIsolineDialog(desktop(), &isolines, changed, language);
      return;
    }
    if (std::string_view(GetParam().Form).starts_with("frmData")) {
      InDialog(GetParam().Form, acts);
      GetParam().Show(service, &data);
      return;
    }
    InDialog(GetParam().Form, acts);
    const std::string_view name = GetParam().Form;
    HostObject* const client = name == "frmLegend"         ? &legends
                               : name == "frmGeoreference" ? &map
                                                           : static_cast<HostObject*>(&layer);
    GetParam().Show(service, client);
  }
  /// The mnemonics of the form that are there more than once.
  std::string DoubleMnemonics() {
    std::map<char32_t, int> counts;
    for (Control* control : form->All()) ++counts[control->Mnemonic()];
    std::string doubles;
    for (const auto& [letter, count] : counts)
      if (letter && count > 1) doubles += static_cast<char>(letter);
    return doubles;
  }

  RecordedLegends legends;
  RecordedData data;
  RecordedShade shade;
  RecordedIsolines isolines;
  RecordedMap map;
  TextLanguage german{std::filesystem::path(ORX_DATA_DIR "/languages/de.txt")};
};

INSTANTIATE_TEST_SUITE_P(Dialogs, MapLibraryLanguagePages, testing::ValuesIn(kDialogs),
                         [](const auto& dialog) { return dialog.param.Form; });

TEST_P(MapLibraryLanguagePages, EveryTextIsInTheGermanFile) {
  CheckedLanguage checked(german);
  Look(&checked, [] {});
  // It changes with each character and is never shown.
  checked.Missing.erase("Selected character: 65");
  EXPECT_EQ(std::set<std::string>{}, checked.Missing);
}

TEST_P(MapLibraryLanguagePages, MnemonicsAreUniqueInEnglishGermanAndPseudo) {
  PseudoLanguage pseudo;
  for (ILanguage* language : std::initializer_list<ILanguage*>{nullptr, &german, &pseudo})
    Look(language, [this, language] {
      // The designed texts of this one have two doubles, between which the key goes to and fro.
      const bool hasDoubles = std::string_view(GetParam().Form) == "frmDataIsoline" && language != &german;
      EXPECT_EQ(hasDoubles ? "co" : "", DoubleMnemonics());
    });
}

TEST_P(MapLibraryLanguagePages, EveryInputHasItsNameInGerman) {
  Look(&german, [this] {
    for (Control* control : form->All())
      EXPECT_TRUE(!control->IsTabStop() || !control->AccessibleName().empty()) << control->Name();
  });
}

TEST_P(MapLibraryLanguagePages, TranslatingTwiceChangesNothing) {
  PseudoLanguage pseudo;
  for (ILanguage* language : std::initializer_list<ILanguage*>{&german, &pseudo})
    Look(language, [this, language] {
      std::vector<std::string> before, after;
      for (Control* control : form->All()) before.push_back(control->Caption());
      language->TranslateForm(*form);
      for (Control* control : form->All()) after.push_back(control->Caption());
      EXPECT_EQ(before, after);
    });
}

class MapLibraryLanguageGerman : public PagesTest {
 protected:
  TextLanguage german{std::filesystem::path(ORX_DATA_DIR "/languages/de.txt")};
};

TEST_F(MapLibraryLanguageGerman, HasTheTextsOfAllMessages) {
  for (const char* text : fieldtexts::kAll) EXPECT_TRUE(german.HasText(text)) << text;
  for (const char* text : pages::pagetexts::kAll) EXPECT_TRUE(german.HasText(text)) << text;
  EXPECT_TRUE(german.HasText("Unable to display Help. There is no Help associated with this project."));
}

TEST_F(MapLibraryLanguageGerman, TheColorSchemesAndThePageOfTheDataAreTranslated) {
  CheckedLanguage checked(german);
  script.ExpectForm("frmManageColors", [this](Form& shown) {
    EXPECT_EQ(" &Grundfarben ", shown.Find("fraBasicColor")->Caption());
    user.CloseBox(shown);
  });
  EXPECT_TRUE(modMain::ShowColorsDialog(desktop(), &checked));
  RecordedData data;
  const auto page = MakePage(PageKind::DataProperties);
  HandleAllRequests(*page->Page);
  page->Page->Client(&data);
  page->Page->Language(&checked);
  page->Page->RefreshContents();
  checked.TranslateForm(*page);
  EXPECT_EQ("Gleiche Intervalle", Get<TextBox>("txtMethod").Text());
  // The form of the test, and the marks beside the colours.
  checked.Missing.erase("Page");
  checked.Missing.erase("\xE2\x80\xA2");
  EXPECT_EQ(std::set<std::string>{}, checked.Missing);
  std::set<char32_t> letters;
  for (const Control* const control : page->All()) {
    if (!control->Mnemonic()) continue;
    EXPECT_TRUE(letters.insert(control->Mnemonic()).second) << control->Name();
  }
}

TEST_F(MapLibraryLanguageGerman, KeepsThePlacesOfEachText) {
  for (const auto& [key, text] : german.Texts())
    for (const char* place : {"{1}", "{2}", "{3}", "{4}"})
      EXPECT_EQ(key.find(place) != std::string::npos, text.find(place) != std::string::npos) << key;
}

TEST_F(MapLibraryLanguageGerman, HasAMnemonicWhereTheEnglishTextHasOne) {
  for (const auto& [key, text] : german.Texts())
    EXPECT_EQ(key.find('&') != std::string::npos, text.find('&') != std::string::npos) << key;
}

TEST_F(MapLibraryLanguageGerman, NoTranslationIsTheKeyOfAnother) {
  for (const auto& [key, text] : german.Texts()) EXPECT_EQ(text, german.TranslateText(text)) << key;
}

TEST_F(MapLibraryLanguageGerman, ListsAndMessagesAreTranslated) {
  service.Language(&german);
  InDialog("frmLabels", [this] {
    EXPECT_EQ("Darüber", Seen("cboPosition"));
    EXPECT_EQ("Rot", Seen("cboColor"));
    Type("txtSize", "0");
    Press("cmdOK");
  });
  ExpectRefusal("Falscher Wert", "Größe: 0 ist nicht zulässig. Geben Sie eine Zahl von 1 bis 144 ein.");
  service.ShowLabels(&layer);
}

TEST_F(MapLibraryLanguageGerman, ListsTurnBackToEnglishWithoutALanguage) {
  const auto page = MakePage(PageKind::LabelProperties);
  page->Page->Client(&layer);
  page->Page->Language(&german);
  page->Page->RefreshContents();
  EXPECT_EQ("Darüber", Get<ComboBox>("cboPosition").Text());
  page->Page->Language(nullptr);
  EXPECT_EQ("Above", Get<ComboBox>("cboPosition").Text());
  page->Page->SaveChanges();
  EXPECT_EQ(Calls{}, layer.Log.Calls);
}

TEST_F(MapLibraryLanguageGerman, TabsAndToolTipsAreTranslated) {
  service.Language(&german);
  InDialog("frmProperties", [this] {
    EXPECT_EQ("Ebeneneigenschaften", user.SeeCaption(*form));
    EXPECT_EQ("Eigenschaften", Seen("ssTab"));
    EXPECT_EQ("Vorschau", form->Find("pctSymbol")->ToolTipText());
    EXPECT_EQ("/data/jacksboro.bil", form->Find("txtSource")->ToolTipText());
  });
  service.ShowProperties(&layer);
}

}  // namespace
}  // namespace orx::test
