// The prompt for a missing file, by way of the service.
#include "pickers/frmMsgBox.h"
#include "service/CCommonMapDialogs.h"
#include "service/modMain.h"
#include "tests/files/FilesTest.h"
#include "tests/support/RecordingHost.h"

namespace orx::test {
namespace {

class MissingFileTest : public FilesTest {
 protected:
  void InPrompt(const std::function<void(frmMsgBox&)>& act) {
    script.ExpectForm("frmMsgBox", [act](Form& form) { act(dynamic_cast<frmMsgBox&>(form)); });
  }
  bool Ask(const std::string& path) { return service.ShowFileNotFound(path, newFileName, cancelAll); }

  CallLog log;
  RecordingPages pages{log};
  CCommonMapDialogs service{desktop(), pages};
  std::string newFileName = "before";
  bool cancelAll = true;
};

TEST_F(MissingFileTest, ThePromptTellsTheFileAndSoundsTheSignal) {
  InPrompt([this](frmMsgBox& prompt) {
    EXPECT_EQ("Open layer", user.SeeCaption(prompt));
    EXPECT_EQ("File not found: C:\\maps\\A.shp\r\nDo you want to specify a new file?\r\n", prompt.Message());
    EXPECT_NE(std::string::npos, user.See(prompt.lblMsg).Text.find("C:\\maps\\A.shp"));
    user.Click(prompt.cmdCancel);
  });
  EXPECT_FALSE(Ask("C:\\maps\\A.shp"));
  EXPECT_EQ(1, script.Beeps);
}

TEST_F(MissingFileTest, CancelSkipsThisFile) {
  InPrompt([this](frmMsgBox& prompt) { user.Click(prompt.cmdCancel); });
  EXPECT_FALSE(Ask("a.shp"));
  EXPECT_EQ("", newFileName);
  EXPECT_FALSE(cancelAll);
}

TEST_F(MissingFileTest, EscapeSkipsThisFile) {
  InPrompt([this](frmMsgBox& prompt) { user.Press(prompt, kEscape); });
  EXPECT_FALSE(Ask("a.shp"));
  EXPECT_FALSE(cancelAll);
}

TEST_F(MissingFileTest, CancelAllSkipsAllFiles) {
  cancelAll = false;
  InPrompt([this](frmMsgBox& prompt) { user.Click(prompt.cmdCancelAll); });
  EXPECT_FALSE(Ask("a.shp"));
  EXPECT_EQ("", newFileName);
  EXPECT_TRUE(cancelAll);
}

TEST_F(MissingFileTest, TheCloseBoxSkipsThisFile) {
  InPrompt([this](frmMsgBox& prompt) { user.CloseBox(prompt); });
  EXPECT_FALSE(Ask("a.shp"));
  EXPECT_EQ("", newFileName);
  EXPECT_FALSE(cancelAll);
}

TEST_F(MissingFileTest, AFileThatWasFoundIsGivenWithItsFullPath) {
  InPrompt([this](frmMsgBox& prompt) {
    ExpectPick({"roads.shp"});
    user.Click(prompt.cmdBrowse);
  });
  EXPECT_FALSE(Ask("a.shp"));
  EXPECT_EQ(folder.PathOf("roads.shp"), newFileName);
  EXPECT_FALSE(cancelAll);
}

TEST_F(MissingFileTest, TheFileDialogOpensOnTheNameInSmallLetters) {
  InPrompt([this](frmMsgBox& prompt) {
    ExpectCancel();
    user.Click(prompt.cmdBrowse);
    EXPECT_EQ("roads.shp", InitialName(seen));
    EXPECT_EQ("Add Layers", seen.Title);
    user.Click(prompt.cmdCancel);
  });
  Ask("ROADS.SHP");
}

TEST_F(MissingFileTest, LettersOfAllAlphabetsBecomeSmall) {
  InPrompt([this](frmMsgBox& prompt) {
    ExpectCancel();
    user.Click(prompt.cmdBrowse);
    EXPECT_EQ("\xC3\xA4rger-\xD0\xB6\xCF\x89\xE2\x82\xAC.shp", InitialName(seen));
    user.Click(prompt.cmdCancel);
  });
  Ask("\xC3\x84RGER-\xD0\x96\xCE\xA9\xE2\x82\xAC.SHP");
}

TEST_F(MissingFileTest, ABrowseThatIsCancelledLeavesThePromptOpen) {
  InPrompt([this](frmMsgBox& prompt) {
    ExpectCancel();
    user.Click(prompt.cmdBrowse);
    EXPECT_TRUE(prompt.Visible());
    EXPECT_EQ("", prompt.NewFileName());
    user.Click(prompt.cmdCancel);
  });
  Ask("a.shp");
  EXPECT_EQ("", newFileName);
}

TEST_F(MissingFileTest, AFileOfTheWrongTypeLeavesThePromptOpen) {
  InPrompt([this](frmMsgBox& prompt) {
    ExpectPick({"notes.txt"});
    script.ExpectMessage(
        {"File has to be a Data file (*.vkr, *.map, *.his, *.bil, *.bip, *.bsq, *.inc).\r\nOperation cancelled.", "",
         MessageIcon::Exclamation});
    user.Click(prompt.cmdBrowse);
    EXPECT_TRUE(prompt.Visible());
    user.Click(prompt.cmdCancelAll);
  });
  EXPECT_FALSE(service.ShowDataFileNotFound("a.vkr", newFileName, cancelAll));
  EXPECT_EQ("", newFileName);
  EXPECT_TRUE(cancelAll);
}

TEST_F(MissingFileTest, DataFilesHaveTheirOwnWords) {
  InPrompt([this](frmMsgBox& prompt) {
    EXPECT_EQ("Open Data", user.SeeCaption(prompt));
    EXPECT_EQ("Data file not found: a.vkr\r\nDo you want to specify a new file?\r\n", prompt.Message());
    user.Click(prompt.cmdCancel);
  });
  service.ShowDataFileNotFound("a.vkr", newFileName, cancelAll);
}

TEST_F(MissingFileTest, ThePointerComesBack) {
  desktop().Pointer(Pointer::Hourglass);
  InPrompt([this](frmMsgBox& prompt) {
    EXPECT_EQ(Pointer::Default, desktop().Pointer());
    user.Click(prompt.cmdCancel);
  });
  Ask("a.shp");
  EXPECT_EQ(Pointer::Hourglass, desktop().Pointer());
  desktop().Pointer(Pointer::Default);
}

TEST_F(MissingFileTest, ALongPathLosesItsMiddleAndStandsWholeInTheToolTip) {
  const std::string path = "C:\\" + std::string(150, 'd') + "\\R&D\\the file.shp";
  InPrompt([&](frmMsgBox& prompt) {
    EXPECT_NE(std::string::npos, user.See(prompt.lblMsg).Text.find("\xE2\x80\xA6"));
    EXPECT_NE(std::string::npos, user.See(prompt.lblMsg).Text.find("R&D\\the file.shp"));
    EXPECT_EQ(path, prompt.lblMsg.ToolTipText());
    user.Click(prompt.cmdCancel);
  });
  Ask(path);
}

TEST_F(MissingFileTest, ALanguageTranslatesThePromptAndGivesItsHelpNumber) {
  RecordingLanguage language{log};
  language.Texts["_HelpMapMsgBox"] = "12.6";
  language.Texts["Open layer"] = "Ebene laden";
  service.Language(&language);
  InPrompt([this](frmMsgBox& prompt) {
    EXPECT_EQ("Ebene laden", user.SeeCaption(prompt));
    EXPECT_EQ(13, prompt.HelpContextId());
    user.Click(prompt.cmdCancel);
  });
  Ask("a.shp");
}

TEST_F(MissingFileTest, TheLanguageGetsThePromptWithItsMessage) {
  RecordingLanguage language{log};
  service.Language(&language);
  InPrompt([this](frmMsgBox& prompt) {
    EXPECT_TRUE(prompt.lblMsg.Caption().starts_with("<File not found: a.shp")) << prompt.lblMsg.Caption();
    EXPECT_TRUE(prompt.lblMsg.Caption().ends_with(">")) << prompt.lblMsg.Caption();
    user.Click(prompt.cmdCancel);
  });
  Ask("a.shp");
}

TEST_F(MissingFileTest, HelpLeavesThePromptOpen) {
  modMain::HelpFile("maps.hlp");
  InPrompt([this](frmMsgBox& prompt) {
    user.Click(prompt.cmdHelp);
    EXPECT_TRUE(prompt.Visible());
    user.Click(prompt.cmdCancel);
  });
  Ask("a.shp");
  modMain::HelpFile("");
  ASSERT_EQ(1u, script.Helps.size());
  EXPECT_EQ("maps.hlp", script.Helps[0].FileName);
}

TEST_F(MissingFileTest, WithoutCaptionAndMessageThePromptHasItsOwn) {
  const auto prompt = std::make_shared<frmMsgBox>(desktop());
  prompt->Load();
  EXPECT_EQ("OrvexMapDialogs2", prompt->Caption());
  EXPECT_EQ("File not found...", prompt->lblMsg.Caption());
  prompt->Unload();
}

struct CheckingHost final : IFileCheck {
  bool CanOpen(const std::string& path) override {
    Asked.push_back(path);
    if (!Error.empty()) throw RunTimeError(kErrorFileFormat, Error);
    return Answer;
  }
  std::vector<std::string> Asked;
  std::string Error;
  bool Answer = true;
};

class BrowseTest : public FilesTest {
 protected:
  BrowseTest() { CCommonMapDialogs::FileCheck(&check); }
  ~BrowseTest() override { CCommonMapDialogs::FileCheck(nullptr); }
  void Browse() { modMain::BrowseDataFile(desktop(), 0, nullptr, browsed); }

  CheckingHost check;
  BrowseRequest browsed{"before", false};
};

TEST_F(BrowseTest, AFileThatPassesTheHostsCheckIsTaken) {
  ExpectPick({"heights.bil"});
  Browse();
  EXPECT_EQ(folder.PathOf("heights.bil"), browsed.FileName);
  EXPECT_FALSE(browsed.Cancel);
  EXPECT_EQ(std::vector<std::string>{folder.PathOf("heights.bil")}, check.Asked);
}

TEST_F(BrowseTest, AFileThatFailsTheHostsCheckIsNamedAndCancelled) {
  check.Answer = false;
  ExpectPick({"heights.bil"});
  Browse();
  EXPECT_EQ(folder.PathOf("heights.bil"), browsed.FileName);
  EXPECT_TRUE(browsed.Cancel);
  EXPECT_EQ("", browsed.Refusal);
}

TEST_F(BrowseTest, ACheckThatThrowsTellsWhyTheFileIsRefused) {
  check.Error = "heights.bil has no heights";
  ExpectPick({"heights.bil"});
  Browse();
  EXPECT_TRUE(browsed.Cancel);
  EXPECT_EQ("heights.bil has no heights", browsed.Refusal);
}

TEST_F(BrowseTest, TheCheckOfThePageStandsBehindTheHosts) {
  CheckingHost own;
  own.Answer = false;
  browsed.Check = &own;
  ExpectPick({"heights.bil"});
  Browse();
  EXPECT_FALSE(browsed.Cancel);
  EXPECT_TRUE(own.Asked.empty());
  CCommonMapDialogs::FileCheck(nullptr);
  ExpectPick({"heights.bil"});
  Browse();
  EXPECT_TRUE(browsed.Cancel);
  EXPECT_EQ(1u, own.Asked.size());
}

TEST_F(BrowseTest, CancelLeavesTheNameAsItWas) {
  ExpectCancel();
  Browse();
  EXPECT_EQ("before", browsed.FileName);
  EXPECT_TRUE(browsed.Cancel);
  EXPECT_TRUE(check.Asked.empty());
}

TEST_F(BrowseTest, WithoutAnyCheckAFileThatIsGoneIsRefused) {
  CCommonMapDialogs::FileCheck(nullptr);
  ExpectPick({"heights.bil"});
  // Between the choice and the check.
  script.WhenEventsPend = [this] { std::filesystem::remove(std::filesystem::path(folder.PathOf("heights.bil"))); };
  Browse();
  EXPECT_TRUE(browsed.Cancel);
  EXPECT_EQ("heights.bil: file not found.", browsed.Refusal);
}

TEST_F(BrowseTest, WithoutAnyCheckAFileHasToBeReadable) {
  CCommonMapDialogs::FileCheck(nullptr);
  ExpectPick({"heights.bil"});
  Browse();
  EXPECT_FALSE(browsed.Cancel);
  EXPECT_EQ(std::nullopt, browsed.Refusal);
}

}  // namespace
}  // namespace orx::test
