// The layout checker itself, and that the controls of a well drawn form show all their text at every resolution.
#include "tests/forms/SampleForm.h"
#include "tests/layout/LayoutCheck.h"

namespace orx::test {
namespace {

using Layout = FormsTest;
using Problems = std::vector<std::string>;

TEST_F(Layout, AWellDrawnFormHasNoProblems) {
  ShowForm();
  EXPECT_EQ(Problems{}, LayoutProblems(*form));
  user.SelectTab(form->ssTab, 1);
  EXPECT_EQ(Problems{}, LayoutProblems(*form));
}

TEST_F(Layout, AFormThatIsReadFromRightToLeftIsMirroredOnce) {
  const auto placesOf = [this] {
    std::map<std::string, Rect> places;
    for (const Control* const control : form->All())
      if (LayoutOfDesktop().IsSeen(*control)) places[control->Name()] = LayoutOfDesktop().PlaceOf(*control);
    return places;
  };
  ShowForm();
  const std::map<std::string, Rect> before = placesOf();
  form->Unload();
  form->RightToLeft(true);
  ShowForm();
  const int width = desktop().ToPixels(form->ClientSize().Width);
  // What a narrow screen has no room for is scrolled away at the other side.
  const int missing = width - desktop().ToPixels(form->ShownClientSize().Width);
  ASSERT_EQ(before.size(), placesOf().size());
  for (const auto& [name, place] : placesOf()) {
    const Rect& other = before.at(name);
    EXPECT_NEAR(width - other.Right(), place.Left, 2 + missing) << name;
    EXPECT_EQ(other.Width, place.Width) << name;
    EXPECT_EQ(other.Top, place.Top) << name;
  }
  EXPECT_EQ(Problems{}, LayoutProblems(*form));
}

TEST_F(Layout, TextThatIsCutOffIsFound) {
  ShowForm();
  const std::string longText = "A text that is much too long for the place";
  form->cmdOK.Caption(longText);
  form->chkShow.Caption(longText);
  form->lblName.Caption(longText);
  form->fraFirst.Caption(longText);
  form->cboKind.AddItem(longText);
  form->ssTab.TabCaption(0, longText + longText);
  const Problems found = LayoutProblems(*form);
  ASSERT_EQ(6U, found.size()) << testing::PrintToString(found);
  for (const std::string& problem : found) EXPECT_NE(std::string::npos, problem.find("text needs")) << problem;
}

TEST_F(Layout, AFieldThatIsTooLowIsFound) {
  ShowForm();
  form->txtSize.Place({3960, 120, 1200, 180});
  ASSERT_EQ(1U, LayoutProblems(*form).size());
  EXPECT_EQ(0U, LayoutProblems(*form)[0].find("frmSample.txtSize: text needs"));
}

TEST_F(Layout, ControlsOutsideOrUponOthersAreFound) {
  ShowForm();
  form->txtFirst.Left(2000);
  form->txtSize.Left(3000);
  EXPECT_EQ((Problems{"frmSample.txtSize: stands upon txtName",
                      "frmSample.ssTab.ssTabPage0.fraFirst.txtFirst: stands outside of its parent"}),
            LayoutProblems(*form));
}

TEST_F(Layout, AControlOnTheTitleOfItsFrameIsFound) {
  ShowForm();
  form->txtFirst.Top(30);
  EXPECT_EQ((Problems{"frmSample.ssTab.ssTabPage0.fraFirst.txtFirst: covers the title of its frame"}),
            LayoutProblems(*form));
}

}  // namespace
}  // namespace orx::test
