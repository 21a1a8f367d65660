// Browse in the dialog for the data of a layer: a file that cannot be data is refused with the reason, and the dialog
// stays as it was.
#include "maplibrary/model/Layer.h"
#include "pages/PageFactory.h"
#include "propertydialogs/frmDataDialog.h"
#include "service/CCommonMapDialogs.h"
#include "tests/files/FilesTest.h"

namespace orx::test {
namespace {

class BrowseForData : public FilesTest {
 protected:
  BrowseForData() {
    Write("old.hdr", "NROWS 1\nNCOLS 1\n");
    folder.Add("old.bil");
    layer = maplibrary::ReadLayer(folder.PathOf("old.bil"));
  }
  ~BrowseForData() override { CCommonMapDialogs::FileCheck(nullptr); }

  void Write(const std::string& name, const std::string& text) {
    std::ofstream(std::filesystem::u8path(folder.PathOf(name)), std::ios::binary) << text;
  }
  /// Has the user browse for a file, which gets the single byte of a blank, and confirm the dialog.
  std::int32_t Browse(const std::string& name) {
    script.ExpectForm("frmDataDialog", [&](Form& form) {
      ExpectPick({name});
      if (!refusal.empty()) script.ExpectMessage({refusal, "Data Classify", MessageIcon::Exclamation});
      user.Click(dynamic_cast<Button&>(*form.Find("cmdBrowse")));
      ASSERT_TRUE(form.Visible());
      shown = user.See(*form.Find("txtFile")).Text;
      user.Click(dynamic_cast<Button&>(*form.Find("cmdOK")));
    });
    return service.ShowDataProperties(layer.get());
  }
  std::string DataFile() { return layer->Data()->FileName(); }

  pages::PageFactory pages;
  CCommonMapDialogs service{desktop(), pages};
  std::unique_ptr<maplibrary::Layer> layer;
  std::string refusal;
  std::string shown;
};

TEST_F(BrowseForData, AGridIsTakenAndReadOnOK) {
  Write("new.hdr", "NROWS 1\nNCOLS 1\n");
  EXPECT_EQ(-1, Browse("new.bil"));
  EXPECT_EQ(folder.PathOf("new.bil"), shown);
  EXPECT_EQ(folder.PathOf("new.bil"), DataFile());
}

TEST_F(BrowseForData, AGridThatCannotBeReadIsRefusedWithTheReason) {
  Write("bad.hdr", "NROWS 2\nNCOLS 1000\n");
  refusal = "This cannot be done: bad.bil: too short: 2000 bytes expected from its header, 1 found.";
  EXPECT_EQ(0, Browse("bad.bil"));
  EXPECT_EQ(folder.PathOf("old.bil"), shown);
  EXPECT_EQ(folder.PathOf("old.bil"), DataFile());
}

TEST_F(BrowseForData, AFileThatNoGridReaderTakesIsRefused) {
  refusal = "This cannot be done: river.inc: unknown kind of file. Choose a grid with the extension .bil or .asc.";
  EXPECT_EQ(0, Browse("river.inc"));
  EXPECT_EQ(folder.PathOf("old.bil"), DataFile());
}

struct Refusing final : IFileCheck {
  bool CanOpen(const std::string&) override { return false; }
};

TEST_F(BrowseForData, TheCheckOfTheHostComesFirst) {
  Refusing check;
  CCommonMapDialogs::FileCheck(&check);
  EXPECT_EQ(&check, CCommonMapDialogs::FileCheck());
  Write("new.hdr", "NROWS 1\nNCOLS 1\n");
  refusal = "This cannot be done: The file cannot be opened as data.";
  EXPECT_EQ(0, Browse("new.bil"));
  EXPECT_EQ(folder.PathOf("old.bil"), DataFile());
}

}  // namespace
}  // namespace orx::test
