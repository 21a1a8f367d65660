// The platform's file dialog, whose texts have 8 bits: true names behind them, and what it leaves behind.
#include <windows.h>

#include <commdlg.h>

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
  EXPECT_EQ(L"plain.shp", win32::TrueName(path, "plain.shp"));
  EXPECT_EQ(L"new.shp", win32::TrueName(path, "new.shp"));
  EXPECT_EQ(win32::Widened("\xD0\x96.shp"), win32::TrueName(path, "?.shp"));
  EXPECT_EQ(std::nullopt, win32::TrueName(path, "??.shp"));
  folder.Add("\xD0\x94.shp");
  EXPECT_EQ(std::nullopt, win32::TrueName(path, "?.shp"));
}

}  // namespace
}  // namespace orx::test
