// The page for the data of a layer: what it shows, what it asks its dialog for, and what comes of the answers.
#include "pages/DataPropertiesPage.h"

#include "hostobjects/IMap.h"
#include "tests/maplibrary/pages/PagesTest.h"
#include "tests/support/RecordedData.h"

namespace orx::test {
namespace {

/// A data object with a file and a known range; all else is another's.
class FileData final : public HostObject, public IData {
 public:
  RecordedData Rest;
  std::string File = "/data/old.bil";
  bool IsBroken = false;

  HostInterface* ViewFor(const std::type_info&) override { return static_cast<IData*>(&Rest); }
  std::int32_t ClassCount() override { return 4; }
  std::string FileName() override { return File; }
  void FileName(const std::string& value) override {
    if (IsBroken) throw RunTimeError(53, value + " is gone");
    File = value;
  }
  double MinimumOfData() override { return -12; }
  double MaximumOfData() override { return 345; }
};

class DataPage : public PagesTest {
 protected:
  DataPage() {
    page->Page->Client(&data);
    page->Page->BrowseRequested = [this](BrowseRequest& request) { onBrowse(request); };
    page->Page->ClassifyRequested = [this](ClassifyRequest& request) { onClassify(request); };
  }
  ~DataPage() override { page->Unload(); }

  void Show() {
    page->Page->RefreshContents();
    page->Show(ShowMode::Modeless);
  }

  FileData data;
  std::shared_ptr<PageForm> page = MakePage(PageKind::DataProperties);
  std::function<void(BrowseRequest&)> onBrowse = [](BrowseRequest&) {};
  std::function<void(ClassifyRequest&)> onClassify = [](ClassifyRequest&) {};
};

TEST_F(DataPage, ShowsTheSettingsOfTheData) {
  Show();
  EXPECT_EQ("/data/old.bil", Seen("txtFile"));
  EXPECT_EQ("Equal intervals", Seen("txtMethod"));
  EXPECT_EQ("0.00 – 100.00", Seen("txtRange"));
  EXPECT_EQ("4", Seen("txtCount"));
  EXPECT_EQ("0.00", Seen("txtFormat"));
}

TEST_F(DataPage, ARangeThatIsNotKnownSaysSo) {
  data.Rest.Minimum = data.Rest.Maximum = kUnknownRangeEnd;
  Show();
  EXPECT_EQ("not known", Seen("txtRange"));
}

TEST_F(DataPage, FindsTheDataBehindALayer) {
  layer.Behind = &data;
  page->Page->Client(&layer);
  Show();
  EXPECT_EQ("/data/old.bil", Seen("txtFile"));
}

TEST_F(DataPage, WithoutDataNothingCanBeDone) {
  page->Page->Client(&layer);
  Show();
  EXPECT_EQ("", Seen("txtFile"));
  EXPECT_FALSE(IsEnabled("cmdBrowse"));
  EXPECT_FALSE(IsEnabled("cmdClassify"));
}

TEST_F(DataPage, OffersAButtonForEachRequestThatItsDialogAnswers) {
  Show();
  EXPECT_TRUE(user.See(*form->Find("cmdBrowse")).Visible);
  EXPECT_TRUE(user.See(*form->Find("cmdClassify")).Visible);
  for (const char* const button : {"cmdOptions", "cmdShade", "cmdIsolines", "cmdDataStyle", "cmdColors"})
    EXPECT_FALSE(user.See(*form->Find(button)).Visible) << button;
}

TEST_F(DataPage, AChosenFileIsReadWhenThePageIsSaved) {
  onBrowse = [](BrowseRequest& request) {
    EXPECT_EQ("/data/old.bil", request.FileName);
    request = {"/data/new.bil", false};
  };
  Show();
  Press("cmdBrowse");
  EXPECT_EQ("/data/new.bil", Seen("txtFile"));
  EXPECT_EQ("/data/old.bil", data.File);
  EXPECT_FALSE(page->Page->IsDirty());
  page->Page->SaveChanges();
  EXPECT_EQ("/data/new.bil", data.File);
  EXPECT_TRUE(page->Page->IsDirty());
}

TEST_F(DataPage, ACancelledChoiceChangesNothing) {
  onBrowse = [](BrowseRequest& request) { request = {"/data/new.bil", true}; };
  Show();
  Press("cmdBrowse");
  page->Page->SaveChanges();
  EXPECT_EQ("/data/old.bil", data.File);
  EXPECT_EQ("/data/old.bil", Seen("txtFile"));
}

TEST_F(DataPage, DiscardForgetsAChosenFile) {
  onBrowse = [](BrowseRequest& request) { request = {"/data/new.bil", false}; };
  Show();
  Press("cmdBrowse");
  page->Page->DiscardChanges();
  page->Page->SaveChanges();
  EXPECT_EQ("/data/old.bil", data.File);
}

TEST_F(DataPage, AFileThatCannotBeReadIsNamedToTheUser) {
  onBrowse = [](BrowseRequest& request) { request = {"/data/new.bil", false}; };
  Show();
  Press("cmdBrowse");
  data.IsBroken = true;
  ExpectRefusal("Page", "Not everything could be saved:\r\nData file \"/data/new.bil\": /data/new.bil is gone");
  page->Page->SaveChanges();
  EXPECT_FALSE(page->Page->IsDirty());
  // The choice stays, for the next try.
  EXPECT_EQ("/data/new.bil", Seen("txtFile"));
  data.IsBroken = false;
  page->Page->SaveChanges();
  EXPECT_EQ("/data/new.bil", data.File);
}

TEST_F(DataPage, ClassifyHandsOverTheDataWithItsRangeAndShowsWhatChanged) {
  onClassify = [this](ClassifyRequest& request) {
    EXPECT_EQ(&data, request.Data);
    EXPECT_EQ(-12, request.Minimum);
    EXPECT_EQ(345, request.Maximum);
    EXPECT_EQ(kMayChangeClassCount, request.Flags);
    data.Rest.Classes = 9;
    request.Changed = true;
  };
  Show();
  Press("cmdClassify");
  EXPECT_EQ("9", Seen("txtCount"));
  EXPECT_TRUE(page->Page->IsDirty());
}

TEST_F(DataPage, AnAnswerWithoutAChangeLeavesThePageClean) {
  Show();
  Press("cmdClassify");
  EXPECT_FALSE(page->Page->IsDirty());
}

TEST_F(DataPage, AChosenFileOutlivesAChangeOfTheClasses) {
  onBrowse = [](BrowseRequest& request) { request = {"/data/new.bil", false}; };
  onClassify = [](ClassifyRequest& request) { request.Changed = true; };
  Show();
  Press("cmdBrowse");
  Press("cmdClassify");
  EXPECT_EQ("/data/new.bil", Seen("txtFile"));
  page->Page->SaveChanges();
  EXPECT_EQ("/data/new.bil", data.File);
}

TEST_F(DataPage, TheOtherRequestsReachTheDialog) {
  const std::pair<const char*, Event<DataRequest&> PropertyPage::*> requests[] = {
      {"cmdOptions", &PropertyPage::OptionsRequested},
      {"cmdShade", &PropertyPage::ShadeRequested},
      {"cmdIsolines", &PropertyPage::IsolineRequested}};
  for (const auto& [button, event] : requests)
    (*page->Page).*event = [this](DataRequest& request) {
      EXPECT_EQ(&data, request.Data);
      request.Changed = true;
    };
  int styles = 0;
  page->Page->DataStyleRequested = [&] { ++styles; };
  ILanguage* asked = reinterpret_cast<ILanguage*>(this);
  page->Page->ColorsRequested = [&](ILanguage* language) { asked = language; };
  Show();
  for (const auto& [button, event] : requests) {
    page->Page->IsDirty(false);
    Press(button);
    EXPECT_TRUE(page->Page->IsDirty()) << button;
  }
  Press("cmdDataStyle");
  Press("cmdColors");
  EXPECT_EQ(1, styles);
  EXPECT_EQ(nullptr, asked);
}

TEST_F(DataPage, SavingAnUntouchedPageWritesNothing) {
  Show();
  page->Page->SaveChanges();
  page->Page->ApplyChanges();
  EXPECT_EQ(Calls{}, data.Rest.Writes());
  EXPECT_FALSE(page->Page->IsDirty());
}

}  // namespace
}  // namespace orx::test
