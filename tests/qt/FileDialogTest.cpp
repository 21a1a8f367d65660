// What the toolkit's file dialog does beyond the scenarios: new files, and the process's folder.
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

#include "desktops/qt/FileDialog.h"
#include "desktops/qt/Text.h"
#include "tests/files/FilesTest.h"

namespace orx::test {
namespace {

class QtFiles : public FilesTest {
 protected:
  /// Answers the question that comes up next.
  void AnswerNext(QMessageBox::StandardButton answer) {
    QTimer::singleShot(50, [this, answer] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      ++questions;
      asked = qt::FromQt(box->text());
      QTest::mouseClick(box->button(answer), Qt::LeftButton);
    });
  }
  void TypeNewName(QMessageBox::StandardButton answer) {
    script.ExpectFiles([this, answer](OpenFileRequest& request) {
      AnswerNext(answer);
      user.PickFiles(request, {folder.Path(), {"new.bil"}, 0});
      if (answer == QMessageBox::No) user.CancelFiles(request);
    });
  }
  /// Types names that the dialog does not take, reads why, and gives up.
  void TypeRefused(const std::vector<std::string>& names) {
    script.ExpectFiles([this, names](OpenFileRequest& request) {
      AnswerNext(QMessageBox::Ok);
      user.PickFiles(request, {folder.Path(), names, 0});
      user.CancelFiles(request);
    });
  }
  /// What the dialog shows when it opens on that name: its folder and its name field.
  std::pair<std::string, std::string> OpenOn(const std::string& name) {
    std::pair<std::string, std::string> shown;
    script.ExpectFiles([&](OpenFileRequest& request) {
      QFileDialog& dialog = *qt::OpenFileDialog();
      shown = {qt::FromQt(dialog.directory().absolutePath()),
               qt::FromQt(dialog.findChild<QLineEdit*>("fileNameEdit")->text())};
      user.CancelFiles(request);
    });
    files = {name};
    EXPECT_FALSE(Choose(kLayers));
    return shown;
  }

  int questions = 0;
  std::string asked;
};

TEST_F(QtFiles, ANewNameIsGivenWhenTheUserAgreesToCreateIt) {
  TypeNewName(QMessageBox::Yes);
  EXPECT_TRUE(Choose(kData));
  EXPECT_EQ(1, questions);
  EXPECT_EQ(std::vector<std::string>{folder.PathOf("new.bil")}, files);
}

TEST_F(QtFiles, ANewNameThatIsNotToBeCreatedLeavesTheDialogOpen) {
  TypeNewName(QMessageBox::No);
  EXPECT_FALSE(Choose(kData));
  EXPECT_EQ(1, questions);
}

TEST_F(QtFiles, ANameInAFolderThatIsNotThereIsNotOfferedForCreation) {
  TypeRefused({"nowhere/new.bil"});
  EXPECT_FALSE(Choose(kData));
  EXPECT_EQ(1, questions);
  EXPECT_EQ(asked.find("create"), std::string::npos) << asked;
  EXPECT_NE(asked.find("nowhere"), std::string::npos) << asked;
}

TEST_F(QtFiles, FilesOfTwoFoldersAreRefusedWithTheReason) {
  const TestFolder other;
  folder.Add("a.shp");
  other.Add("b.shp");
  TypeRefused({"a.shp", other.PathOf("b.shp")});
  EXPECT_FALSE(Choose(kLayers));
  EXPECT_EQ(1, questions);
  EXPECT_NE(asked.find("folder"), std::string::npos) << asked;
  EXPECT_TRUE(files.empty());
}

TEST_F(QtFiles, FilesOfAnotherFolderComeBackWithTheirOwnPaths) {
  const TestFolder other;
  for (const char* name : {"a.shp", "b.shp"}) other.Add(name);
  script.ExpectFiles([&](OpenFileRequest& request) {
    user.PickFiles(request, {folder.Path(), {other.PathOf("a.shp"), other.PathOf("b.shp")}, 0});
  });
  EXPECT_TRUE(Choose(kLayers));
  EXPECT_EQ((std::vector<std::string>{other.PathOf("a.shp"), other.PathOf("b.shp")}), files);
}

TEST_F(QtFiles, SeveralNamesWhereOneIsWantedAreRefusedWithTheReason) {
  for (const char* name : {"a.bil", "b.bil"}) folder.Add(name);
  TypeRefused({"a.bil", "b.bil"});
  EXPECT_FALSE(Choose(kData));
  EXPECT_EQ(1, questions);
  EXPECT_TRUE(files.empty());
}

TEST_F(QtFiles, TheDialogOpensInTheFolderOfAMissingFileWhateverItsLetterCase) {
  std::filesystem::create_directory(folder.PathOf("Maps"));
  std::filesystem::create_directory(folder.PathOf("Maps/2024 \xC3\x84"));
  EXPECT_EQ(OpenOn(folder.PathOf("maps/2024 \xC3\xA4/gone.shp")),
            std::pair(folder.PathOf("Maps/2024 \xC3\x84"), std::string("gone.shp")));
  EXPECT_EQ(OpenOn(folder.PathOf("Maps/gone.shp")), std::pair(folder.PathOf("Maps"), std::string("gone.shp")));
}

TEST_F(QtFiles, TheDialogOpensOnTheBareNameWhenTheFolderIsGoneToo) {
  const std::string current = std::filesystem::current_path().string();
  EXPECT_EQ(OpenOn(folder.PathOf("nowhere/gone.shp")), std::pair(current, std::string("gone.shp")));
  EXPECT_EQ(OpenOn("c:\\maps\\gone.shp"), std::pair(current, std::string("gone.shp")));
}

TEST_F(QtFiles, ANameWithADotAtItsEndComesBackWhole) {
  ExpectPick({"roads.shp."});
  EXPECT_TRUE(Choose(kLayers));
  EXPECT_EQ(std::vector<std::string>{folder.PathOf("roads.shp.")}, files);
}

TEST_F(QtFiles, TheProcessKeepsItsCurrentFolder) {
  const std::filesystem::path before = std::filesystem::current_path();
  ExpectPick({"a.shp"});
  EXPECT_TRUE(Choose(kLayers));
  EXPECT_EQ(before, std::filesystem::current_path());
}

}  // namespace
}  // namespace orx::test
