// The dialog for special values: what it shows and keeps, what OK checks and writes, colours, errors of the host.
#include "datadialogs/frmDataOptions.h"
#include "pages/PageFactory.h"
#include "service/CCommonMapDialogs.h"
#include "service/modMain.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/RecordedData.h"

namespace orx::test {
namespace {

using Calls = std::vector<std::string>;
constexpr const char* kMembers[] = {"Color",      "Enabled",   "InLegend",   "UpperBound",
                                    "LowerBound", "TextValue", "Transparent"};
constexpr const char* kObjects[] = {"MissingValue", "ZeroValue", "NoDataValue"};

Calls MembersInOrder(const std::string& behind = {}) {
  Calls all;
  for (const char* const object : kObjects)
    for (const char* const member : kMembers) all.push_back(std::string(object) + "." + member + behind);
  return all;
}

class DataOptions : public DesktopTest {
 protected:
  template <class Acts>
  bool Edit(Acts acts) {
    script.ExpectForm("frmDataOptions", [this, acts](Form& shown) {
      form = dynamic_cast<frmDataOptions*>(&shown);
      acts();
      if (form->Visible()) user.Click(form->cmdOK);
      form = nullptr;
    });
    return modMain::ShowDataOptionsDialog(desktop(), &data, changed, language);
  }
  std::string Seen(Control& control) { return user.See(control).Text; }
  bool IsEnabled(Control& control) { return user.See(control).Enabled; }
  bool IsTicked(CheckBox& box) { return user.See(box).Value == 1; }
  void Cancel() { user.Click(form->cmdCancel); }
  void ExpectRefused(const Message& message, Control& focused) {
    script.ExpectMessage(message);
    bool wasFocused = false;
    script.WhenMessageIsUp = [&] { wasFocused = focused.HasFocus(); };
    user.Click(form->cmdOK);
    EXPECT_TRUE(wasFocused) << focused.Name();
    EXPECT_TRUE(form->Visible());
    EXPECT_TRUE(user.See(focused).Focused) << focused.Name();
    EXPECT_EQ(Calls{}, data.Writes());
  }

  RecordedData data;
  bool changed = false;
  ILanguage* language = nullptr;
  frmDataOptions* form = nullptr;
};

const Message kNoNumber{"Valid number required.", "Invalid number", MessageIcon::Information};
const Message kTooLarge{"Number too large.", "Invalid range", MessageIcon::Information};

TEST_F(DataOptions, ShowsTheThreeKindsAndReadsThemInOrder) {
  data.Zero.IsEnabled = false;
  data.NoData.IsTransparent = true;
  data.Missing.Lower = -999.998;
  Edit([this] {
    EXPECT_EQ(MembersInOrder(), data.Log.Calls);
    EXPECT_EQ("Data Options", user.SeeCaption(*form));
    EXPECT_EQ("-999.998", Seen(form->txtMinValue[0]));
    EXPECT_EQ("2", Seen(form->txtMaxValue[0]));
    EXPECT_TRUE(IsTicked(form->chkEnabled[0]));
    EXPECT_FALSE(IsTicked(form->chkEnabled[1]));
    EXPECT_TRUE(IsTicked(form->chkInLegend[2]));
    EXPECT_TRUE(IsTicked(form->chkTransparent[2]));
    EXPECT_EQ((Color{1, 2, 3}), form->pctColor[0].BackColor());
    Cancel();
  });
}

TEST_F(DataOptions, TheUpperFieldOfZeroIsNotShown) {
  Edit([this] {
    EXPECT_FALSE(user.See(form->txtMaxValue[1]).Visible);
    EXPECT_FALSE(user.See(form->lblMaxData[1]).Visible);
    EXPECT_TRUE(user.See(form->txtMaxValue[0]).Visible);
    Cancel();
  });
}

TEST_F(DataOptions, UntickingAKindDisablesItsControls) {
  Edit([this] {
    const std::initializer_list<Control*> controls = {
        &form->lblMinData[0], &form->txtMinValue[0], &form->lblMaxData[0],    &form->txtMaxValue[0],
        &form->pctColor[0],   &form->chkInLegend[0], &form->chkTransparent[0]};
    for (const bool on : {false, true}) {
      user.Toggle(form->chkEnabled[0]);
      for (Control* const control : controls) EXPECT_EQ(on, IsEnabled(*control)) << control->Name();
      EXPECT_TRUE(IsEnabled(form->txtMinValue[2]));
    }
    user.Toggle(form->chkEnabled[0]);
  });
  EXPECT_TRUE(changed);
  EXPECT_FALSE(data.Missing.IsEnabled);
}

TEST_F(DataOptions, EditsAreWrittenInOrderAndReported) {
  EXPECT_TRUE(Edit([this] {
    data.Log.Calls.clear();
    user.Type(form->txtMinValue[0], "-10");
    user.Type(form->txtMaxValue[0], "-9");
    user.Toggle(form->chkInLegend[1]);
    user.Toggle(form->chkTransparent[2]);
    user.Type(form->txtMaxValue[2], "1E3");
  }));
  EXPECT_EQ(MembersInOrder("="), data.Writes());
  EXPECT_EQ(-10, data.Missing.Lower);
  EXPECT_EQ(-9, data.Missing.Upper);
  EXPECT_FALSE(data.Zero.IsInLegend);
  EXPECT_TRUE(data.NoData.IsTransparent);
  EXPECT_EQ(1000, data.NoData.Upper);
  EXPECT_EQ("host's own", data.NoData.Words);
}

TEST_F(DataOptions, OKWithoutAnEditWritesTheSameValuesAndReportsNoChange) {
  data.Missing.Lower = 1.0 / 3;
  data.Missing.Upper = 2.0 / 3;
  data.Zero.Lower = -0.1 - 0.2;
  data.Zero.Upper = 0.1 + 0.2;
  EXPECT_FALSE(Edit([] {}));
  EXPECT_FALSE(changed);
  EXPECT_EQ(MembersInOrder("="), data.Writes());
  EXPECT_EQ(1.0 / 3, data.Missing.Lower);
  EXPECT_EQ(0.1 + 0.2, data.Zero.Upper);
}

TEST_F(DataOptions, TheRangeOfZeroIsAsFarOnBothSides) {
  Edit([this] { user.Type(form->txtMinValue[1], "-0.5"); });
  EXPECT_EQ(-0.5, data.Zero.Lower);
  EXPECT_EQ(0.5, data.Zero.Upper);
}

TEST_F(DataOptions, TheRangeOfZeroIsWrittenAsFarOnBothSidesAlsoUnedited) {
  data.Zero.Lower = 0.25;
  data.Zero.Upper = 7;
  EXPECT_FALSE(Edit([] {}));
  EXPECT_EQ(-0.25, data.Zero.Lower);
  EXPECT_EQ(0.25, data.Zero.Upper);
}

TEST_F(DataOptions, BoundsAreShownWithFifteenDigitsAndStayExact) {
  data.Missing.Lower = 0.09999999999999999;
  data.Missing.Upper = 0.1 + 0.2;
  Edit([this] {
    EXPECT_EQ("0.1", Seen(form->txtMinValue[0]));
    EXPECT_EQ("0.3", Seen(form->txtMaxValue[0]));
  });
  EXPECT_EQ(0.09999999999999999, data.Missing.Lower);
  EXPECT_EQ(0.1 + 0.2, data.Missing.Upper);
}

TEST_F(DataOptions, LettersInABoundOfNoDataChangeNothing) {
  EXPECT_FALSE(Edit([this] {
    user.Type(form->txtMinValue[2], "none");
    EXPECT_EQ("none", Seen(form->txtMinValue[2]));
  }));
  EXPECT_EQ(1, data.NoData.Lower);
  EXPECT_EQ(MembersInOrder("="), data.Writes());
}

TEST_F(DataOptions, FieldsThatNeedANumberAreRefusedInOrder) {
  Edit([this] {
    for (TextBox* const field : {&form->txtMinValue[0], &form->txtMaxValue[0], &form->txtMinValue[1]})
      user.Type(*field, "x");
    ExpectRefused(kNoNumber, form->txtMinValue[0]);
    user.Type(form->txtMinValue[0], "1");
    ExpectRefused(kNoNumber, form->txtMaxValue[0]);
    user.Type(form->txtMaxValue[0], "2");
    ExpectRefused(kNoNumber, form->txtMinValue[1]);
    Cancel();
  });
}

TEST_F(DataOptions, AnUpperBoundBelowTheLowerOneIsRefusedAndEqualOnesAreNot) {
  Edit([this] {
    user.Type(form->txtMinValue[0], "5");
    user.Type(form->txtMaxValue[0], "4.9");
    ExpectRefused(kTooLarge, form->txtMinValue[0]);
    user.Type(form->txtMinValue[0], "-999.998");
    user.Type(form->txtMaxValue[0], "-999.998");
  });
  EXPECT_EQ(-999.998, data.Missing.Lower);
  EXPECT_EQ(-999.998, data.Missing.Upper);
}

TEST_F(DataOptions, DefaultSetsAllKindsButNotTheBoundsOfNoData) {
  EXPECT_FALSE(Edit([this] {
    user.Click(form->cmdDefault);
    EXPECT_EQ("-999.999", Seen(form->txtMinValue[0]));
    EXPECT_EQ("-999", Seen(form->txtMaxValue[0]));
    EXPECT_EQ("0.0001", Seen(form->txtMinValue[1]));
    EXPECT_EQ("1", Seen(form->txtMinValue[2]));
    EXPECT_FALSE(IsTicked(form->chkEnabled[0]));
    EXPECT_FALSE(IsTicked(form->chkEnabled[1]));
    EXPECT_TRUE(IsTicked(form->chkEnabled[2]));
  }));
  EXPECT_EQ(MembersInOrder("="), data.Writes());
  for (const RecordedSpecialValue* const kind : {&data.Missing, &data.Zero, &data.NoData}) {
    EXPECT_EQ((Color{255, 255, 192}), kind->Fill);
    EXPECT_FALSE(kind->IsInLegend);
    EXPECT_TRUE(kind->IsTransparent);
  }
  EXPECT_EQ(-0.0001, data.Zero.Lower);
  EXPECT_EQ(0.0001, data.Zero.Upper);
  EXPECT_EQ(2, data.NoData.Upper);
}

TEST_F(DataOptions, DefaultThenCancelWritesNothing) {
  EXPECT_FALSE(Edit([this] {
    user.Toggle(form->chkTransparent[0]);
    user.Click(form->cmdDefault);
    Cancel();
  }));
  EXPECT_EQ(Calls{}, data.Writes());
}

TEST_F(DataOptions, TheCloseBoxReportsNoChange) {
  changed = true;
  EXPECT_FALSE(Edit([this] {
    user.Toggle(form->chkTransparent[0]);
    user.CloseBox(*form);
  }));
  EXPECT_FALSE(changed);
  EXPECT_EQ(Calls{}, data.Writes());
}

TEST_F(DataOptions, AChosenColorIsTaken) {
  EXPECT_TRUE(Edit([this] {
    script.ExpectColor([this](ColorRequest& request) {
      EXPECT_EQ(1U, request.Flags);
      EXPECT_EQ((Color{1, 2, 3}), request.Color);
      user.PickColor(request, {10, 200, 30});
    });
    user.Click(form->pctColor[1]);
    EXPECT_EQ((Color{10, 200, 30}), form->pctColor[1].BackColor());
  }));
  EXPECT_EQ((Color{10, 200, 30}), data.Zero.Fill);
  EXPECT_EQ((Color{1, 2, 3}), data.Missing.Fill);
}

TEST_F(DataOptions, ACancelledOrEqualColorChangesNothing) {
  EXPECT_FALSE(Edit([this] {
    script.ExpectColor([this](ColorRequest& request) { user.CancelColor(request); });
    user.Click(form->pctColor[0]);
    script.ExpectColor([this](ColorRequest& request) { user.PickColor(request, {1, 2, 3}); });
    user.Click(form->pctColor[0]);
  }));
  EXPECT_EQ((Color{1, 2, 3}), data.Missing.Fill);
}

TEST_F(DataOptions, KeysOpenTheColorsButShiftDoesNot) {
  Edit([this] {
    user.ClickInto(form->txtMaxValue[0]);
    user.Press(*form, kTab);
    ASSERT_TRUE(user.See(form->pctColor[0]).Focused);
    user.PressKey(*form, kKeyCodeShift);
    for (const int key : {kKeyCodeSpace, static_cast<int>('C')}) {
      script.ExpectColor([this](ColorRequest& request) { user.CancelColor(request); });
      user.PressKey(*form, key);
    }
    Cancel();
  });
}

TEST_F(DataOptions, AColorBoxWearsAFocusMarkWhileItHasTheFocus) {
  Edit([this] {
    const auto marks = [this] {
      int count = 0;
      for (const Mark& mark : form->pctColor[0].Drawing().Marks()) count += std::holds_alternative<FocusMark>(mark);
      return count;
    };
    EXPECT_EQ(0, marks());
    user.ClickInto(form->txtMaxValue[0]);
    user.Press(*form, kTab);
    EXPECT_EQ(1, marks());
    user.Press(*form, kTab);
    EXPECT_EQ(0, marks());
    Cancel();
  });
}

TEST_F(DataOptions, APropertyThatCannotBeReadEndsTheDialogBeforeItIsShown) {
  for (const std::string& member : MembersInOrder()) {
    data.Log.Failing = {member};
    changed = true;
    EXPECT_FALSE(modMain::ShowDataOptionsDialog(desktop(), &data, changed, nullptr)) << member;
    EXPECT_FALSE(changed) << member;
    EXPECT_EQ(Calls{}, data.Writes()) << member;
  }
}

TEST_F(DataOptions, APropertyThatCannotBeWrittenKeepsTheDialogOpenAndTheHostAsItWas) {
  for (const std::string& member : MembersInOrder("=")) {
    EXPECT_FALSE(Edit([this, &member] {
      user.Type(form->txtMinValue[0], "-10");
      user.Type(form->txtMinValue[1], "7");
      user.Toggle(form->chkTransparent[2]);
      data.Log.Failing = {member};
      script.ExpectMessage({member + " failed", "Data Options", MessageIcon::Exclamation});
      user.Click(form->cmdOK);
      EXPECT_TRUE(form->Visible()) << member;
      data.Log.Failing.clear();
      Cancel();
    })) << member;
    EXPECT_EQ(1, data.Missing.Lower) << member;
    EXPECT_EQ(1, data.Zero.Lower) << member;
    EXPECT_EQ(2, data.Zero.Upper) << member;
    EXPECT_FALSE(data.NoData.IsTransparent) << member;
  }
}

TEST_F(DataOptions, AfterAnErrorTheUserMayTryAgain) {
  EXPECT_TRUE(Edit([this] {
    user.Type(form->txtMaxValue[0], "8");
    data.Log.Failing = {"NoDataValue.Enabled="};
    script.ExpectMessage({"NoDataValue.Enabled= failed", "Data Options", MessageIcon::Exclamation});
    user.Click(form->cmdOK);
    data.Log.Failing.clear();
  }));
  EXPECT_EQ(8, data.Missing.Upper);
}

TEST_F(DataOptions, ARecordThatDoesNotExistIsAnError) {
  const auto alone = std::make_shared<frmDataOptions>(desktop());
  EXPECT_THROW(alone->ShowRecord(3), std::out_of_range);
  EXPECT_THROW(alone->ShowRecord(-2), std::out_of_range);
}

TEST_F(DataOptions, WithoutDataNothingIsShown) {
  const auto alone = std::make_shared<frmDataOptions>(desktop());
  alone->Show();
  EXPECT_FALSE(alone->IsLoaded());
  EXPECT_FALSE(alone->IsDirty());
}

TEST_F(DataOptions, TheLocaleHasItsOwnSeparators) {
  testDesktop().Separators({",", ".", "€"});
  data.Missing.Lower = -999.998;
  Edit([this] {
    EXPECT_EQ("-999,998", Seen(form->txtMinValue[0]));
    user.Type(form->txtMaxValue[0], "1.000,5");
  });
  EXPECT_EQ(-999.998, data.Missing.Lower);
  EXPECT_EQ(1000.5, data.Missing.Upper);
}

TEST_F(DataOptions, TheLanguageTranslatesAndGivesTheHelpNumber) {
  CallLog log;
  RecordingLanguage words(log);
  words.Texts = {{"_HelpLayerDataOptions", "12"}};
  language = &words;
  Edit([this] {
    EXPECT_EQ(12, form->HelpContextId());
    EXPECT_EQ("<Data Options>", user.SeeCaption(*form));
    Cancel();
  });
}

TEST_F(DataOptions, TheServiceGivesTheResultAndRefusesOtherObjects) {
  pages::PageFactory pages;
  CCommonMapDialogs service(desktop(), pages);
  PlainObject layer;
  EXPECT_EQ(0, service.ShowDataOptions(&layer));
  EXPECT_EQ(0, service.ShowDataOptions(nullptr));
  EXPECT_EQ(0, script.Beeps);
  for (const bool edited : {true, false}) {
    script.ExpectForm("frmDataOptions", [this, edited](Form& shown) {
      EXPECT_EQ("Data Options", user.SeeCaption(shown));
      if (edited) user.Toggle(dynamic_cast<CheckBox&>(*shown.Find("chkInLegend(0)")));
      user.Click(dynamic_cast<Button&>(*shown.Find("cmdOK")));
    });
    EXPECT_EQ(edited ? -1 : 0, service.ShowDataOptions(&data, "A title", ShowMode::Modeless));
  }
}

TEST_F(DataOptions, WithoutAnObjectTheRoutineBeeps) {
  changed = true;
  EXPECT_FALSE(modMain::ShowDataOptionsDialog(desktop(), nullptr, changed, nullptr));
  EXPECT_EQ(1, script.Beeps);
  EXPECT_TRUE(changed);
}

}  // namespace
}  // namespace orx::test
