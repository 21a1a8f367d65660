// The classification dialog as its user works with it: what it shows, and how range, step and classes move.
#include "tests/classification/ClassifyTest.h"
#include "text/CharacterCount.h"

namespace orx::test {
namespace {

TEST_F(ClassifyTest, ShowsTheSettingsOfTheDataObject) {
  data.Format = "0.0";
  data.ShowsName = true;
  data.Outside = true;
  data.Style = legendstyle::kBySize;
  Classify([this] {
    EXPECT_EQ("Data Classify", user.SeeCaption(*form));
    EXPECT_EQ("Equal intervals", Seen(form->cboMethod));
    EXPECT_EQ("0.0", Seen(form->cboFormat));
    EXPECT_EQ("0.0", Seen(form->txtMin));
    EXPECT_EQ("100.0", Seen(form->txtMax));
    EXPECT_EQ("25.0", Seen(form->txtStep));
    EXPECT_EQ("4", Seen(form->cboClasses));
    EXPECT_EQ("By pixel Size", Seen(form->cboRangeFormat));
    EXPECT_EQ("2", Seen(form->txtSizeFirst));
    EXPECT_EQ("40", Seen(form->txtSizeLast));
    EXPECT_TRUE(IsTicked(form->chkSeriesInLegend));
    EXPECT_TRUE(IsTicked(form->chkClassiffyAsMissing));
    EXPECT_FALSE(IsTicked(form->chkAutoClassify));
    Cancel();
  });
}

TEST_F(ClassifyTest, ReadsTheDataObjectInOrder) {
  Classify([this] {
    EXPECT_EQ((Calls{"ValueFormat", "ShowParameterName", "ClassifyMethod", "NumberOfClasses", "MinValue", "MaxValue",
                     "StepSize", "OutsideAsMissing", "LegendStyle", "FirstClassSize", "LastClassSize", "ClassCount"}),
              data.Log.Calls);
    Cancel();
  });
}

TEST_F(ClassifyTest, TheListsHaveTheirEntriesInOrder) {
  Classify([this] {
    const auto entries = [](const ListControl& list) {
      Calls texts;
      for (int i = 0; i < list.ListCount(); ++i) texts.push_back(list.List(i));
      return texts;
    };
    EXPECT_EQ((Calls{"Equal intervals", "Equal steps", "User defined"}), entries(form->cboMethod));
    EXPECT_EQ((Calls{"General", "0", "0.0", "0.00", "0.000", "0.0000", "0.00000", "0.0000000", "0.000000000",
                     "0.0000E+000", "#,###,##0", "#,###,##0.0"}),
              entries(form->cboFormat));
    EXPECT_EQ((Calls{"By Color", "By Color and pixel Size", "By pixel Size"}), entries(form->cboRangeFormat));
    EXPECT_EQ(64, form->cboClasses.ListCount());
    EXPECT_EQ("1", form->cboClasses.List(0));
    EXPECT_EQ("64", form->cboClasses.List(63));
    Cancel();
  });
}

TEST_F(ClassifyTest, EachMethodOpensItsOwnFields) {
  Classify([this] {
    const auto expect = [this](bool maximum, bool step) {
      EXPECT_TRUE(IsEnabled(form->txtMin));
      EXPECT_EQ(maximum, IsEnabled(form->txtMax));
      EXPECT_EQ(maximum, IsEnabled(form->lblClassify4));
      EXPECT_EQ(step, IsEnabled(form->txtStep));
      EXPECT_EQ(step, IsEnabled(form->lblClassify0));
    };
    expect(true, false);
    user.Choose(form->cboMethod, 1);
    expect(false, true);
    user.Choose(form->cboMethod, 2);
    expect(false, false);
    Cancel();
  });
}

TEST_F(ClassifyTest, EqualIntervalsDivideTheRangeByTheClasses) {
  Classify([this] {
    EXPECT_EQ("25.00", Seen(form->txtStep));
    user.Type(form->cboClasses, "8");
    EXPECT_EQ("12.50", Seen(form->txtStep));
    Enter(form->txtMax, "80");
    EXPECT_EQ("10.00", Seen(form->txtStep));
  });
  EXPECT_TRUE(isDirty);
  EXPECT_EQ(kAllWrites, data.Writes());
  EXPECT_EQ(8, data.Classes);
  EXPECT_EQ(80, data.Maximum);
}

TEST_F(ClassifyTest, EqualStepsMoveTheMaximumWhichIsDisabled) {
  data.Minimum = 10;
  Classify([this] {
    user.Choose(form->cboMethod, 1);
    Enter(form->txtStep, "2.5");
    EXPECT_EQ("20.00", Seen(form->txtMax));
    EXPECT_FALSE(IsEnabled(form->txtMax));
  });
  EXPECT_EQ(classifymethod::kEqualSteps, data.Method);
  EXPECT_EQ(20, data.Maximum);
}

TEST_F(ClassifyTest, AStepThatIsNotPositiveBecomesOne) {
  Classify([this] {
    user.Choose(form->cboMethod, 1);
    for (const char* const step : {"0", "-7"}) {
      Enter(form->txtStep, step);
      EXPECT_EQ("1.00", Seen(form->txtStep));
      EXPECT_EQ("4.00", Seen(form->txtMax));
      Enter(form->txtStep, "3");
    }
    Cancel();
  });
}

TEST_F(ClassifyTest, AMaximumBelowTheMinimumMovesTheMinimumDown) {
  data.Minimum = 10;
  data.Maximum = 20;
  Classify([this] {
    Enter(form->txtMax, "5");
    EXPECT_EQ("-5.00", Seen(form->txtMin));
    EXPECT_EQ("5.00", Seen(form->txtMax));
  });
  EXPECT_EQ(-5, data.Minimum);
  EXPECT_EQ(5, data.Maximum);
}

TEST_F(ClassifyTest, AMinimumAboveTheMaximumMovesTheMaximumUp) {
  data.Minimum = 10;
  data.Maximum = 20;
  Classify([this] {
    Enter(form->txtMin, "25");
    EXPECT_EQ("35.00", Seen(form->txtMax));
  });
  EXPECT_EQ(25, data.Minimum);
  EXPECT_EQ(35, data.Maximum);
}

TEST_F(ClassifyTest, TextThatIsNoNumberBeepsAndIsPutBackInAFocusedField) {
  Classify([this] {
    Enter(form->txtMin, "abc");
    EXPECT_EQ(1, script.Beeps);
    EXPECT_EQ("0.00", Seen(form->txtMin));
    EXPECT_TRUE(user.See(form->txtMin).Focused);
    EXPECT_EQ(4, form->txtMin.SelLength());
    Cancel();
  });
}

TEST_F(ClassifyTest, EnterInARefusedFieldDoesNotPressOK) {
  Classify([this] {
    user.Type(form->txtMax, "1,5,");
    user.Press(*form, kEnter);
    EXPECT_TRUE(form->Visible());
    EXPECT_EQ(1, script.Beeps);
    Cancel();
  });
  EXPECT_EQ(Calls{}, data.Writes());
}

TEST_F(ClassifyTest, EnterTakesTheTypedValue) {
  Classify([this] {
    user.Type(form->txtMax, "60");
    user.Press(*form, kEnter);
  });
  EXPECT_EQ(60, data.Maximum);
}

TEST_F(ClassifyTest, ClassCountsStayBetween1And255WhileTheyAreTyped) {
  Classify([this] {
    user.Type(form->cboClasses, "300");
    EXPECT_EQ("255", Seen(form->cboClasses));
    user.Type(form->cboClasses, "0");
    EXPECT_EQ("1", Seen(form->cboClasses));
    user.Type(form->cboClasses, "-3");
    EXPECT_GE(form->cboClasses.Text(), "1");
    user.Type(form->cboClasses, "200");
    EXPECT_EQ("0.50", Seen(form->txtStep));
  });
  EXPECT_EQ(200, data.Classes);
}

TEST_F(ClassifyTest, TypingGoesOnWhereItWasAfterEveryRefresh) {
  Classify([this] {
    // Each key refreshes all controls; the caret stays behind what was typed, so that the keys stay in order.
    user.Type(form->cboClasses, "123");
    EXPECT_EQ("123", Seen(form->cboClasses));
    user.Type(form->cboClasses, "2999");
    EXPECT_EQ("255", Seen(form->cboClasses));
  });
  EXPECT_EQ(255, data.Classes);
}

TEST_F(ClassifyTest, AnEmptyClassBoxWaitsForItsNumberAndIsRefusedByOK) {
  Classify([this] {
    user.Type(form->cboClasses, "");
    EXPECT_EQ("", Seen(form->cboClasses));
    EXPECT_EQ("25.00", Seen(form->txtStep));
    ExpectRefused("Invalid number!", form->cboClasses);
    Cancel();
  });
}

TEST_F(ClassifyTest, AnEntryOfTheClassListIsTaken) {
  Classify([this] {
    user.Choose(form->cboClasses, 9);
    EXPECT_EQ("10.00", Seen(form->txtStep));
  });
  EXPECT_EQ(10, data.Classes);
}

TEST_F(ClassifyTest, WithoutTheFlagTheClassBoxIsDisabled) {
  flags = 0x5F;
  Classify([this] {
    EXPECT_FALSE(IsEnabled(form->cboClasses));
    EXPECT_EQ("4", Seen(form->cboClasses));
  });
  EXPECT_EQ(Calls{}, data.Writes());
}

TEST_F(ClassifyTest, TheExponentFormatShowsThreeDigitsOfTheExponent) {
  data.Minimum = -1;
  data.Maximum = 125;
  data.Format = "0.0000E+000";
  Classify([this] {
    EXPECT_EQ("1.2500E+002", Seen(form->txtMax));
    EXPECT_EQ("-1.0000E+000", Seen(form->txtMin));
    user.Choose(form->cboFormat, 0);
    EXPECT_EQ("125", Seen(form->txtMax));
    Cancel();
  });
}

TEST_F(ClassifyTest, AutoClassifyTakesTheGivenRangeAndTenClasses) {
  Classify([this] {
    user.Toggle(form->chkAutoClassify);
    EXPECT_EQ("10", Seen(form->cboClasses));
    EXPECT_EQ("-5.00", Seen(form->txtMin));
    EXPECT_EQ("500.00", Seen(form->txtMax));
    EXPECT_EQ("Equal intervals", Seen(form->cboMethod));
    for (Control* const control : std::initializer_list<Control*>{&form->cboMethod, &form->txtMin, &form->txtMax,
                                                                  &form->txtStep, &form->cmdDefault})
      EXPECT_FALSE(IsEnabled(*control)) << control->Name();
  });
  EXPECT_EQ(classifymethod::kAutomatic, data.Method);
  EXPECT_EQ(10, data.Classes);
  EXPECT_EQ(-5, data.Minimum);
  EXPECT_EQ(500, data.Maximum);
}

TEST_F(ClassifyTest, UntickingAutoClassifyGoesBackToMethodAndClasses) {
  data.Method = classifymethod::kUserDefined;
  data.Classes = 7;
  Classify([this] {
    user.Toggle(form->chkAutoClassify);
    user.Toggle(form->chkAutoClassify);
    EXPECT_EQ("User defined", Seen(form->cboMethod));
    EXPECT_EQ("7", Seen(form->cboClasses));
    EXPECT_EQ("-5.00", Seen(form->txtMin));
  });
  EXPECT_EQ(classifymethod::kUserDefined, data.Method);
  EXPECT_EQ(7, data.Classes);
}

TEST_F(ClassifyTest, AutomaticDataOpenTickedAndFallBackToEqualIntervals) {
  data.Method = classifymethod::kAutomatic;
  data.Classes = 7;
  Classify([this] {
    EXPECT_TRUE(IsTicked(form->chkAutoClassify));
    EXPECT_EQ("10", Seen(form->cboClasses));
    EXPECT_EQ("500.00", Seen(form->txtMax));
    user.Toggle(form->chkAutoClassify);
    EXPECT_EQ("Equal intervals", Seen(form->cboMethod));
    EXPECT_EQ("7", Seen(form->cboClasses));
    EXPECT_TRUE(IsEnabled(form->cboMethod));
  });
  EXPECT_EQ(classifymethod::kEqualIntervals, data.Method);
  EXPECT_EQ(7, data.Classes);
}

TEST_F(ClassifyTest, DefaultTakesTheGivenRangeAndKeepsTheClasses) {
  data.Method = classifymethod::kUserDefined;
  data.Format = "0";
  Classify([this] {
    user.Click(form->cmdDefault);
    EXPECT_EQ("Equal intervals", Seen(form->cboMethod));
    EXPECT_EQ("0.00", Seen(form->cboFormat));
    EXPECT_EQ("-5.00", Seen(form->txtMin));
    EXPECT_EQ("500.00", Seen(form->txtMax));
    EXPECT_EQ("4", Seen(form->cboClasses));
    EXPECT_EQ("126.25", Seen(form->txtStep));
  });
  EXPECT_EQ(500, data.Maximum);
}

TEST_F(ClassifyTest, DefaultIsOfferedWhenAnyEndOfTheRangeIsKnown) {
  const std::pair<double, double> ranges[] = {{-999, -999}, {-999, 5}, {0, -999}, {-999.0001, -999}};
  for (const auto& [first, second] : ranges) {
    low = first;
    high = second;
    const bool isKnown = !(first == -999 && second == -999);
    Classify([this, isKnown] {
      EXPECT_EQ(isKnown, user.See(form->cmdDefault).Visible);
      Cancel();
    });
  }
}

TEST_F(ClassifyTest, FieldsSelectTheirTextWhenTheFocusComes) {
  Classify([this] {
    for (TextBox* const field : {&form->txtMin, &form->txtMax, &form->txtSizeFirst, &form->txtSizeLast}) {
      user.ClickInto(*field);
      user.Press(*form, kTab);
      field->SetFocus();
      EXPECT_EQ(CharacterCount(field->Text()), field->SelLength()) << field->Name();
    }
    Cancel();
  });
}

}  // namespace
}  // namespace orx::test
