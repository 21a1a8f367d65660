// The native windows: owners, modality, message boxes, pictures, and windows that close while they are at work.
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QWindow>
#include <QtTest>
#include <filesystem>

#include "desktops/qt/MessageBox.h"
#include "tests/forms/MoreForms.h"
#include "tests/qt/QtTest.h"

namespace orx::test {
namespace {

using QtWindow = QtFormsTest;

TEST_F(QtWindow, AModalFormStandsBeforeAWindowOfTheHost) {
  QWidget host;
  host.show();
  script.ExpectForm("frmSample", [&](Form& shown) {
    EXPECT_EQ(host.windowHandle(), DialogOf(shown).windowHandle()->transientParent());
    EXPECT_EQ(Qt::ApplicationModal, DialogOf(shown).windowModality());
    user.CloseBox(shown);
  });
  form->Show(ShowMode::Modal, {nullptr, host.winId()});
}

TEST_F(QtWindow, AFormStandsBeforeTheFormThatOwnsIt) {
  ShowForm();
  Events log;
  const auto inner = std::make_shared<SampleForm>(desktop(), log);
  inner->Show(ShowMode::Modeless, {form.get(), 0});
  EXPECT_EQ(DialogOf(*form).windowHandle(), DialogOf(*inner).windowHandle()->transientParent());
  form->Unload();
  EXPECT_TRUE(user.See(inner->txtName).Visible);
  inner->Unload();
}

TEST_F(QtWindow, AFormEndsWithTheWindowOfTheHostThatOwnsIt) {
  for (const ShowMode mode : {ShowMode::Modal, ShowMode::Modeless}) {
    auto host = std::make_unique<QWidget>();
    host->show();
    if (mode == ShowMode::Modal)
      script.ExpectForm("frmSample", [&](Form&) {
        host.reset();
        EXPECT_FALSE(form->Visible());
      });
    form->Show(mode, {nullptr, host->winId()});
    host.reset();
    EXPECT_FALSE(form->Visible());
    EXPECT_FALSE(form->IsLoaded());
    EXPECT_FALSE(QApplication::activeModalWidget());
  }
}

TEST_F(QtWindow, AFormIsNotEndedByTheOwnerOfAnEarlierShow) {
  auto host = std::make_unique<QWidget>();
  host->show();
  form->Show(ShowMode::Modeless, {nullptr, host->winId()});
  form->Hide();
  form->Show(ShowMode::Modeless);
  host.reset();
  EXPECT_TRUE(form->Visible());
}

TEST_F(QtWindow, AnErrorOfTheHookReachesTheCallerOfShow) {
  script.ExpectForm("frmSample", [](Form&) { throw std::runtime_error("hook"); });
  EXPECT_THROW(form->Show(), std::runtime_error);
}

TEST_F(QtWindow, WithoutACancelButtonEscapeDoesNothing) {
  struct Bare final : Form {
    explicit Bare(Desktop& desktop) : Form(desktop, "frmBare", {.Caption = "Bare", .Client = {3000, 1500}}) {}
    TextBox txtOnly{*this, "txtOnly", {.Place = {120, 120, 1200, 330}}};
  };
  const auto bare = std::make_shared<Bare>(desktop());
  bare->Show(ShowMode::Modeless);
  user.Press(*bare, kEscape);
  user.Press(*bare, kEnter);
  EXPECT_TRUE(bare->Visible());
  EXPECT_TRUE(user.See(bare->txtOnly).Visible);
  bare->Unload();
}

TEST_F(QtWindow, AControlMayLetGoOfItsForm) {
  Events log;
  for (const bool byButton : {true, false}) {
    auto lone = std::make_shared<SampleForm>(desktop(), log);
    SampleForm& shown = *lone;
    shown.cmdOK.Click = [&shown] { shown.Unload(); };
    shown.chkShow.Click = [&shown] { shown.Unload(); };
    lone->Show(ShowMode::Modeless);
    const std::weak_ptr<SampleForm> watch = std::exchange(lone, nullptr);
    if (byButton) user.Click(shown.cmdOK);
    if (!byButton) user.Toggle(shown.chkShow);
    EXPECT_TRUE(watch.expired());
  }
}

TEST_F(QtWindow, AFormMayBeUnloadedFromADialogThatItsOwnButtonOpened) {
  Events log;
  const auto inner = std::make_shared<SampleForm>(desktop(), log);
  form->cmdOK.Click = [&] { inner->Show(); };
  ShowForm();
  const QPointer<QWidget> outerWindow = &DialogOf(*form);
  script.ExpectForm("frmSample", [&](Form& shown) {
    form->Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(outerWindow) << "deleted while its button is at work";
    user.CloseBox(shown);
  });
  user.Click(form->cmdOK);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(outerWindow);
}

TEST_F(QtWindow, AnotherWindowThatBecomesActiveTakesNoFocusFromTheForm) {
  ShowForm();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&DialogOf(*form)));
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  DialogOf(*form).activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&DialogOf(*form)));
  EXPECT_EQ(Events{}, NewEvents());
  EXPECT_EQ(&form->txtName, form->ActiveControl());
}

TEST_F(QtWindow, AFieldThatIsClickedBeforeItsWindowIsActiveHasTheFocusOfTheForm) {
  ShowSettled();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  Native<QWidget>(form->txtSize).setFocus(Qt::MouseFocusReason);
  ASSERT_EQ(&form->txtName, form->ActiveControl());
  DialogOf(*form).activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&DialogOf(*form)));
  EXPECT_EQ(&form->txtSize, form->ActiveControl());
}

TEST_F(QtWindow, MessagesAreShownAsPlainTextWithTheirIcon) {
  struct Look final : DesktopHook {
    void ModalRunning(const Modal&) override {
      QMessageBox& box = *qt::OpenMessageBox();
      Text = box.text();
      Format = box.textFormat();
      Icon = box.icon();
      QTest::keyClick(&box, Qt::Key_Escape);
    }
    QString Text;
    Qt::TextFormat Format = Qt::AutoText;
    QMessageBox::Icon Icon = QMessageBox::NoIcon;
  } look;
  desktop().Hook(&look);
  desktop().ShowMessage({"<b>5 > 4</b>", "Title", MessageIcon::Exclamation});
  EXPECT_EQ("<b>5 > 4</b>", look.Text);
  EXPECT_EQ(Qt::PlainText, look.Format);
  EXPECT_EQ(QMessageBox::Warning, look.Icon);
}

TEST_F(QtWindow, PicturesHaveAllPixelsOfTheWindow) {
  const std::string path = testing::TempDir() + "orx-qt-" + std::to_string(QCoreApplication::applicationPid()) + ".png";
  EXPECT_FALSE(QtOnly().SavePicture(*form, path));
  ShowForm();
  ASSERT_TRUE(QtOnly().SavePicture(*form, path));
  const qt::Dialog& dialog = DialogOf(*form);
  EXPECT_EQ(dialog.size() * dialog.devicePixelRatio(), QImage(QString::fromStdString(path)).size());
  EXPECT_FALSE(QtOnly().SaveMessagePicture(path));
  std::filesystem::remove(path);
}

TEST_F(QtWindow, SizingByTheUserTellsTheForm) {
  const auto elastic = std::make_shared<ElasticForm>(desktop());
  elastic->Show(ShowMode::Modeless);
  EXPECT_EQ((Size{6000, 3000}), elastic->Seen);
  DialogOf(*elastic).resize(desktop().ToPixels(7500), desktop().ToPixels(3750));
  QCoreApplication::processEvents();
  EXPECT_EQ((Size{7500, 3750}), elastic->Seen);
  elastic->Unload();
}

TEST_F(QtWindow, MovingByTheUserTellsTheForm) {
  ShowForm();
  DialogOf(*form).move(desktop().ToPixels(750), desktop().ToPixels(900));
  QCoreApplication::processEvents();
  EXPECT_EQ(750, form->Left());
  EXPECT_EQ(900, form->Top());
}

TEST_F(QtWindow, AWindowGoesWithoutAnEventLoopAsSoonAsAnotherFormIsShown) {
  QPointer<QWidget> before;
  for (int round = 0; round < 3; ++round) {
    Events log;
    const auto lone = std::make_shared<SampleForm>(desktop(), log);
    lone->Show(ShowMode::Modeless);
    EXPECT_FALSE(before) << round;
    before = &DialogOf(*lone);
    lone->Unload();
  }
}

TEST_F(QtWindow, TheHourglassOfTheHostIsNotShownOverWhatWaitsForTheUser) {
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  const auto shape = [] { return QGuiApplication::overrideCursor()->shape(); };
  script.ExpectForm("frmSample", [&](Form& shown) {
    EXPECT_EQ(Qt::ArrowCursor, shape());
    user.CloseBox(shown);
  });
  form->Show();
  EXPECT_EQ(Qt::WaitCursor, shape());
  const Message message{"Text", "Title", MessageIcon::None};
  script.ExpectMessage(message);
  script.WhenMessageIsUp = [&] { EXPECT_EQ(Qt::ArrowCursor, shape()); };
  desktop().ShowMessage(message);
  EXPECT_EQ(Qt::WaitCursor, shape());
  QGuiApplication::restoreOverrideCursor();
}

TEST_F(QtWindow, AHostThatTakesItsHourglassAwayWhileADialogIsOpenHasNoneAfterwards) {
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  script.ExpectForm("frmSample", [&](Form& shown) {
    QGuiApplication::restoreOverrideCursor();
    user.CloseBox(shown);
  });
  form->Show();
  EXPECT_FALSE(QGuiApplication::overrideCursor());
}

TEST_F(QtWindow, ClosingAllWindowsClosesOnlyWhatTheUserCanReach) {
  const Message message{"Text", "Title", MessageIcon::None};
  form->cmdOK.Click = [&] { desktop().ShowMessage(message); };
  script.ExpectForm("frmSample", [&](Form& shown) {
    script.ExpectMessage(message);
    script.WhenMessageIsUp = [&] {
      QApplication::closeAllWindows();
      EXPECT_TRUE(shown.Visible());
      EXPECT_TRUE(shown.IsLoaded());
    };
    user.Click(form->cmdOK);
    EXPECT_TRUE(shown.Visible());
    QApplication::closeAllWindows();
    EXPECT_FALSE(shown.Visible());
  });
  form->Show();
}

TEST_F(QtWindow, ClosingAllWindowsLeavesTheFormBehindASecondaryDialogAlone) {
  Events log;
  const auto inner = std::make_shared<SampleForm>(desktop(), log);
  form->cmdOK.Click = [&] { inner->Show(); };
  script.ExpectForm("frmSample", [&](Form& outer) {
    script.ExpectForm("frmSample", [&](Form& shown) {
      DialogOf(outer).close();
      EXPECT_TRUE(outer.Visible());
      user.CloseBox(shown);
    });
    user.Click(form->cmdOK);
    EXPECT_TRUE(outer.Visible());
    user.CloseBox(outer);
  });
  form->Show();
}

TEST_F(QtWindow, AnErrorInAHandlerGivesTheHostItsWindowsBackBeforeShowReturns) {
  QWidget host;
  host.show();
  form->cmdOK.Click = [] { throw std::runtime_error("handler"); };
  script.LoopEndsByError = true;
  script.ExpectForm("frmSample", [&](Form&) {
    EXPECT_TRUE(QApplication::activeModalWidget());
    user.Click(form->cmdOK);
  });
  EXPECT_THROW(form->Show(ShowMode::Modal, {nullptr, host.winId()}), std::runtime_error);
  EXPECT_FALSE(form->Visible());
  EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(QtWindow, ThePointerOfTheHostComesBack) {
  ShowForm();
  QGuiApplication::setOverrideCursor(Qt::CrossCursor);
  desktop().Pointer(Pointer::Hourglass);
  EXPECT_EQ(Qt::WaitCursor, QGuiApplication::overrideCursor()->shape());
  desktop().Pointer(Pointer::SizeNS);
  EXPECT_EQ(Qt::SizeVerCursor, QGuiApplication::overrideCursor()->shape());
  desktop().Pointer(Pointer::Default);
  EXPECT_EQ(Qt::CrossCursor, QGuiApplication::overrideCursor()->shape());
  QGuiApplication::restoreOverrideCursor();
}

}  // namespace
}  // namespace orx::test
