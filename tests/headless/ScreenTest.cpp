// Several screens, which only the desktop without one can have at will: a window opens on the screen that it belongs
// to.
#include <gtest/gtest.h>

#include "desktops/headless/HeadlessDesktop.h"
#include "forms/Form.h"

namespace orx::test {
namespace {

class HeadlessScreens : public testing::Test {
 protected:
  HeadlessScreens() {
    desktop.ScreenSize({15000, 9000});
    // One to the left that is higher up, and one below.
    desktop.FurtherScreens({{-12000, -3000, 12000, 9000}, {0, 9000, 15000, 6000}});
  }
  ~HeadlessScreens() override { form->Unload(); }

  /// Where a window ends up that was put there.
  Point Shown(int left, int top) {
    form->Hide();
    form->Move(left, top);
    form->Show(ShowMode::Modeless);
    return {form->Left(), form->Top()};
  }

  headless::HeadlessDesktop desktop;
  std::shared_ptr<Form> form = std::make_shared<Form>(desktop, "frmAny", FormDesign{.Client = {3000, 1500}});
};

TEST_F(HeadlessScreens, AWindowStaysOnTheScreenWhereItStands) {
  EXPECT_EQ((Point{300, 450}), Shown(300, 450));
  EXPECT_EQ((Point{-6000, -1500}), Shown(-6000, -1500));
  EXPECT_EQ((Point{3000, 10500}), Shown(3000, 10500));
}

TEST_F(HeadlessScreens, AModelessWindowDoesNotOpenExactlyOnAnotherOne) {
  ASSERT_EQ((Point{300, 450}), Shown(300, 450));
  std::vector<std::shared_ptr<Form>> others;
  for (const int apart : {360, 720}) {
    others.push_back(std::make_shared<Form>(desktop, "frmOther", FormDesign{.Client = {3000, 1500}}));
    others.back()->Move(300, 450);
    others.back()->Show(ShowMode::Modeless);
    EXPECT_EQ((Point{300 + apart, 450 + apart}), (Point{others.back()->Left(), others.back()->Top()}));
  }
  // Where it stood itself it may stand again.
  EXPECT_EQ((Point{300, 450}), Shown(300, 450));
  for (const std::shared_ptr<Form>& other : others) other->Unload();
}

TEST_F(HeadlessScreens, AWindowBetweenTwoScreensGoesToTheOneThatHoldsTheMostOfIt) {
  EXPECT_EQ(0, Shown(-600, 450).X);
  EXPECT_EQ(-form->Width(), Shown(-2500, 450).X);
}

TEST_F(HeadlessScreens, AWindowOffEveryScreenGoesToTheNearest) {
  EXPECT_EQ((Point{-12000, -3000}), Shown(-1000000, -1000000));
  EXPECT_EQ((Point{15000 - form->Width(), 15000 - form->Height()}), Shown(1000000, 1000000));
  EXPECT_EQ((Point{15000 - form->Width(), 0}), Shown(30000, -5000));
}

TEST_F(HeadlessScreens, WithOneScreenEverythingComesBackToIt) {
  desktop.FurtherScreens({});
  EXPECT_EQ((Point{0, 0}), Shown(-6000, -1500));
  EXPECT_EQ((Point{15000 - form->Width(), 9000 - form->Height()}), Shown(20000, 20000));
}

}  // namespace
}  // namespace orx::test
