// The classification dialog and its host: errors of the data object, the language, the locale, and the ways that lead
// to the dialog.
#include "pages/PageFactory.h"
#include "service/CCommonMapDialogs.h"
#include "tests/classification/ClassifyTest.h"

namespace orx::test {
namespace {

const Calls kReads = {"ValueFormat", "ShowParameterName", "ClassifyMethod", "NumberOfClasses",
                      "MinValue",    "MaxValue",          "StepSize",       "OutsideAsMissing",
                      "LegendStyle", "FirstClassSize",    "LastClassSize"};

TEST_F(ClassifyTest, APropertyThatCannotBeReadLeavesItsFieldAndTheRestWorks) {
  for (const std::string& property : kReads) {
    data.Log.Failing = {property};
    data.Format = "0.00";
    data.LastSize = 40;
    data.Classes = 4;
    data.Maximum = 100;
    Classify([this, &property] {
      EXPECT_EQ(property == "ValueFormat" ? "General" : "0.00", Seen(form->cboFormat)) << property;
      EXPECT_EQ(property == "LastClassSize" ? "0" : "40", Seen(form->txtSizeLast)) << property;
      if (property == "MaxValue") Enter(form->txtMax, "100");
      user.Type(form->cboClasses, "5");
      EXPECT_EQ(property == "ValueFormat" ? "20" : "20.00", Seen(form->txtStep)) << property;
    });
    EXPECT_TRUE(isDirty) << property;
    EXPECT_EQ(5, data.Classes) << property;
  }
}

TEST_F(ClassifyTest, APropertyThatCannotBeWrittenIsPassedOverAndTheRestIsWritten) {
  for (const std::string& write : kAllWrites) {
    data.Log.Failing = {write};
    data.Maximum = 100;
    data.LastSize = 40;
    data.Log.Calls.clear();
    EXPECT_TRUE(Classify([this] {
      Enter(form->txtMax, "200");
      user.Type(form->txtSizeLast, "33");
    })) << write;
    EXPECT_EQ(kAllWrites, data.Writes()) << write;
    EXPECT_EQ(write == "MaxValue=" ? 100 : 200, data.Maximum) << write;
    EXPECT_EQ(write == "LastClassSize=" ? 40 : 33, data.LastSize) << write;
  }
}

TEST_F(ClassifyTest, WithoutAClassCountTheNumberOfTheSettingsIsShown) {
  data.Log.Failing = {"ClassCount"};
  Classify([this] { EXPECT_EQ("4", Seen(form->cboClasses)); });
  EXPECT_EQ(Calls{}, data.Writes());
}

TEST_F(ClassifyTest, TheLocaleHasItsOwnSeparators) {
  testDesktop().Separators({",", ".", "€"});
  data.Maximum = 12345.5;
  data.Format = "#,###,##0.0";
  Classify([this] {
    EXPECT_EQ("12.345,5", Seen(form->txtMax));
    Enter(form->txtMin, "1.000,25");
    EXPECT_EQ("1.000,3", Seen(form->txtMin));
    Enter(form->txtMin, "0.5");
    EXPECT_EQ(1, script.Beeps);
    user.Type(form->txtSizeFirst, "2,5");
  });
  EXPECT_EQ(1000.25, data.Minimum);
  EXPECT_EQ(12345.5, data.Maximum);
  EXPECT_EQ(2.5, data.FirstSize);
}

TEST_F(ClassifyTest, TheLanguageTranslatesListsAndCaptionsAndGivesTheHelpNumber) {
  CallLog log;
  RecordingLanguage words(log);
  words.Texts = {{"_HelpLayerDataClassify", "77.5"}, {"Equal steps", "Schritte"}, {"By Color", "Farbe"}};
  language = &words;
  Classify([this] {
    EXPECT_EQ(78, form->HelpContextId());
    EXPECT_EQ("Schritte", form->cboMethod.List(1));
    EXPECT_EQ("<User defined>", form->cboMethod.List(2));
    EXPECT_EQ("Farbe", form->cboRangeFormat.List(0));
    EXPECT_EQ("<Data Classify>", user.SeeCaption(*form));
    EXPECT_EQ("0.00", form->cboFormat.List(3));
    Cancel();
  });
}

TEST_F(ClassifyTest, ALanguageWithoutEntriesTranslatesNothing) {
  CallLog log;
  RecordingLanguage words(log);
  words.Entries = 0;
  language = &words;
  Classify([this] {
    EXPECT_EQ("Equal steps", form->cboMethod.List(1));
    EXPECT_EQ(0, form->HelpContextId());
    Cancel();
  });
}

TEST_F(ClassifyTest, WithoutAnObjectTheRoutineBeepsAndShowsNothing) {
  isDirty = true;
  EXPECT_FALSE(modMain::ShowClassifyDialog(desktop(), {}, isDirty, nullptr));
  EXPECT_EQ(1, script.Beeps);
  EXPECT_TRUE(isDirty);
}

TEST_F(ClassifyTest, WithoutAClassificationNothingIsShown) {
  struct Bare final : HostObject, IData {
    std::int32_t ClassCount() override { return 3; }
    void FileName(const std::string&) override {}
  } bare;
  EXPECT_FALSE(modMain::ShowClassifyDialog(desktop(), {&bare, 0, 1, 0}, isDirty, nullptr));
}

class ClassifyService : public ClassifyTest {
 protected:
  pages::PageFactory pages;
  CCommonMapDialogs service{desktop(), pages};
};

TEST_F(ClassifyService, GivesMinusOneAndTheDirtyFlagForAChange) {
  script.ExpectForm("frmDataClassify", [this](Form& shown) {
    user.Toggle(dynamic_cast<CheckBox&>(*shown.Find("chkSeriesInLegend")));
    user.Click(dynamic_cast<Button&>(*shown.Find("cmdOK")));
  });
  EXPECT_EQ(-1, service.ShowDataClassify(&data, 0, 100, 0, isDirty));
  EXPECT_TRUE(isDirty);
}

TEST_F(ClassifyService, CaptionModeAndOwnerAreNotUsed) {
  script.ExpectForm("frmDataClassify", [this](Form& shown) {
    EXPECT_EQ("Data Classify", user.SeeCaption(shown));
    user.CloseBox(shown);
  });
  isDirty = true;
  EXPECT_EQ(0, service.ShowDataClassify(&data, 0, 100, 0, isDirty, "My title", ShowMode::Modeless));
  EXPECT_FALSE(isDirty);
  EXPECT_TRUE(desktop().OpenForms().empty());
}

TEST_F(ClassifyService, ObjectsOfOtherKindsShowNothing) {
  PlainObject layer;
  isDirty = true;
  EXPECT_EQ(0, service.ShowDataClassify(&layer, 0, 100, 0, isDirty));
  EXPECT_EQ(0, service.ShowDataClassify(nullptr, 0, 100, 0, isDirty));
  EXPECT_TRUE(isDirty);
  EXPECT_EQ(0, script.Beeps);
}

}  // namespace
}  // namespace orx::test
