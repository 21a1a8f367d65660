// The rules behind the dialog: filters, accepted extensions, and how an answer is taken apart.
#include "desktops/headless/HeadlessDesktop.h"
#include "tests/files/FilesTest.h"

namespace orx::test {
namespace {

using modDialog::IsAccepted;
using Parts = std::vector<std::string>;

constexpr auto kLayers = modDialog::FileKind::Layers;
constexpr auto kData = modDialog::FileKind::Data;

constexpr const char* kExtensions[] = {"vkr", "map", "bil", "bip", "bsq", "inc", "his", "mpl", "mpt", "shp",
                                       "bna", "dxf", "mif", "mos", "bmp", "jpg", "gif", "ecw", "sid", "imt",
                                       "dem", "flt", "lan", "gis", "asc", "grt", "lst", "txt"};

bool IsListed(const std::string& list, const std::string& extension) {
  return (" " + list + " ").find(" " + extension + " ") != std::string::npos;
}

TEST(FileRules, EachFilterAcceptsItsExtensionsInLettersOfEitherCase) {
  const std::pair<int, const char*> layers[] = {{1, "mpl mpt shp bna dxf mif mos"},
                                                {2, "bmp jpg gif ecw sid imt"},
                                                {3, "dem bil bip bsq flt lan gis asc grt"},
                                                {4, "lst"}};
  for (const std::string extension : kExtensions) {
    for (const auto& [filter, list] : layers) {
      EXPECT_EQ(IsListed(list, extension), IsAccepted(kLayers, filter, "C:\\x." + extension)) << filter << extension;
      EXPECT_EQ(IsListed(list, extension), IsAccepted(kLayers, filter, "X." + extension + "x")) << filter << extension;
    }
    for (int filter = 1; filter <= 5; ++filter)
      EXPECT_EQ(IsListed("vkr map bil bip bsq inc his", extension), IsAccepted(kData, filter, "x." + extension));
  }
  EXPECT_TRUE(IsAccepted(kLayers, 1, "x.ShP"));
}

TEST(FileRules, AFilterThatDoesNotExistAcceptsEverything) {
  EXPECT_TRUE(IsAccepted(kLayers, 0, "x.txt"));
  EXPECT_TRUE(IsAccepted(kLayers, 5, "x.txt"));
  EXPECT_FALSE(IsAccepted(kData, 9, "x.txt"));
}

TEST(FileRules, AnAnswerIsSplitAtItsNuls) {
  EXPECT_EQ((Parts{"C:\\a", "b.shp", "c.shp"}), modDialog::SplitAnswer(std::string("C:\\a\0b.shp\0c.shp", 16)));
  EXPECT_EQ((Parts{"C:\\a.shp"}), modDialog::SplitAnswer("C:\\a.shp"));
  EXPECT_EQ((Parts{""}), modDialog::SplitAnswer(""));
}

TEST(FileRules, AQuotedPartIsNotSplit) {
  EXPECT_EQ((Parts{std::string("\"a\0b\"", 5), "c"}), modDialog::SplitAnswer(std::string("\"a\0b\"\0c", 7)));
}

TEST(FileRules, AQuoteInsideANameIsALetterLikeOthers) {
  EXPECT_EQ((Parts{"/a\"b", "c", "d\""}), modDialog::SplitAnswer(std::string("/a\"b\0c\0d\"", 9)));
  EXPECT_EQ((Parts{"\"open", "b"}), modDialog::SplitAnswer(std::string("\"open\0b", 7)));
}

TEST_F(FilesTest, TheFiltersAreThoseOfTheirKind) {
  ExpectCancel();
  Choose(kLayers);
  const std::vector<FileFilter> layers = FiltersOf(seen);
  ASSERT_EQ(4u, layers.size());
  EXPECT_EQ("Image (*.bmp,*.jpg,*.gif, *.ecw, *.sid, *.imt)", layers[1].Text);
  EXPECT_EQ((Parts{"*.bmp", "*.jpg", "*.gif", "*.ecw", "*.sid", "*.imt"}), layers[1].Patterns);
  EXPECT_EQ("List (*.lst)", layers[3].Text);
  EXPECT_NE(std::string::npos, seen.Filter.find("*.bmp;*.jpg;*.gif;*.ecw; *.sid; *.imt"));
  EXPECT_TRUE(seen.Filter.ends_with(std::string("*.lst\0\0\0", 8)));
  ExpectCancel();
  Choose(kData);
  const std::vector<FileFilter> data = FiltersOf(seen);
  ASSERT_EQ(5u, data.size());
  EXPECT_EQ("All Files (*.*)", data[4].Text);
  EXPECT_EQ((Parts{"*.vkr", "*.his", "*.bil", "*.bip", "*.bsq", "*.inc"}), data[4].Patterns);
}

/// A desktop on which the same files are chosen whenever they are asked for.
class ChoosingDesktop final : private DesktopHook {
 public:
  ChoosingDesktop(std::string folder, Parts names) : mFolder(std::move(folder)), mNames(std::move(names)) {
    Screen.Hook(this);
  }

  headless::HeadlessDesktop Screen;
  Parts Messages;

 private:
  void ModalRunning(const Modal& modal) override {
    if (modal.ShownMessage) Messages.push_back(modal.ShownMessage->Title + ": " + modal.ShownMessage->Text);
    if (modal.ShownFiles) PutAnswer(*modal.ShownFiles, mFolder, mNames);
  }

  std::string mFolder;
  Parts mNames;
};

TEST(FileRules, SeveralFilesInTheRootOfADriveHaveTwoSeparators) {
  ChoosingDesktop desktop("C:\\", {"a.shp", "b.shp"});
  Parts files;
  EXPECT_TRUE(modDialog::ChooseFiles({desktop.Screen, 0, kLayers, nullptr}, false, files));
  EXPECT_EQ((Parts{"C:\\\\a.shp", "C:\\\\b.shp"}), files);
}

TEST(FileRules, MoreNamesThanTheBufferHoldsAreRefusedWithAMessage) {
  ChoosingDesktop desktop("C:\\maps", Parts(200, std::string(50, 'n') + ".shp"));
  Parts files{"before"};
  EXPECT_FALSE(modDialog::ChooseFiles({desktop.Screen, 0, kLayers, nullptr}, false, files));
  EXPECT_EQ(Parts{"before"}, files);
  EXPECT_EQ(Parts{"Add Layers: The names of these files are too long together. Choose fewer files at a time."},
            desktop.Messages);
}

TEST(FileRules, OneFileInTheRootOfADriveHasOneSeparator) {
  ChoosingDesktop desktop("C:\\", {"a.shp"});
  Parts files;
  EXPECT_TRUE(modDialog::ChooseFiles({desktop.Screen, 0, kLayers, nullptr}, false, files));
  EXPECT_EQ((Parts{"C:\\a.shp"}), files);
}

TEST(OpenFileRequests, AnAnswerTooLongForTheBufferIsRefusedAndLeavesIt) {
  OpenFileRequest request;
  request.Buffer = std::string(20, ' ') + '\0';
  EXPECT_THROW(PutAnswer(request, "C:\\a folder", {"one.shp", "two.shp"}), AnswerRefused);
  EXPECT_EQ(std::string(20, ' ') + '\0', request.Buffer);
  PutAnswer(request, "C:\\a", {"one.shp", "b"});
  EXPECT_EQ(std::string("C:\\a\0one.shp\0b\0\0", 16), request.Buffer);
}

}  // namespace
}  // namespace orx::test
