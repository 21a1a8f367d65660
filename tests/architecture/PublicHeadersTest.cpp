// The border between what hosts include and what is internal: a short list, named here once more so that nobody moves
// it without noticing.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>

#include "tests/architecture/SourceTree.h"

namespace orx::test {
namespace {

constexpr std::size_t kMostPublicHeaders = 60;

const std::set<std::string> kPublicHeaders = {
    // The services.
    "CCommonMapDialogs.h", "CCommonProgressDialog.h",
    // What a host implements.
    "BorrowedObject.h", "HostObject.h", "IData.h", "IDialogCallBack.h", "IFileCheck.h", "IGridSettings.h",
    "ILanguage.h", "IMap.h", "PropertyPage.h", "RunTimeError.h", "TextArray.h",
    // Forms and controls, for pages, languages and hooks.
    "Appearance.h", "Button.h", "Canvas.h", "CheckBox.h", "ComboBox.h", "Container.h", "Control.h", "Desktop.h",
    "DesktopHook.h", "Event.h", "Form.h", "FormWindow.h", "Frame.h", "Geometry.h", "Glyph.h", "Image.h", "Keys.h",
    "Label.h", "ListBox.h", "ListControl.h", "Marks.h", "Message.h", "NativeDesktop.h", "Panel.h", "PictureBox.h",
    "ProgressBar.h", "Requests.h", "RowList.h", "SettingsStore.h", "TabControl.h", "TextBox.h", "TreeList.h",
    "Numbers.h",
    // The desktops.
    "HeadlessDesktop.h", "QtDesktop.h", "Win32Desktop.h",
    // The embedded host.
    "FormLanguage.h", "TextLanguage.h", "DrawMap.h", "GroundRect.h", "LayerStack.h", "Legend.h", "Map.h", "MapLayer.h",
    "PlacedExtent.h", "SampleMap.h", "PageFactory.h"};

/// The public headers by their paths under src/.
std::vector<std::string> Listed() {
  std::vector<std::string> listed;
  std::istringstream lines(ReadSource("cmake/PublicHeaders.txt").Text);
  for (std::string line; std::getline(lines, line);) listed.push_back(line);
  return listed;
}

TEST(PublicHeaders, AreThoseThatAreNamedHere) {
  std::set<std::string> names;
  for (const std::string& path : Listed()) {
    const std::string name = std::filesystem::path(path).filename().string();
    EXPECT_TRUE(names.insert(name).second) << name << " would stand twice in one folder";
  }
  EXPECT_EQ(names, kPublicHeaders);
  EXPECT_LE(names.size(), kMostPublicHeaders);
}

TEST(PublicHeaders, IncludeEachOtherAndTheStandardLibraryOnly) {
  const std::vector<std::string> listed = Listed();
  for (const std::string& path : listed) {
    const SourceFile header = ReadSource("src/" + path);
    EXPECT_FALSE(header.Text.empty()) << path << " does not exist";
    for (const std::string& include : header.QuotedIncludes())
      EXPECT_TRUE(std::ranges::count(listed, include)) << path << " includes the internal header " << include;
    for (const std::string& include : header.AngledIncludes())
      EXPECT_EQ(include.find_first_of("./"), std::string::npos) << path << " includes <" << include << ">";
  }
}

TEST(PublicHeaders, AreAllThatTheSmallestHostIncludes) {
  for (const char* const host : {"examples/minimal/main.cpp", "tests/install/main.cpp"}) {
    const SourceFile source = ReadSource(host);
    EXPECT_TRUE(source.QuotedIncludes().empty()) << host;
    std::size_t fromHere = 0;
    for (const std::string& include : source.AngledIncludes()) {
      if (!include.starts_with("orx/")) continue;
      ++fromHere;
      EXPECT_TRUE(kPublicHeaders.contains(include.substr(4))) << host << " includes " << include;
    }
    EXPECT_GE(fromHere, 3u) << host;
  }
}

}  // namespace
}  // namespace orx::test
