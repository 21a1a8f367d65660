// The platform's file dialog, whose texts have 8 bits: true names behind them, and what it leaves behind.
#include <windows.h>

#include <commdlg.h>

#include <chrono>

#include "desktops/win32/CodePage.h"
#include "desktops/win32/Text.h"
#include "tests/files/FilesTest.h"

namespace orx::test {
namespace {

using Win32Files = FilesTest;

TEST_F(Win32Files, TheProcessKeepsItsCurrentFolder) {
  const std::filesystem::path before = std::filesystem::current_path();
  ExpectPick({"a.shp", "b.shp"});
  EXPECT_TRUE(Choose(kLayers));
  ExpectCancel();
  EXPECT_FALSE(Choose(kLayers));
  EXPECT_EQ(before, std::filesystem::current_path());
}

TEST_F(Win32Files, ANameThatTwoFilesCouldHaveIsRefusedWithAMessage) {
  folder.Add("\xD0\x96.shp");
  ExpectPick({"\xD0\x94.shp"});
  script.ExpectMessage(
      {"The file \"?.shp\" has characters in its name that cannot be told apart here. Rename it, or choose it alone.",
       "Add Layers", MessageIcon::Exclamation});
  files = {"before"};
  EXPECT_FALSE(Choose(kLayers));
  EXPECT_EQ(std::vector<std::string>{"before"}, files);
}

TEST_F(Win32Files, AFolderBeyondTheCodePageComesBackWhole) {
  const std::string inner = folder.PathOf("\xD0\x9A\xD0\xB0\xD1\x80\xD1\x82\xD1\x8B");
  std::filesystem::create_directory(std::filesystem::path(std::u8string(inner.begin(), inner.end())));
  folder.Add("\xD0\x9A\xD0\xB0\xD1\x80\xD1\x82\xD1\x8B\\roads.shp");
  script.ExpectFiles([&](OpenFileRequest& request) { user.PickFiles(request, {inner, {"roads.shp"}, 0}); });
  EXPECT_TRUE(Choose(kLayers));
  EXPECT_EQ(std::vector<std::string>{inner + "\\roads.shp"}, files);
  EXPECT_EQ(inner, modDialog::Remembered().LayerFolder);
}

TEST(Win32FileRequest, TheStructureHasTheSizeOfItsFirstVersion) {
  EXPECT_EQ(sizeof(void*) == 8 ? 136u : 76u, OPENFILENAME_SIZE_VERSION_400A);
}

TEST_F(Win32Files, TheTrueNameIsThatOfTheOnlyFileThatItCanBe) {
  const std::wstring path = win32::Widened(folder.Path());
  folder.Add("plain.shp");
  folder.Add("\xD0\x96.shp");
  const win32::FolderNames names(path);
  EXPECT_EQ(L"plain.shp", names.TrueName("plain.shp"));
  EXPECT_EQ(L"new.shp", names.TrueName("new.shp"));
  EXPECT_EQ(win32::Widened("\xD0\x96.shp"), names.TrueName("?.shp"));
  EXPECT_EQ(std::nullopt, names.TrueName("??.shp"));
  folder.Add("\xD0\x94.shp");
  EXPECT_EQ(std::nullopt, win32::FolderNames(path).TrueName("?.shp"));
}

class Win32ManyFiles : public Win32Files {
 protected:
  using Clock = std::chrono::steady_clock;

  Win32ManyFiles() {
    for (int other = 0; other < 500; ++other) folder.Add("other" + std::to_string(other) + ".txt");
    for (int file = 100; file < 400; ++file) names.push_back(std::to_string(file) + ".shp");
  }

  /// How long it takes to choose the first files.
  Clock::duration TimeFor(std::size_t count) {
    const std::vector<std::string> chosen(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(count));
    ExpectPick(chosen);
    const Clock::time_point start = Clock::now();
    EXPECT_TRUE(Choose(kLayers));
    const Clock::duration taken = Clock::now() - start;
    EXPECT_EQ(files.size(), count);
    return taken;
  }
  Clock::duration TimeToList() const {
    const Clock::time_point start = Clock::now();
    const win32::FolderNames listed(win32::Widened(folder.Path()));
    return Clock::now() - start;
  }

  std::vector<std::string> names;
};

TEST_F(Win32ManyFiles, TheNamesOfManyChosenFilesDoNotCostAListingOfTheFolderEach) {
  TimeFor(2);  // The first dialog of a process takes longer.
  const Clock::duration few = TimeFor(2);
  const Clock::duration many = TimeFor(300);
  EXPECT_LT(many - few, 100 * TimeToList());
}

}  // namespace
}  // namespace orx::test
