// What native lists do beyond the scenarios that run on every desktop, and how questions close.
#include <QHelpEvent>
#include <QListView>
#include <QMessageBox>
#include <QScrollBar>
#include <QToolTip>

#include "desktops/qt/MessageBox.h"
#include "forms/TreeList.h"
#include "tests/forms/ListForm.h"
#include "tests/qt/QtTest.h"

namespace orx::test {
namespace {

class QtList : public QtFormsTest {
 protected:
  QtList() { lists->Show(ShowMode::Modeless); }
  ~QtList() override { lists->Unload(); }
  QListView& View(const ListBox& list) { return Native<QListView>(list); }

  Events log;
  std::shared_ptr<ListForm> lists = std::make_shared<ListForm>(desktop(), log);
};

TEST_F(QtList, ALongEntryIsReadByScrolling) {
  EXPECT_EQ(0, View(lists->lstOne).horizontalScrollBar()->maximum());
  lists->lstOne.AddItem("A layer with a name that is much longer than the list is wide");
  const QScrollBar& bar = *View(lists->lstOne).horizontalScrollBar();
  ASSERT_TRUE(QTest::qWaitFor([&] {
    View(lists->lstOne).grab();
    return bar.maximum() > 0;
  }));
  user.Click(lists->lstOne, 4);
  user.PressKey(*lists, kKeyCodeRight);
  EXPECT_GT(bar.value(), 0);
  EXPECT_EQ(4, lists->lstOne.ListIndex());
  lists->lstOne.Clear();
  lists->lstOne.AddItem("Oak");
  EXPECT_TRUE(QTest::qWaitFor([&] {
    View(lists->lstOne).grab();
    return bar.maximum() == 0;
  }));
}

struct RowsForm final : Form {
  explicit RowsForm(Desktop& desktop) : Form(desktop, "frmRows", {.Client = {3000, 3000}}) {}
  TreeList sftRows{*this, "sftRows", {.Place = {120, 120, 1800, 1800}}};
};

TEST_F(QtList, ARowThatIsCutOffHasAToolTip) {
  const auto rows = std::make_shared<RowsForm>(desktop());
  rows->sftRows.AddRow({"Oak"});
  rows->sftRows.AddRow({"A layer with a name that is longer than its list is wide"});
  rows->Show(ShowMode::Modeless);
  auto& view = Native<QListView>(rows->sftRows);
  const auto toolTipOf = [&](int row) {
    const QPoint at = view.visualRect(view.model()->index(row, 0)).center();
    QHelpEvent rest(QEvent::ToolTip, at, view.viewport()->mapToGlobal(at));
    QCoreApplication::sendEvent(view.viewport(), &rest);
    return QToolTip::text();
  };
  EXPECT_EQ("", toolTipOf(0));
  EXPECT_EQ("A layer with a name that is longer than its list is wide", toolTipOf(1));
  rows->Unload();
}

TEST_F(QtList, AssistiveSoftwareSelectsEntries) {
  QItemSelectionModel& several = *View(lists->lstSome).selectionModel();
  several.select(several.model()->index(1, 0), QItemSelectionModel::Select);
  several.select(several.model()->index(3, 0), QItemSelectionModel::Select);
  EXPECT_EQ((std::set<int>{1, 3}), lists->lstSome.SelectedRows());
  several.select(several.model()->index(1, 0), QItemSelectionModel::Deselect);
  EXPECT_EQ(std::set<int>{3}, lists->lstSome.SelectedRows());
  QItemSelectionModel& one = *View(lists->lstOne).selectionModel();
  one.select(one.model()->index(2, 0), QItemSelectionModel::ClearAndSelect);
  EXPECT_EQ(2, lists->lstOne.ListIndex());
}

TEST_F(QtList, EscapeAnswersAQuestionWithNoAndThereIsNoCloseBox) {
  struct Look final : DesktopHook {
    void ModalRunning(const Modal&) override {
      QMessageBox& box = *qt::OpenMessageBox();
      HasCloseBox = box.windowFlags().testFlag(Qt::WindowCloseButtonHint);
      Preset = box.defaultButton() == box.button(QMessageBox::Yes);
      QTest::keyClick(&box, Qt::Key_Escape);
    }
    bool HasCloseBox = true;
    bool Preset = false;
  } look;
  desktop().Hook(&look);
  EXPECT_EQ(MessageAnswer::No,
            desktop().ShowMessage({"Sure?", "Title", MessageIcon::Exclamation, MessageButtons::YesNo}));
  EXPECT_FALSE(look.HasCloseBox);
  EXPECT_TRUE(look.Preset);
  desktop().Hook(&script);
}

}  // namespace
}  // namespace orx::test
