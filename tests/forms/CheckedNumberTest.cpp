// Checked number fields: what they accept, what they refuse, and that values stay exact.
#include <cstdio>

#include "forms/CheckedNumberField.h"
#include "forms/FieldTexts.h"
#include "tests/support/DesktopTest.h"

namespace orx::test {
namespace {

struct NumbersForm final : Form {
  explicit NumbersForm(Desktop& desktop) : Form(desktop, "frmNumbers", {.Caption = "Numbers", .Client = {6000, 3000}}) {
    Size.Accepted = [this] { ++SizesAccepted; };
    Span.Changed = [this] { ++SpanChanges; };
    cmdOK.Click = [this] { ++Presses; };
    Span.Show(10, 20);
  }

  TextBox txtSize{*this, "txtSize", {.Place = {120, 120, 1500, 330}, .AccessibleName = "Size:"}};
  TextBox txtFrom{*this, "txtFrom", {.Place = {120, 540, 1500, 330}, .AccessibleName = "From"}};
  TextBox txtTo{*this, "txtTo", {.Place = {120, 960, 1500, 330}, .AccessibleName = "To"}};
  Button cmdOK{*this, "cmdOK", {.Caption = "&OK", .Place = {120, 1380, 1275, 375}}, ButtonRole::Default};
  CheckedNumberField Size{txtSize, {.Minimum = 1, .Maximum = 144}};
  CheckedNumberField From{txtFrom};
  CheckedNumberField To{txtTo};
  NumberSpan Span{From, To};
  int SizesAccepted = 0;
  int SpanChanges = 0;
  int Presses = 0;
};

class FormsNumberField : public DesktopTest {
 protected:
  void Show() { form->Show(ShowMode::Modeless); }
  void TearDown() override {
    form->Unload();
    DesktopTest::TearDown();
  }
  void ExpectRefusal(const std::string& title, const std::string& text) {
    script.ExpectMessage({text, title, MessageIcon::Exclamation});
  }
  /// Types into the field and leaves it by pressing OK.
  void TypeAndPress(TextBox& field, const std::string& text) {
    user.Type(field, text);
    user.Click(form->cmdOK);
  }

  std::shared_ptr<NumbersForm> form = std::make_shared<NumbersForm>(desktop());
};

using FormsNumberSpan = FormsNumberField;

TEST_F(FormsNumberField, AValueShowsAsItsShortestText) {
  form->Size.Show(0.1);
  EXPECT_EQ("0.1", form->txtSize.Text());
}

TEST_F(FormsNumberField, AnEntryBecomesTheValueWhenTheFocusLeaves) {
  Show();
  user.Type(form->txtSize, "12.5");
  EXPECT_EQ(0, form->Size.Value());
  user.Press(*form, kTab);
  EXPECT_EQ(12.5, form->Size.Value());
  EXPECT_EQ(1, form->SizesAccepted);
}

TEST_F(FormsNumberField, AnAcceptedEntryIsShownInPlainNotation) {
  Show();
  TypeAndPress(form->txtSize, " &H10 ");
  EXPECT_EQ("16", user.See(form->txtSize).Text);
  EXPECT_EQ(1, form->Presses);
}

TEST_F(FormsNumberField, TheFocusSelectsAllOfTheText) {
  form->Size.Show(12.5);
  Show();
  EXPECT_EQ(0, form->txtSize.SelStart());
  EXPECT_EQ(4, form->txtSize.SelLength());
}

TEST_F(FormsNumberField, LeavingAnUntouchedFieldAcceptsNothing) {
  form->Size.Show(0.5);
  Show();
  user.Press(*form, kTab);
  EXPECT_EQ(0.5, form->Size.Value());
  EXPECT_EQ(0, form->SizesAccepted);
}

TEST_F(FormsNumberField, ATextThatIsNoNumberIsRefusedAndPutBack) {
  form->Size.Show(12);
  Show();
  ExpectRefusal("Invalid number", "Size: \"large\" is not a number. Type a number from 1 to 144.");
  TypeAndPress(form->txtSize, "large");
  EXPECT_EQ("12", user.See(form->txtSize).Text);
  EXPECT_EQ(12, form->Size.Value());
}

TEST_F(FormsNumberField, ARefusedEntryKeepsTheFocusAndDropsThePress) {
  form->Size.Show(12);
  Show();
  ExpectRefusal("Wrong value", "Size: 0.5 is not allowed. Type a number from 1 to 144.");
  TypeAndPress(form->txtSize, "0.5");
  EXPECT_EQ(0, form->Presses);
  EXPECT_TRUE(user.See(form->txtSize).Focused);
  EXPECT_EQ(2, form->txtSize.SelLength());
}

TEST_F(FormsNumberField, EnterChecksTheFieldBeforeItPressesTheDefaultButton) {
  form->Size.Show(12);
  Show();
  ExpectRefusal("Wrong value", "Size: 145 is not allowed. Type a number from 1 to 144.");
  user.Type(form->txtSize, "145");
  user.Press(*form, kEnter);
  EXPECT_EQ(0, form->Presses);
  user.Press(*form, kEnter);
  EXPECT_EQ(1, form->Presses);
}

TEST_F(FormsNumberField, BothEndsOfTheRangeAreAccepted) {
  Show();
  TypeAndPress(form->txtSize, "144");
  EXPECT_EQ(144, form->Size.Value());
  TypeAndPress(form->txtSize, "1");
  EXPECT_EQ(1, form->Size.Value());
}

TEST_F(FormsNumberField, AnEmptyEntryIsRefused) {
  form->Size.Show(12);
  Show();
  ExpectRefusal("Invalid number", "Size: \"\" is not a number. Type a number from 1 to 144.");
  TypeAndPress(form->txtSize, "");
  EXPECT_EQ(12, form->Size.Value());
}

TEST_F(FormsNumberField, ANumberBeyondADoubleIsRefusedWithoutARange) {
  Show();
  ExpectRefusal("Invalid number", "From: \"1E999\" is not a number. Type a number.");
  TypeAndPress(form->txtFrom, "1E999");
  EXPECT_EQ(10, form->From.Value());
}

TEST_F(FormsNumberField, NumbersAreReadAndShownInTheUsersLocale) {
  testDesktop().Separators({",", ".", "€"});
  Show();
  TypeAndPress(form->txtSize, "12,5");
  EXPECT_EQ(12.5, form->Size.Value());
  EXPECT_EQ("12,5", user.See(form->txtSize).Text);
}

TEST_F(FormsNumberField, AFormatThatRoundsLeavesAnUneditedValueExact) {
  const auto twoPlaces = [](double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", value);
    return std::string(text);
  };
  CheckedNumberField rounded(form->txtSize, {.Format = twoPlaces});
  rounded.Show(1.0 / 3);
  EXPECT_EQ("0.33", form->txtSize.Text());
  Show();
  user.Press(*form, kTab);
  EXPECT_TRUE(rounded.Check());
  EXPECT_EQ(1.0 / 3, rounded.Value());
  form->Unload();
}

TEST_F(FormsNumberField, AValueOutsideTheRangeStaysUntilItIsEdited) {
  form->Size.Show(500);
  Show();
  user.Click(form->cmdOK);
  EXPECT_EQ(1, form->Presses);
  EXPECT_EQ(500, form->Size.Value());
}

TEST_F(FormsNumberField, CheckTakesAPendingEntryOver) {
  form->txtSize.Text("7");
  EXPECT_TRUE(form->Size.IsPending());
  EXPECT_TRUE(form->Size.Check());
  EXPECT_EQ(7, form->Size.Value());
}

TEST_F(FormsNumberField, ClearEmptiesTheBox) {
  form->Size.Show(7);
  form->Size.Clear();
  EXPECT_EQ("", form->txtSize.Text());
  EXPECT_TRUE(form->Size.Check());
}

TEST_F(FormsNumberField, MessagesAreTranslatedBeforeTheValuesArePutIn) {
  form->Size.Translate = [](const std::string& text) { return "<" + text + ">"; };
  form->Size.Show(12);
  Show();
  ExpectRefusal("<Wrong value>", "<Size: 0 is not allowed. Type a number from 1 to 144.>");
  TypeAndPress(form->txtSize, "0");
}

TEST_F(FormsNumberSpan, BothEndsCanBeTypedOneAfterTheOther) {
  Show();
  user.Type(form->txtFrom, "100");
  user.Press(*form, kTab);
  EXPECT_FALSE(form->Span.IsInOrder());
  TypeAndPress(form->txtTo, "150");
  EXPECT_EQ(1, form->Presses);
  EXPECT_EQ(100, form->From.Value());
  EXPECT_EQ(150, form->To.Value());
}

TEST_F(FormsNumberSpan, LeavingThePairInWrongOrderIsRefusedAndPutsBothBack) {
  Show();
  user.Type(form->txtFrom, "100");
  user.Press(*form, kTab);
  ExpectRefusal("Invalid range", "From (100) must be less than To (20).");
  user.Click(form->cmdOK);
  EXPECT_EQ(0, form->Presses);
  EXPECT_EQ("10", user.See(form->txtFrom).Text);
  EXPECT_EQ("20", user.See(form->txtTo).Text);
  EXPECT_TRUE(user.See(form->txtTo).Focused);
}

TEST_F(FormsNumberSpan, EqualEndsAreRefused) {
  Show();
  ExpectRefusal("Invalid range", "From (20) must be less than To (20).");
  TypeAndPress(form->txtFrom, "20");
  EXPECT_EQ(10, form->From.Value());
  EXPECT_TRUE(user.See(form->txtFrom).Focused);
}

TEST_F(FormsNumberSpan, APairInWrongOrderFromTheProgramStaysWhileItIsNotEdited) {
  form->Span.Show(5, 2);
  Show();
  user.ClickInto(form->txtFrom);
  user.Click(form->cmdOK);
  EXPECT_EQ(1, form->Presses);
  EXPECT_TRUE(form->Span.Check());
}

TEST_F(FormsNumberSpan, CheckRefusesAPendingEntryInWrongOrder) {
  form->txtTo.Text("3");
  ExpectRefusal("Invalid range", "From (10) must be less than To (3).");
  EXPECT_FALSE(form->Span.Check());
  EXPECT_EQ(20, form->To.Value());
}

TEST_F(FormsNumberSpan, ChangedTellsEachEntryAndEachPuttingBack) {
  Show();
  ExpectRefusal("Invalid range", "From (30) must be less than To (20).");
  TypeAndPress(form->txtFrom, "30");
  EXPECT_EQ(2, form->SpanChanges);
}

TEST(FormsFillIn, PutsValuesAtTheirPlacesAndLeavesTheRest) {
  EXPECT_EQ("b a {3} {x} {", FillIn("{2} {1} {3} {x} {", {"a", "b"}));
}

TEST(FormsFillIn, DoesNotLookForPlacesInValues) {
  EXPECT_EQ("{2} b", FillIn("{1} {2}", {"{2}", "b"}));
}

}  // namespace
}  // namespace orx::test
