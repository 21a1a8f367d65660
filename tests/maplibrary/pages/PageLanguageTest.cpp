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
#include "tests/support/InstalledLanguages.h"
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
  const InstalledLanguages installed = ReadInstalledLanguages();
};

INSTANTIATE_TEST_SUITE_P(Dialogs, MapLibraryLanguagePages, testing::ValuesIn(kDialogs),
                         [](const auto& dialog) { return dialog.param.Form; });

TEST_P(MapLibraryLanguagePages, EveryTextIsInTheFileOfEachLanguage) {
  for (const auto& [name, language] : installed) {
    CheckedLanguage checked(*language);
    Look(&checked, [] {});
    // It changes with each character and is never shown.
    checked.Missing.erase("Selected character: 65");
    EXPECT_EQ(std::set<std::string>{}, checked.Missing) << name;
  }
}

TEST_P(MapLibraryLanguagePages, MnemonicsAreUniqueInEachLanguage) {
  for (const auto& [name, language] : installed)
    Look(language.get(), [&, name = name] { EXPECT_EQ("", DoubleMnemonics()) << name; });
  PseudoLanguage pseudo;
  // The designed texts of this one have two doubles, between which the key goes to and fro.
  const char* const doubles = std::string_view(GetParam().Form) == "frmDataIsoline" ? "co" : "";
  for (ILanguage* language : std::initializer_list<ILanguage*>{nullptr, &pseudo})
    Look(language, [&] { EXPECT_EQ(doubles, DoubleMnemonics()); });
}

TEST_P(MapLibraryLanguagePages, EveryInputHasItsNameInEachLanguage) {
  for (const auto& [name, language] : installed)
    Look(language.get(), [&, name = name] {
      for (Control* control : form->All())
        EXPECT_TRUE(!control->IsTabStop() || !control->AccessibleName().empty()) << name << ": " << control->Name();
    });
}

TEST_P(MapLibraryLanguagePages, TranslatingTwiceChangesNothing) {
  const auto texts = [this] {
    std::vector<std::string> all;
    for (Control* control : form->All()) {
      all.push_back(control->Caption());
      if (auto* const list = dynamic_cast<ListControl*>(control); list && list->HasWords())
        for (int entry = 0; entry < list->ListCount(); ++entry) all.push_back(list->List(entry));
    }
    return all;
  };
  PseudoLanguage pseudo;
  for (ILanguage* language : std::initializer_list<ILanguage*>{installed.at("de").get(), &pseudo})
    Look(language, [&] {
      const std::vector<std::string> before = texts();
      language->TranslateForm(*form);
      EXPECT_EQ(before, texts());
    });
}

class MapLibraryLanguageGerman : public PagesTest {
 protected:
  TextLanguage german{std::filesystem::path(ORX_DATA_DIR "/languages/de.txt")};
};

/// The file of a language.
class MapLibraryLanguageFile : public testing::Test {
 protected:
  const InstalledLanguages installed = ReadInstalledLanguages();
};

TEST_F(MapLibraryLanguageFile, HasTheTextsOfAllMessages) {
  for (const auto& [name, language] : installed) {
    for (const char* text : fieldtexts::kAll) EXPECT_TRUE(language->HasText(text)) << name << ": " << text;
    for (const char* text : pages::pagetexts::kAll) EXPECT_TRUE(language->HasText(text)) << name << ": " << text;
    EXPECT_TRUE(language->HasText("Unable to display Help. There is no Help associated with this project.")) << name;
  }
}

TEST_F(MapLibraryLanguageFile, HasTheTextsThatEachOtherLanguageHas) {
  ASSERT_EQ(3U, installed.size());
  for (const auto& [name, language] : installed)
    for (const auto& [key, text] : installed.at("de")->Texts())
      EXPECT_TRUE(language->HasText(key)) << name << ": " << key;
  for (const auto& [name, language] : installed)
    EXPECT_EQ(installed.at("de")->EntryCount(), language->EntryCount()) << name;
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

TEST_F(MapLibraryLanguageFile, KeepsThePlacesOfEachText) {
  for (const auto& [name, language] : installed)
    for (const auto& [key, text] : language->Texts())
      for (const char* place : {"{1}", "{2}", "{3}", "{4}"})
        EXPECT_EQ(key.find(place) != std::string::npos, text.find(place) != std::string::npos) << name << ": " << key;
}

TEST_F(MapLibraryLanguageFile, HasAMnemonicWhereTheEnglishTextHasOne) {
  for (const auto& [name, language] : installed)
    for (const auto& [key, text] : language->Texts())
      EXPECT_EQ(key.find('&') != std::string::npos, text.find('&') != std::string::npos) << name << ": " << key;
}

TEST_F(MapLibraryLanguageFile, HasNoTranslationThatIsTheKeyOfAnother) {
  for (const auto& [name, language] : installed)
    for (const auto& [key, text] : language->Texts())
      EXPECT_EQ(text, language->TranslateText(text)) << name << ": " << key;
}

TEST_F(MapLibraryLanguageGerman, TheListsOfShadingAndIsolinesAreTranslatedAndTheirCodesStay) {
  RecordedShade shade;
  RecordedIsolines isolines;
  bool changed = false;
  shade.HeldCombineColors = 2;
  InDialog("frmDataShade", [this] {
    EXPECT_EQ("Schatten und Gerät", Seen("cmbCombine"));
    EXPECT_EQ("Sonne und Schatten", Seen("cmbShadeVersion"));
    user.Choose(Get<ComboBox>("cmbCombine"), 1);
    EXPECT_EQ("Schatten und Farben", Seen("cmbCombine"));
  });
  EXPECT_TRUE(modMain::ShowShadeDialog(desktop(), &shade, changed, &german));
  EXPECT_EQ(1, shade.HeldCombineColors);
  InDialog("frmDataIsoline", [this] {
    user.Choose(Get<ComboBox>("cmbLineStyle"), 1);
    EXPECT_EQ("Gestrichelt", Seen("cmbLineStyle"));
    // Numbers are no words.
    EXPECT_EQ("0.1", Get<ComboBox>("cmbLabelDistance").List(0));
  });
  EXPECT_TRUE(modMain::ShowIsolineDialog(desktop(), &isolines, changed, &german));
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
