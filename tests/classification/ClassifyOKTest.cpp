// What OK of the classification dialog checks and writes, and what it leaves alone.
#include <cmath>

#include "tests/classification/ClassifyTest.h"

namespace orx::test {
namespace {

TEST_F(ClassifyTest, OKWithoutAChangeWritesNothingWhateverTheFormat) {
  data.Minimum = 1.0 / 3;
  data.Maximum = 1e7 * std::acos(-1.0);
  data.FirstSize = 2.0 / 3;
  for (const std::int32_t method : {0, 3, 6, 7}) {
    for (const char* const format : kValueFormats) {
      data.Method = method;
      data.Format = format;
      data.Step = (data.Maximum - data.Minimum) / data.Classes;
      if (method == classifymethod::kEqualSteps) data.Maximum = data.Classes * data.Step + data.Minimum;
      EXPECT_FALSE(Classify([] {})) << format;
      EXPECT_FALSE(isDirty);
      EXPECT_EQ(Calls{}, data.Writes()) << format << " " << method;
    }
  }
}

TEST_F(ClassifyTest, FormatsWrittenOtherwiseOrUnknownStayAsTheyAre) {
  for (const char* const format : {"general", " 0.00 ", "0.000000", "Currency", ""}) {
    data.Format = format;
    Classify([] {});
    EXPECT_EQ(Calls{}, data.Writes()) << format;
    EXPECT_EQ(format, data.Format);
  }
}

TEST_F(ClassifyTest, AChangedFormatAloneChangesOnlyTheFormat) {
  data.Minimum = 1.0 / 3;
  data.Maximum = 2e6 / 7;
  data.FirstSize = 0.1 + 0.2;
  const double minimum = data.Minimum;
  const double maximum = data.Maximum;
  const double size = data.FirstSize;
  Classify([this] {
    user.Choose(form->cboFormat, 1);
    EXPECT_EQ("0", Seen(form->txtMin));
    EXPECT_EQ("285714", Seen(form->txtMax));
  });
  EXPECT_EQ("0", data.Format);
  EXPECT_EQ(minimum, data.Minimum);
  EXPECT_EQ(maximum, data.Maximum);
  EXPECT_EQ(size, data.FirstSize);
  EXPECT_EQ(kAllWrites, data.Writes());
}

TEST_F(ClassifyTest, ATypedNumberCountsAlsoWhereItReadsAsTheRoundedOneShown) {
  for (const char* const typed : {"0", "0.0"}) {
    data.Format = "0";
    data.Minimum = 0.4;
    data.Maximum = 1234.4;
    Classify([this, typed] {
      EXPECT_EQ("0", Seen(form->txtMin));
      EXPECT_EQ("1234", Seen(form->txtMax));
      Enter(form->txtMin, typed);
      Enter(form->txtMax, "1234");
    });
    EXPECT_EQ(0, data.Minimum) << typed;
    EXPECT_EQ(1234, data.Maximum) << typed;
  }
}

TEST_F(ClassifyTest, APastedNumberCountsAlsoWhereItIsTheTextThatWasThere) {
  data.Format = "0";
  data.Minimum = 0.4;
  data.Maximum = 1234.4;
  data.Counted = 9;
  Classify([this] {
    user.Paste(form->txtMin, "0");
    user.Paste(form->txtMax, "1234");
    user.Paste(form->cboClasses, Seen(form->cboClasses));
  });
  EXPECT_EQ(0, data.Minimum);
  EXPECT_EQ(1234, data.Maximum);
  EXPECT_EQ(9, data.Classes);
}

TEST_F(ClassifyTest, AFieldThatTheFocusOnlyPassesStaysExact) {
  data.Minimum = 1.0 / 3;
  const double minimum = data.Minimum;
  Classify([this] {
    user.ClickInto(form->txtMin);
    user.Press(*form, kTab);
  });
  EXPECT_EQ(minimum, data.Minimum);
  EXPECT_EQ(Calls{}, data.Writes());
}

TEST_F(ClassifyTest, SizesThatAreNoNumbersAreRefusedAndKept) {
  Classify([this] {
    for (TextBox* const field : {&form->txtSizeFirst, &form->txtSizeLast}) {
      const std::string before = field->Text();
      user.Type(*field, "big");
      ExpectRefused("Invalid number!", *field);
      EXPECT_EQ("big", Seen(*field));
      user.Type(*field, before);
    }
    Cancel();
  });
}

TEST_F(ClassifyTest, SizesBeingTypedOutliveARefresh) {
  Classify([this] {
    user.Type(form->txtSizeFirst, "3.5");
    user.Choose(form->cboRangeFormat, 1);
    user.Choose(form->cboMethod, 2);
    EXPECT_EQ("3.5", Seen(form->txtSizeFirst));
    EXPECT_EQ("By Color and pixel Size", Seen(form->cboRangeFormat));
  });
  EXPECT_EQ(3.5, data.FirstSize);
  EXPECT_EQ(legendstyle::kByColorAndSize, data.Style);
}

TEST_F(ClassifyTest, ARangeInWrongOrderIsRefused) {
  data.Minimum = 100;
  data.Maximum = 100;
  Classify([this] {
    ExpectRefused("Maximum value must be greater then Minimum value!", form->txtMin);
    Cancel();
  });
}

TEST_F(ClassifyTest, AHostWithoutClassesIsRefused) {
  data.Classes = 0;
  Classify([this] {
    EXPECT_EQ("0", Seen(form->cboClasses));
    ExpectRefused("Number of classes invalid!", form->cboClasses);
    user.Type(form->cboClasses, "3");
  });
  EXPECT_EQ(3, data.Classes);
}

TEST_F(ClassifyTest, ABoxNobodyTouchedStandsForTheNumberOfTheSettings) {
  data.Counted = 9;
  Classify([this] { EXPECT_EQ("9", Seen(form->cboClasses)); });
  EXPECT_EQ(Calls{}, data.Writes());
  EXPECT_EQ(4, data.Classes);
}

TEST_F(ClassifyTest, WhereTheSettingsHaveNoNumberOfClassesOKTakesTheOneShown) {
  flags = 0;
  data.Counted = 5;
  for (const bool isUnreadable : {false, true}) {
    data.Classes = isUnreadable ? 7 : 0;
    if (isUnreadable) data.Log.Failing = {"NumberOfClasses"};
    EXPECT_TRUE(Classify([this] { EXPECT_EQ("5", Seen(form->cboClasses)); }));
    EXPECT_EQ(5, data.Classes);
    EXPECT_TRUE(isDirty);
  }
}

TEST_F(ClassifyTest, PickingTheEntryThatIsShownIsAPick) {
  data.Method = 3;
  data.Style = 9;
  data.Format = "Currency";
  data.Counted = 9;
  Classify([this] {
    user.Choose(form->cboMethod, 0);
    user.Choose(form->cboRangeFormat, 0);
    user.Choose(form->cboFormat, 0);
    user.Choose(form->cboClasses, 8);
  });
  EXPECT_EQ(classifymethod::kEqualIntervals, data.Method);
  EXPECT_EQ(legendstyle::kByColor, data.Style);
  EXPECT_EQ("General", data.Format);
  EXPECT_EQ(9, data.Classes);
}

TEST_F(ClassifyTest, PickingTheEntryThatIsShownByTheMouseIsAPick) {
  data.Method = 3;
  data.Style = 9;
  data.Format = "Currency";
  data.Counted = 9;
  Classify([this] {
    user.Pick(form->cboMethod, 0);
    user.Pick(form->cboRangeFormat, 0);
    user.Pick(form->cboFormat, 0);
    user.Pick(form->cboClasses, 8);
  });
  EXPECT_EQ(classifymethod::kEqualIntervals, data.Method);
  EXPECT_EQ(legendstyle::kByColor, data.Style);
  EXPECT_EQ("General", data.Format);
  EXPECT_EQ(9, data.Classes);
}

TEST_F(ClassifyTest, WithEqualStepsTheShownEndIsWrittenWithAnyChange) {
  data.Method = classifymethod::kEqualSteps;
  data.Step = 2.5;
  data.Maximum = 10 + 1e-13;
  const double maximum = data.Maximum;
  Classify([] {});
  EXPECT_EQ(maximum, data.Maximum);
  EXPECT_EQ(Calls{}, data.Writes());
  Classify([this] {
    EXPECT_EQ("10.00", Seen(form->txtMax));
    user.Toggle(form->chkSeriesInLegend);
  });
  EXPECT_EQ(10, data.Maximum);
}

TEST_F(ClassifyTest, AStyleThatTheListLacksGivesWayToTheEntryPickedLast) {
  data.Style = 9;
  Classify([] {});
  EXPECT_EQ(Calls{}, data.Writes());
  Classify([this] {
    EXPECT_EQ("By Color", Seen(form->cboRangeFormat));
    user.Choose(form->cboRangeFormat, 1);
    user.Choose(form->cboRangeFormat, 0);
  });
  EXPECT_EQ(legendstyle::kByColor, data.Style);
}

TEST_F(ClassifyTest, SwitchesAreWritten) {
  Classify([this] {
    user.Toggle(form->chkClassiffyAsMissing);
    user.Toggle(form->chkSeriesInLegend);
  });
  EXPECT_TRUE(data.Outside);
  EXPECT_TRUE(data.ShowsName);
  EXPECT_TRUE(isDirty);
}

TEST_F(ClassifyTest, CancelAndTheCloseBoxWriteNothing) {
  for (const bool byBox : {false, true}) {
    isDirty = true;
    EXPECT_FALSE(Classify([this, byBox] {
      Enter(form->txtMax, "50");
      user.Toggle(form->chkSeriesInLegend);
      if (byBox) return user.CloseBox(*form);
      user.Press(*form, kEscape);
    }));
    EXPECT_FALSE(isDirty);
    EXPECT_EQ(Calls{}, data.Writes());
  }
}

}  // namespace
}  // namespace orx::test
