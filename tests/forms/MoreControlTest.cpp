// The contracts of lists that stand open, picture buttons, picture boxes that are used, and the choice of a colour.
#include "forms/Glyph.h"
#include "forms/NumberField.h"
#include "tests/forms/MoreForms.h"

namespace orx::test {
namespace {

const Glyph kSquare{{{{4, 4}, {12, 4}, {12, 12}, {4, 12}}}};

struct MoreForm final : Form {
  explicit MoreForm(Desktop& desktop, Events& log)
      : Form(desktop, "frmMore", {.Caption = "More", .Client = {6000, 4200}}), Log(log) {
    for (const char* const name : {"Ash", "Birch", "Cedar"}) lstTrees.AddItem(name, lstTrees.ListCount() * 10);
    lstTrees.Click = [this] { Log.push_back("lstTrees_Click"); };
    cmdTool.Click = [this] { Log.push_back("cmdTool_Click"); };
    pctColor.Click = [this] { Log.push_back("pctColor_Click"); };
    pctColor.KeyDown = [this](int code) { Log.push_back("pctColor_KeyDown(" + std::to_string(code) + ")"); };
    pctColor.GotFocus = [this] { Log.push_back("pctColor_GotFocus"); };
    txtNumber.LostFocus = [this] {
      if (Refuses) txtNumber.SetFocus();
    };
  }

  Events& Log;
  bool Refuses = false;
  TextBox txtNumber{*this, "txtNumber", {.Place = {120, 120, 1800, 330}, .AccessibleName = "Number"}};
  ListBox lstTrees{*this, "lstTrees", {.Place = {120, 600, 2400, 1800}, .AccessibleName = "Trees"}};
  Button cmdTool{*this, "cmdTool", {.Place = {2700, 600, 480, 450}, .AccessibleName = "Tool"}, kSquare};
  PictureBox pctColor{
      *this, "pctColor", {.Place = {2700, 1200, 900, 360}, .AccessibleName = "Color"}, {9, 9, 9}, PictureUse::Input};
  PictureBox pctShown{*this, "pctShown", {.Place = {2700, 1800, 900, 360}}};
};

class FormsMore : public DesktopTest {
 protected:
  FormsMore() { form->Show(ShowMode::Modeless); }
  ~FormsMore() override { form->Unload(); }
  Events NewEvents() { return std::exchange(events, {}); }

  Events events;
  std::shared_ptr<MoreForm> form = std::make_shared<MoreForm>(desktop(), events);
};

TEST_F(FormsMore, AnEntryOfAnOpenListIsPickedByKeys) {
  user.Choose(form->lstTrees, 2);
  EXPECT_EQ(2, form->lstTrees.ListIndex());
  EXPECT_EQ(20, form->lstTrees.SelectedData());
  EXPECT_EQ("Cedar", user.See(form->lstTrees).Text);
  EXPECT_EQ("lstTrees_Click", events.back());
}

TEST_F(FormsMore, AListSelectedByProgramRaisesClickOnce) {
  form->lstTrees.ListIndex(1);
  form->lstTrees.ListIndex(1);
  EXPECT_EQ(Events{"lstTrees_Click"}, NewEvents());
  EXPECT_EQ((std::pair{std::string("Birch"), 1}),
            (std::pair{user.See(form->lstTrees).Text, user.See(form->lstTrees).Value}));
  form->lstTrees.List(1, "Beech");
  EXPECT_EQ("Beech", user.See(form->lstTrees).Text);
  form->lstTrees.Clear();
  EXPECT_EQ(-1, user.See(form->lstTrees).Value);
  EXPECT_EQ(Events{}, NewEvents());
}

TEST_F(FormsMore, EntriesAddedWhileShownCanBePicked) {
  for (int i = 0; i < 50; ++i) form->lstTrees.AddItem("Tree " + std::to_string(i));
  user.Choose(form->lstTrees, 40);
  EXPECT_EQ("Tree 37", user.See(form->lstTrees).Text);
}

TEST_F(FormsMore, APictureButtonIsPressedAndCanBeDisabled) {
  user.Click(form->cmdTool);
  EXPECT_EQ(Events{"cmdTool_Click"}, NewEvents());
  form->cmdTool.Enabled(false);
  NewEvents();
  user.Click(form->cmdTool);
  EXPECT_EQ(Events{}, NewEvents());
  EXPECT_EQ("", user.See(form->cmdTool).Text);
}

TEST_F(FormsMore, AUsedPictureBoxTakesClicksWithTheFocusFirst) {
  user.Click(form->pctColor);
  EXPECT_EQ((Events{"pctColor_GotFocus", "pctColor_Click"}), NewEvents());
  form->pctColor.Enabled(false);
  user.Click(form->pctColor);
  EXPECT_EQ(Events{}, NewEvents());
  EXPECT_NE(form->pctColor.BackColor(), form->pctColor.ShownBackColor());
}

TEST_F(FormsMore, AClickIsDroppedWhenTheFieldKeepsTheFocus) {
  user.ClickInto(form->txtNumber);
  form->Refuses = true;
  user.Click(form->pctColor);
  const Events seen = NewEvents();
  EXPECT_EQ(0, std::count(seen.begin(), seen.end(), "pctColor_Click"));
  EXPECT_TRUE(user.See(form->txtNumber).Focused);
}

TEST_F(FormsMore, KeysReachAUsedPictureBoxButDialogKeysDoNot) {
  user.Click(form->pctColor);
  NewEvents();
  user.PressKey(*form, 'X');
  user.PressKey(*form, kKeyCodeSpace);
  user.PressKey(*form, kKeyCodeShift);
  EXPECT_EQ((Events{"pctColor_KeyDown(88)", "pctColor_KeyDown(32)", "pctColor_KeyDown(16)"}), NewEvents());
  user.Press(*form, kTab);
  EXPECT_FALSE(form->pctColor.HasFocus());
  EXPECT_EQ(Events{}, NewEvents());
}

TEST_F(FormsMore, APictureToLookAtTakesNoFocus) {
  user.Click(form->pctShown);
  EXPECT_FALSE(form->pctShown.HasFocus());
  EXPECT_FALSE(form->pctShown.IsTabStop());
}

TEST_F(FormsMore, AColorIsChosenOrNot) {
  ColorRequest request{form->Window()->NativeHandle(), kStartFromColor, {10, 20, 30}};
  script.ExpectColor([this](ColorRequest& asked) { user.PickColor(asked, {250, 128, 7}); });
  EXPECT_TRUE(desktop().ChooseColor(request));
  EXPECT_EQ((Color{250, 128, 7}), request.Color);
  script.ExpectColor([this](ColorRequest& asked) { user.CancelColor(asked); });
  EXPECT_FALSE(desktop().ChooseColor(request));
  EXPECT_EQ((Color{250, 128, 7}), request.Color);
}

TEST_F(FormsMore, AnErrorWhileColorsAreOpenClosesThemAndTravels) {
  ColorRequest request;
  script.ExpectColor([](ColorRequest&) { throw std::runtime_error("no paint"); });
  EXPECT_THROW(desktop().ChooseColor(request), std::runtime_error);
}

TEST_F(FormsMore, ANumberFieldIsExactUntilItIsTypedInto) {
  NumberField number(form->txtNumber);
  EXPECT_EQ(std::nullopt, number.Value());
  number.Show(1.0 / 3, "0.33");
  EXPECT_EQ(1.0 / 3, number.Value());
  EXPECT_FALSE(number.IsEdited());
  user.Type(form->txtNumber, "0.33");
  EXPECT_TRUE(number.IsEdited());
  EXPECT_EQ(0.33, number.Value());
  user.Type(form->txtNumber, "0.34");
  EXPECT_TRUE(number.IsEdited());
  EXPECT_EQ(0.34, number.Value());
  user.Type(form->txtNumber, "x");
  EXPECT_TRUE(number.IsEdited());
  EXPECT_EQ(std::nullopt, number.Value());
}

TEST(FormsGlyph, CoversItsPixelsAtEverySize) {
  for (const int pixels : {16, 24, 32}) {
    const Image image = DrawGlyph(kSquare, pixels, {200, 0, 0});
    const auto alphaAt = [&](double share) {
      const auto at = static_cast<std::size_t>(share * pixels);
      return image.Pixels[(at * static_cast<std::size_t>(pixels) + at) * 4 + 3];
    };
    EXPECT_EQ(0, alphaAt(0.1));
    EXPECT_EQ(255, alphaAt(0.5));
    EXPECT_EQ(0, alphaAt(0.9));
  }
}

TEST(FormsGlyph, IsDrawnInTheInkThatIsGivenAndAnOutlineInAnotherOneIsAHole) {
  const Image image = DrawGlyph({{kSquare.Outlines[0], {{6, 6}, {10, 6}, {10, 10}, {6, 10}}}}, 16, {200, 10, 30});
  const auto pixel = [&](std::size_t at) {
    const std::uint8_t* const parts = &image.Pixels[(at * 16 + at) * 4];
    return std::vector<int>(parts, parts + 4);
  };
  EXPECT_EQ((std::vector<int>{200, 10, 30, 255}), pixel(5));
  EXPECT_EQ(0, pixel(8)[3]);
}

TEST(FormsGlyph, EdgesAreSmoothWhereTheyCutPixels) {
  const Image image = DrawGlyph({{{{0.5, 0}, {16, 0}, {16, 16}, {0.5, 16}}}}, 16, {});
  EXPECT_EQ(128, image.Pixels[3]);
  EXPECT_EQ(255, image.Pixels[7]);
}

/// A form that finds nothing to show when it is loaded.
struct EmptyForm final : Form {
  explicit EmptyForm(Desktop& desktop) : Form(desktop, "frmEmpty", {.Client = {3000, 3000}}) {}
  void Form_Load() override { Unload(); }
};

TEST_F(FormsMore, AFormThatUnloadsAsItLoadsIsNotShown) {
  const auto empty = std::make_shared<EmptyForm>(desktop());
  empty->Show();
  EXPECT_FALSE(empty->IsLoaded());
  EXPECT_FALSE(empty->Visible());
}

}  // namespace
}  // namespace orx::test
