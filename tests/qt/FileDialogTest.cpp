// What the toolkit's file dialog does beyond the scenarios: new files, and the process's folder.
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

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

  int questions = 0;
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
