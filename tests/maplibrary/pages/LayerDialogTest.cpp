// The dialogs with several pages over the map library's pages and its real map: what the user changes there reaches the
// layers, and every text is translated.
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <set>

#include "forms/TreeList.h"
#include "languages/PseudoLanguage.h"
#include "maplibrary/model/SampleMap.h"
#include "tests/maplibrary/pages/CheckedLanguage.h"
#include "tests/maplibrary/pages/PagesTest.h"
#include "tests/support/InstalledLanguages.h"

namespace orx::test {
namespace {

class MapLibraryLayerDialogs : public PagesTest {
 protected:
  TreeList& List() { return Get<TreeList>("sftLayers"); }
  std::vector<std::string> Rows() { return user.SeeRows(List()); }
  /// Shows each of the three dialogs, and does `acts` on each of its tabs.
  template <class Acts>
  void OnEachTab(ILanguage* language, Acts acts) {
    service.Language(language);
    const auto onTabs = [this, acts] {
      for (int tab = 0; tab < Get<TabControl>("ssTab").TabCount(); ++tab) {
        user.SelectTab(Get<TabControl>("ssTab"), tab);
        acts();
      }
    };
    InDialog("frmSettings", onTabs);
    service.Show(map->Layer(1), 0);
    InDialog("frmMapSettings", onTabs);
    service.Show(&layers, 0);
    InDialog("frmDataDialog", onTabs);
    service.ShowDataProperties(map->Layer(1));
  }

  std::unique_ptr<maplibrary::Map> map = maplibrary::MakeSampleMap(ORX_DATA_DIR "/jacksboro.bil");
  maplibrary::Layers layers{*map};
  const InstalledLanguages installed = ReadInstalledLanguages();
};

TEST_F(MapLibraryLayerDialogs, EveryTextIsInTheFileOfEachLanguage) {
  for (const auto& [name, language] : installed) {
    CheckedLanguage checked(*language);
    OnEachTab(&checked, [] {});
    // Tabs are looked up once more by the captions that the translated form has given them.
    for (const char* const tab : {"Label", "Data", "Coordinates"}) checked.Missing.erase(language->TranslateText(tab));
    EXPECT_EQ(std::set<std::string>{}, checked.Missing) << name;
  }
}

TEST_F(MapLibraryLayerDialogs, MnemonicsAreUniqueOnEachTab) {
  languages::PseudoLanguage pseudo;
  std::map<std::string, ILanguage*> all{{"none", nullptr}, {"pseudo", &pseudo}};
  for (const auto& [name, language] : installed) all[name] = language.get();
  for (const auto& [name, language] : all)
    OnEachTab(language, [&, name = name] {
      std::map<char32_t, std::string> owners;
      for (const Control* control : form->All()) {
        if (!control->Mnemonic() || !control->IsShown()) continue;
        const auto [owner, isFirst] = owners.emplace(control->Mnemonic(), control->Name());
        EXPECT_TRUE(isFirst) << name << ", " << form->Name() << ": " << control->Name() << " and " << owner->second;
      }
    });
}

TEST_F(MapLibraryLayerDialogs, EveryInputHasAName) {
  OnEachTab(installed.at("de").get(), [this] {
    for (Control* control : form->All())
      EXPECT_TRUE(!control->IsTabStop() || !control->AccessibleName().empty()) << control->Name();
  });
}

TEST_F(MapLibraryLayerDialogs, OKUntouchedReturnsZero) {
  InDialog("frmSettings", [] {});
  EXPECT_EQ(0, service.Show(map->Layer(1), 0));
  InDialog("frmMapSettings", [] {});
  EXPECT_EQ(0, service.Show(map.get(), 0));
  InDialog("frmDataDialog", [] {});
  EXPECT_EQ(0, service.ShowDataProperties(map->Layer(1)));
}

TEST_F(MapLibraryLayerDialogs, TheLayerManagerListsRealLayersWithTheirTiles) {
  InDialog("frmMapSettings", [this] {
    EXPECT_EQ((std::vector<std::string>{"jacksboro", "Terrain", "Quarters"}), Rows());
    user.Fold(List(), 2);
    EXPECT_EQ(7U, Rows().size());
    user.Click(List(), 3);
    EXPECT_EQ("North-west", Seen("txtName"));
    user.Click(List(), 1);
    EXPECT_EQ("Terrain", Seen("txtName"));
    user.Click(List(), 0);
    EXPECT_FALSE(IsEnabled("txtName"));
  });
  service.Show(&layers, 0);
}

TEST_F(MapLibraryLayerDialogs, ARealLayerIsMovedRenamedAndRemovedWhileTheMapHearsOfIt) {
  int changes = 0;
  map->Changed = [&] { ++changes; };
  InDialog("frmMapSettings", [&] {
    user.Click(List(), 1);
    user.Click(Get<Button>("cmdDown"));
    EXPECT_EQ(1, changes);
    EXPECT_EQ("Terrain", map->LayerName(2));
    Type("txtName", "Hills");
    Press("cmdApply");
    EXPECT_EQ("Hills", map->LayerName(2));
    EXPECT_EQ("Hills", Rows().at(2));
    EXPECT_EQ(std::vector<bool>{true}, callBack.Applied);
    user.Click(List(), 1);
    user.Click(Get<Button>("cmdRemove"));
    EXPECT_EQ(2, changes);
    EXPECT_EQ((std::vector<std::string>{"jacksboro", "Hills"}), Rows());
  });
  EXPECT_EQ(-1, service.Show(&layers, 0));
  EXPECT_EQ(1, map->LayerCount());
}

TEST_F(MapLibraryLayerDialogs, ATileIsRenamedInItsLayer) {
  InDialog("frmMapSettings", [&] {
    user.Fold(List(), 2);
    user.Click(List(), 4);
    Type("txtName", "Corner");
  });
  EXPECT_EQ(-1, service.Show(&layers, 0));
  EXPECT_EQ("Corner", QueryKind<IMap>(map->Layer(2))->LayerName(2));
}

TEST_F(MapLibraryLayerDialogs, AllPagesOfALayerAreSavedAtOnce) {
  InDialog("frmSettings", [&] {
    Type("txtName", "Hills");
    user.SelectTab(Get<TabControl>("ssTab"), 1);
    Toggle("chkShowLabels");
    user.SelectTab(Get<TabControl>("ssTab"), 3);
    Type("txtLeft", "-85");
  });
  EXPECT_EQ(-1, service.Show(map->Layer(1), 0));
  EXPECT_EQ("Hills", map->LayerName(1));
  EXPECT_FALSE(QueryKind<ILabels>(map->Layer(1))->ShowLabels());
  EXPECT_EQ(-85, QueryKind<IExtent>(map->Layer(1))->Left());
}

TEST_F(MapLibraryLayerDialogs, ATiledLayerIsMovedOnTheGroundAsTheMapThatItIs) {
  InDialog("frmMapSettings", [&] {
    user.SelectTab(Get<TabControl>("ssTab"), 3);
    EXPECT_FALSE(user.See(*form->Find("cmdGeoreference")).Visible);
    user.Click(List(), 1);
    // A tiled layer is a map.
    EXPECT_TRUE(user.See(*form->Find("cmdGeoreference")).Visible);
    script.ExpectForm("frmGeoreference", [&](Form& shown) {
      user.Type(dynamic_cast<TextBox&>(*shown.Find("txtInput(1)")), "-80");
      user.Click(dynamic_cast<Button&>(*shown.Find("cmdOK")));
    });
    Press("cmdGeoreference");
    EXPECT_EQ("-80", Seen("txtRight"));
    script.ExpectForm("frmGeoreference",
                      [&](Form& shown) { user.Click(dynamic_cast<Button&>(*shown.Find("cmdCancel"))); });
    Press("cmdGeoreference");
  });
  EXPECT_EQ(-1, service.Show(map.get(), 0));
  EXPECT_EQ(-80, QueryKind<IExtent>(map->Layer(2))->Right());
}

TEST_F(MapLibraryLayerDialogs, AChosenFileThatIsNoGridAnyMoreIsNamedAndTheDialogEndsByItsRule) {
  namespace fs = std::filesystem;
  const fs::path folder =
      fs::weakly_canonical(fs::temp_directory_path()) / ("orx" + std::to_string(std::random_device()()));
  fs::create_directories(folder);
  std::ofstream(folder / "notes.bil") << "no grid";
  std::ofstream(folder / "notes.hdr") << "NROWS 1\nNCOLS 7\n";
  std::vector<Message> boxes;
  script.Noted = &boxes;
  InDialog("frmDataDialog", [this, folder] {
    const std::string before = Seen("txtFile");
    script.ExpectFiles([this, folder](OpenFileRequest& request) {
      user.PickFiles(request, {folder.string(), {"notes.bil"}});
    });
    Press("cmdBrowse");
    EXPECT_NE(before, Seen("txtFile"));
    fs::remove(folder / "notes.hdr");
    Press("cmdOK");
    EXPECT_FALSE(form->Visible());
    EXPECT_EQ(Pointer::Default, desktop().Pointer());
  });
  EXPECT_EQ(0, service.ShowDataProperties(map->Layer(1)));
  script.Noted = nullptr;
  fs::remove_all(folder);
  ASSERT_EQ(1U, boxes.size());
  EXPECT_EQ("Data Classify", boxes[0].Title);
  EXPECT_TRUE(boxes[0].Text.starts_with("Not everything could be saved:\r\nData file \"")) << boxes[0].Text;
  EXPECT_NE(std::string::npos, boxes[0].Text.find("notes.bil\": ")) << boxes[0].Text;
  EXPECT_EQ(std::vector{false}, callBack.Confirmed);
}

}  // namespace
}  // namespace orx::test
