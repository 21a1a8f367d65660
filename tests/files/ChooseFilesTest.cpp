// Choosing files in the platform's own dialog.
#include "tests/files/FilesTest.h"
#include "text/CharacterCount.h"

namespace orx::test {
namespace {

using Paths = std::vector<std::string>;

/// Marks every text that it is asked for.
class MarkingLanguage final : public ILanguage {
 public:
  explicit MarkingLanguage(std::int32_t entries) : mEntries(entries) {}
  std::int32_t EntryCount() override { return mEntries; }
  std::string TranslateText(const std::string& key) override { return "<" + key + ">"; }
  void TranslateForm(Form&) override {}

 private:
  std::int32_t mEntries;
};

TEST_F(FilesTest, AChosenLayerIsGivenWithItsFullPath) {
  ExpectPick({"roads.shp"});
  EXPECT_TRUE(Choose(kLayers));
  EXPECT_EQ((Paths{folder.PathOf("roads.shp")}), files);
  EXPECT_NE(0, modDialog::LastSystemResult());
}

TEST_F(FilesTest, SeveralLayersAreGivenWithTheirFullPaths) {
  ExpectPick({"a.shp", "b c.shp", "d.mpl"});
  EXPECT_TRUE(Choose(kLayers));
  EXPECT_EQ((Paths{folder.PathOf("a.shp"), folder.PathOf("b c.shp"), folder.PathOf("d.mpl")}), files);
}

TEST_F(FilesTest, OneAcceptedNameAmongSeveralIsEnough) {
  ExpectPick({"a.txt", "b.shp", "c.doc"});
  EXPECT_TRUE(Choose(kLayers));
  EXPECT_EQ(3u, files.size());
}

TEST_F(FilesTest, CancelLeavesEverythingAsItWas) {
  files = {"before"};
  ExpectCancel();
  EXPECT_FALSE(Choose(kLayers));
  EXPECT_EQ(Paths{"before"}, files);
  EXPECT_EQ(0, modDialog::LastSystemResult());
  EXPECT_EQ(1, modDialog::Remembered().LayerFilterIndex);
}

TEST_F(FilesTest, TheFirstDialogsOpenOnTheirFirstFiltersInTheCurrentFolder) {
  const std::u8string current = std::filesystem::current_path().u8string();
  ExpectCancel();
  Choose(kLayers);
  EXPECT_EQ(1, seen.FilterIndex);
  EXPECT_EQ(std::string(current.begin(), current.end()), seen.InitialFolder);
  ExpectCancel();
  Choose(kData);
  EXPECT_EQ(5, seen.FilterIndex);
  EXPECT_EQ(std::string(current.begin(), current.end()), seen.InitialFolder);
}

TEST_F(FilesTest, TheNextDialogOpensWhereTheUserLeftOff) {
  ExpectPick({"map.bil"}, 3);
  EXPECT_TRUE(Choose(kLayers));
  ExpectCancel();
  Choose(kLayers);
  EXPECT_EQ(3, seen.FilterIndex);
  EXPECT_EQ(folder.Path(), seen.InitialFolder);
  ExpectCancel();
  Choose(kData);
  EXPECT_EQ(5, seen.FilterIndex);
  EXPECT_NE(folder.Path(), seen.InitialFolder);
}

TEST_F(FilesTest, AWrongExtensionIsRefusedAndTheFolderRemembered) {
  ExpectPick({"roads.dxf"}, 2);
  script.ExpectMessage({"File has to be an Image layer (*.bmp, *.jpg, *.gif, *.imt).\r\nOperation cancelled.",
                        "File format not supported", MessageIcon::Exclamation});
  files = {"before"};
  EXPECT_FALSE(Choose(kLayers));
  EXPECT_EQ(Paths{"before"}, files);
  EXPECT_EQ(2, modDialog::Remembered().LayerFilterIndex);
  EXPECT_EQ(folder.Path(), modDialog::Remembered().LayerFolder);
}

TEST_F(FilesTest, AVectorLayerThatTheFilterDoesNotShowIsAccepted) {
  ExpectPick({"roads.dxf"}, 1);
  EXPECT_TRUE(Choose(kLayers));
}

TEST_F(FilesTest, DataOfAWrongTypeIsRefusedWithoutATitle) {
  ExpectPick({"notes.txt"});
  script.ExpectMessage(
      {"File has to be a Data file (*.vkr, *.map, *.his, *.bil, *.bip, *.bsq, *.inc).\r\nOperation cancelled.", "",
       MessageIcon::Exclamation});
  EXPECT_FALSE(Choose(kData));
}

TEST_F(FilesTest, AnExtensionMayStandAnywhereInTheName) {
  ExpectPick({"x.MAPPING.txt"});
  EXPECT_TRUE(Choose(kData));
  EXPECT_EQ(Paths{folder.PathOf("x.MAPPING.txt")}, files);
}

TEST_F(FilesTest, TheDialogOpensOnTheFirstNameOfTheList) {
  files = {"old.shp", "other.shp"};
  ExpectCancel();
  Choose(kLayers);
  EXPECT_EQ("old.shp", InitialName(seen));
}

TEST_F(FilesTest, LayersComeInSeveralAndDataAlone) {
  ExpectCancel();
  modDialog::ChooseFiles({desktop(), 0, kLayers, nullptr}, false, files);
  EXPECT_EQ(0x382204u, seen.Flags);
  EXPECT_EQ("Add Layers", seen.Title);
  ExpectCancel();
  modDialog::ChooseFiles({desktop(), 0, kData, nullptr}, true, files);
  EXPECT_EQ(0x382004u, seen.Flags);
  EXPECT_EQ("Open Data", seen.Title);
}

TEST_F(FilesTest, AnActiveLanguageGivesTheTitle) {
  MarkingLanguage active(1);
  ExpectCancel();
  Choose(kLayers, &active);
  EXPECT_EQ("<Add Layers>", seen.Title);
  ExpectCancel();
  Choose(kData, &active);
  EXPECT_EQ("<Open Data>", seen.Title);
  MarkingLanguage empty(0);
  ExpectCancel();
  Choose(kData, &empty);
  EXPECT_EQ("Open Data", seen.Title);
}

TEST_F(FilesTest, ALanguageThatRaisesAnErrorLeavesTheTitle) {
  struct Broken final : ILanguage {
    std::int32_t EntryCount() override { throw std::runtime_error("broken"); }
    std::string TranslateText(const std::string&) override { return {}; }
    void TranslateForm(Form&) override {}
  } broken;
  ExpectCancel();
  Choose(kLayers, &broken);
  EXPECT_EQ("Add Layers", seen.Title);
}

TEST_F(FilesTest, TheBufferHasRoomForEightThousandCharacters) {
  files = {"\xC3\xA4.shp"};
  ExpectCancel();
  Choose(kLayers);
  EXPECT_EQ(8193, CharacterCount(seen.Buffer));
  EXPECT_EQ('\0', seen.Buffer.back());
  EXPECT_EQ(' ', seen.Buffer[100]);
}

TEST_F(FilesTest, ANameLongerThanTheBufferOpensNoDialog) {
  files = {std::string(8193, 'x')};
  EXPECT_FALSE(Choose(kLayers));
  EXPECT_EQ(0, modDialog::LastSystemResult());
}

TEST_F(FilesTest, NamesWithBlanksSignsAndForeignLettersComeBackWhole) {
  for (const char* name : {"two words.shp", "no#1.shp", "a.b.c.shp", "sm\xC3\xB8rrebr\xC3\xB8 2.shp", "100%.shp"}) {
    ExpectPick({name});
    EXPECT_TRUE(Choose(kLayers)) << name;
    EXPECT_EQ(Paths{folder.PathOf(name)}, files);
    files.clear();
  }
}

TEST_F(FilesTest, NamesBeyondTheCodePageComeBackWhole) {
  const char* name = "\xD0\x94\xD0\xBE\xD1\x80\xD0\xBE\xD0\xB3\xD0\xB8 \xE5\x9C\xB0\xE5\x9B\xB3.shp";
  ExpectPick({name});
  EXPECT_TRUE(Choose(kLayers));
  EXPECT_EQ(Paths{folder.PathOf(name)}, files);
}

TEST_F(FilesTest, ALongNameComesBackWhole) {
  const std::string name = std::string(150, 'n') + ".shp";
  ExpectPick({name});
  EXPECT_TRUE(Choose(kLayers));
  EXPECT_EQ(Paths{folder.PathOf(name)}, files);
}

}  // namespace
}  // namespace orx::test
