// The relief shading dialog: what it shows of both generations of objects, what OK checks and writes.
#include "tests/shading/ShadingDialog.h"

namespace orx::test {
namespace {

const Message kNoNumber{"Valid number required.", "Invalid number", MessageIcon::Information};
const Message kNotInRange{"Number not within range.", "Invalid range", MessageIcon::Information};

TEST_F(Shading, ShowsAllSettingsOfAnExtendedObject) {
  Edit([this] {
    EXPECT_EQ("Data shade", user.SeeCaption(*form));
    EXPECT_EQ("Sun and shadow", Seen(form->cmbShadeVersion));
    EXPECT_EQ("Shade and Colors", Seen(form->cmbCombine));
    EXPECT_EQ("45", Seen(form->txtAltitude));
    EXPECT_EQ("315", Seen(form->txtAzimuth));
    EXPECT_EQ("40.5", Seen(form->txtIntensityMin));
    EXPECT_EQ("100", Seen(form->txtIntensityMid));
    EXPECT_EQ("150", Seen(form->txtIntensityMax));
    EXPECT_EQ("200", Seen(form->txtNrOfShades2));
    EXPECT_EQ("35", Seen(form->txtAltitudeDefault));
    EXPECT_EQ(1, user.See(form->chkMidIndexAutomatic).Value);
    EXPECT_EQ("0.3333333333333333", Seen(form->txtScaleFactor));
    EXPECT_EQ("2", Seen(form->txtScaleMultiplier));
    EXPECT_TRUE(user.See(form->fraIntensity2).Visible);
    EXPECT_FALSE(user.See(form->fraIntensity1).Visible);
    EXPECT_EQ(form->fraIntensity1.Place(), form->fraIntensity2.Place());
    Cancel();
  });
}

TEST_F(Shading, ABasicObjectHasDarkeningAloneAndNoExtendedPropertyIsTouched) {
  shade.IsExtended = false;
  EXPECT_TRUE(Edit([this] {
    EXPECT_EQ("Darkening", Seen(form->cmbShadeVersion));
    EXPECT_FALSE(user.See(form->cmbShadeVersion).Enabled);
    EXPECT_TRUE(user.See(form->fraIntensity1).Visible);
    EXPECT_EQ("40.5", Seen(form->txtMinIntensity));
    user.Type(form->txtMinIntensity, "60");
    user.Type(form->txtFirstShadeIndex, "7");
  }));
  EXPECT_EQ((Calls{"MinIntensity=", "ShadeCount=", "FirstShadeIndex="}), WritesIn(shade.Log));
  EXPECT_EQ(60, shade.HeldMinIntensity);
  EXPECT_EQ(7, shade.HeldFirstShadeIndex);
  for (const char* const extended : {"ShadeVersion", "MidIntensity", "MaxIntensity", "AltitudeDefault"})
    EXPECT_EQ(0, std::count(shade.Log.Calls.begin(), shade.Log.Calls.end(), extended)) << extended;
}

TEST_F(Shading, EverySettingIsReadInOrder) {
  shade.Log.Calls.clear();
  script.ExpectForm("frmDataShade", [this](Form& shown) {
    EXPECT_EQ((Calls{"ShadeVersion", "Altitude", "Azimuth", "CombineColors", "MinIntensity", "MidIntensity",
                     "MaxIntensity", "NrOfShades", "FirstShadeIndex", "AltitudeDefault", "MidIndexAutomatic",
                     "ScaleAutomatic", "ScaleFactor", "ScaleMultiplier"}),
              shade.Log.Calls);
    user.CloseBox(shown);
  });
  modMain::ShowShadeDialog(desktop(), &shade, changed, nullptr);
}

TEST_F(Shading, AFieldWhoseSettingCannotBeReadHasItsDesignedText) {
  shade.Log.Failing = {"NrOfShades", "MinIntensity", "Altitude"};
  Edit([this] {
    EXPECT_EQ("255", Seen(form->txtNrOfShades));
    EXPECT_EQ("128", Seen(form->txtNrOfShades2));
    EXPECT_EQ("50", Seen(form->txtIntensityMin));
    EXPECT_EQ("30", Seen(form->txtAltitude));
    Cancel();
  });
}

TEST_F(Shading, OKUntouchedWritesNothingButTheCount) {
  EXPECT_FALSE(Edit([] {}));
  EXPECT_FALSE(changed);
  EXPECT_EQ(Calls{"ShadeCount="}, WritesIn(shade.Log));
  EXPECT_EQ(200, shade.Count);
}

TEST_F(Shading, EndlessValuesOfTheHostAreNoObstacleToOK) {
  const double infinity = std::numeric_limits<double>::infinity();
  shade.HeldScaleFactor = shade.HeldScaleMultiplier = infinity;
  EXPECT_FALSE(Edit([] {}));
  EXPECT_EQ(Calls{"ShadeCount="}, WritesIn(shade.Log));
  EXPECT_EQ(infinity, shade.HeldScaleFactor);
}

TEST_F(Shading, EverySettingIsWrittenInOrder) {
  PutBack();
  EXPECT_TRUE(EditEverything());
  EXPECT_EQ(kAllWrites, WritesIn(shade.Log));
  EXPECT_EQ(30, shade.HeldMinIntensity);
  EXPECT_EQ(99, shade.Count);
  EXPECT_EQ(1, shade.HeldFirstShadeIndex);
  EXPECT_EQ(2, shade.HeldCombineColors);
  EXPECT_EQ(0.5, shade.HeldScaleFactor);
}

TEST_F(Shading, TwinFieldsHaveTheSameText) {
  Edit([this] {
    user.Type(form->txtNrOfShades2, "77");
    EXPECT_EQ("77", form->txtNrOfShades.Text());
    user.Type(form->txtIntensityMin, "x");
    EXPECT_EQ("x", form->txtMinIntensity.Text());
    user.Choose(form->cmbShadeVersion, 0);
    user.Type(form->txtNrOfShades, "78");
    user.Type(form->txtMinIntensity, "12.5");
    EXPECT_EQ("78", form->txtNrOfShades2.Text());
    EXPECT_EQ("12.5", form->txtIntensityMin.Text());
    EXPECT_TRUE(user.See(form->fraIntensity1).Visible);
    EXPECT_FALSE(user.See(form->fraIntensity2).Visible);
    Cancel();
  });
}

TEST_F(Shading, CombiningNothingDisablesTheIntensitiesWhichAreCheckedAllTheSame) {
  Edit([this] {
    user.Type(form->txtIntensityMid, "151");
    user.Choose(form->cmbCombine, 0);
    EXPECT_FALSE(user.See(form->txtIntensityMid).Enabled);
    script.ExpectMessage(kNotInRange);
    user.Click(form->cmdOK);
    EXPECT_TRUE(form->Visible());
    user.Choose(form->cmbCombine, 1);
    EXPECT_TRUE(user.See(form->txtIntensityMid).Enabled);
    Cancel();
  });
}

TEST_F(Shading, MidLightIsComparedWithFullSunEvenWhileDarkeningIsSelected) {
  Edit([this] {
    user.Type(form->txtIntensityMid, "151");
    ExpectRefused(kNotInRange, form->txtIntensityMid);
    user.Choose(form->cmbShadeVersion, 0);
    script.ExpectMessage(kNotInRange);
    user.Click(form->cmdOK);
    EXPECT_TRUE(form->Visible());
    Cancel();
  });
}

struct Bound {
  TextBox frmDataShade::*Field;
  bool Darkening;
  const char* Good;
  const char* Bad;
};

TEST_F(Shading, EachBoundIsAcceptedAndWhatLiesBeyondIsRefused) {
  using F = frmDataShade;
  const Bound bounds[] = {
      {&F::txtAltitude, false, "0", "-1"},          {&F::txtAltitude, false, "90", "91"},
      {&F::txtAzimuth, false, "0", "-1"},           {&F::txtAzimuth, false, "360", "361"},
      {&F::txtAltitude, false, "90.5", "90.6"},     {&F::txtScaleFactor, false, "0", "-0.001"},
      {&F::txtScaleMultiplier, false, "0", "-1"},   {&F::txtFirstShadeIndex, true, "1", "0"},
      {&F::txtFirstShadeIndex, true, "255", "256"}, {&F::txtIntensityMid, false, "150", "150.1"},
      {&F::txtMinIntensity, true, "0", "-0.1"},     {&F::txtMinIntensity, true, "100", "100.1"},
      {&F::txtNrOfShades, true, "1", "0"},          {&F::txtNrOfShades, true, "255", "256"},
      {&F::txtIntensityMin, false, "0", "-0.1"},    {&F::txtIntensityMin, false, "100", "100.1"},
      {&F::txtNrOfShades2, false, "1", "0"},        {&F::txtNrOfShades2, false, "255", "256"},
      {&F::txtAltitudeDefault, false, "0", "-1"},   {&F::txtAltitudeDefault, false, "90", "91"},
      {&F::txtAzimuth, false, "1", "1E300"},
  };
  for (const Bound& bound : bounds) {
    shade.HeldShadeVersion = bound.Darkening ? shadeversion::kDarkening : shadeversion::kSunAndShadow;
    Edit([this, &bound] {
      TextBox& field = form->*bound.Field;
      const std::string before = field.Text();
      user.Type(field, bound.Bad);
      ExpectRefused(kNotInRange, field);
      user.Type(field, bound.Good);
      user.Click(form->cmdOK);
      EXPECT_FALSE(form->Visible()) << field.Name() << " " << bound.Good;
    });
    shade.HeldNrOfShades = 200;
    shade.HeldMinIntensity = 40.5;
    shade.HeldMidIntensity = 100;
  }
}

TEST_F(Shading, TextThatIsNoNumberIsRefusedInTheOrderOfTheChecks) {
  using F = frmDataShade;
  Edit([this] {
    TextBox F::*const fields[] = {&F::txtAltitude,        &F::txtAzimuth,      &F::txtScaleFactor,
                                  &F::txtScaleMultiplier, &F::txtIntensityMid, &F::txtIntensityMax,
                                  &F::txtIntensityMin,    &F::txtNrOfShades2,  &F::txtAltitudeDefault};
    for (TextBox F::*const field : fields) user.Type(form->*field, "?");
    const char* const good[] = {"45", "315", "1", "1", "100", "150", "40", "200", "35"};
    for (std::size_t i = 0; i < std::size(fields); ++i) {
      ExpectRefused(kNoNumber, form->*fields[i]);
      user.Type(form->*fields[i], good[i]);
    }
    user.Choose(form->cmbShadeVersion, 0);
    user.Type(form->txtFirstShadeIndex, "one");
    ExpectRefused(kNoNumber, form->txtFirstShadeIndex);
    Cancel();
  });
}

TEST_F(Shading, AnglesAreRoundedHalvesToEven) {
  Edit([this] {
    user.Type(form->txtAltitude, "44.5");
    user.Type(form->txtAzimuth, "11.5");
  });
  EXPECT_EQ(44, shade.HeldAltitude);
  EXPECT_EQ(12, shade.HeldAzimuth);
}

TEST_F(Shading, ASuggestedFactorIsShownUnderTheHourglass) {
  shade.Suggestion = 0.1 + 0.2;
  Edit([this] {
    script.Pointers.clear();
    user.Click(form->cmdScaleFactor);
    EXPECT_EQ((std::vector<Pointer>{Pointer::Hourglass, Pointer::Default}), script.Pointers);
    EXPECT_EQ("0.30000000000000004", Seen(form->txtScaleFactor));
  });
  EXPECT_EQ(0.1 + 0.2, shade.HeldScaleFactor);
}

TEST_F(Shading, WithoutASuggestionTheUserIsTold) {
  for (const bool fails : {false, true}) {
    if (fails) shade.Log.Failing = {"SuggestScaleFactor"};
    Edit([this] {
      script.ExpectMessage({"Scale factor could not be determined.\r\nData might not be valid yet.",
                            "Suggest Scale Factor not possible", MessageIcon::Information});
      user.Click(form->cmdScaleFactor);
      EXPECT_EQ(Pointer::Default, desktop().Pointer());
      EXPECT_EQ("0.3333333333333333", Seen(form->txtScaleFactor));
      Cancel();
    });
  }
}

TEST_F(Shading, UnknownCodesStayUntilAnEntryIsPickedBeItTheOneShown) {
  shade.HeldShadeVersion = 30;
  shade.HeldCombineColors = 9;
  shade.HeldFirstShadeIndex = 1;
  EXPECT_FALSE(Edit([this] {
    EXPECT_EQ("Sun and shadow", Seen(form->cmbShadeVersion));
    EXPECT_EQ("None", Seen(form->cmbCombine));
  }));
  EXPECT_EQ(30, shade.HeldShadeVersion);
  EXPECT_EQ(9, shade.HeldCombineColors);
  EXPECT_TRUE(Edit([this] { user.Choose(form->cmbCombine, 0); }));
  EXPECT_EQ(combinecolors::kNone, shade.HeldCombineColors);
  for (const bool isByMouse : {true, false}) {
    shade.HeldShadeVersion = 30;
    EXPECT_TRUE(Edit([this, isByMouse] {
      isByMouse ? user.Pick(form->cmbShadeVersion, 1) : user.Choose(form->cmbShadeVersion, 1);
    }));
    EXPECT_EQ(shadeversion::kSunAndShadow, shade.HeldShadeVersion) << isByMouse;
  }
}

TEST_F(Shading, CancelAndTheCloseBoxReportNoChange) {
  for (const bool byBox : {false, true}) {
    EXPECT_FALSE(Edit([this, byBox] {
      user.Type(form->txtAltitude, "1");
      if (byBox) return user.CloseBox(*form);
      Cancel();
    }));
    EXPECT_EQ(Calls{}, WritesIn(shade.Log));
  }
}

TEST_F(Shading, WithoutShadingNothingIsShown) {
  PlainObject other;
  changed = true;
  EXPECT_FALSE(modMain::ShowShadeDialog(desktop(), &other, changed, nullptr));
  EXPECT_FALSE(changed);
  EXPECT_FALSE(modMain::ShowShadeDialog(desktop(), nullptr, changed, nullptr));
  EXPECT_EQ(1, script.Beeps);
}

TEST_F(Shading, TheLocaleHasItsOwnSeparators) {
  testDesktop().Separators({",", ".", "€"});
  Edit([this] {
    EXPECT_EQ("40,5", Seen(form->txtIntensityMin));
    user.Type(form->txtScaleFactor, "0,25");
  });
  EXPECT_EQ(0.25, shade.HeldScaleFactor);
}

TEST_F(Shading, TheLanguageTranslatesAndGivesTheHelpNumberOfTheDataOptions) {
  CallLog log;
  RecordingLanguage words(log);
  words.Texts = {{"_HelpLayerDataOptions", "12"}};
  language = &words;
  Edit([this] {
    EXPECT_EQ(12, form->HelpContextId());
    EXPECT_EQ("<Data shade>", user.SeeCaption(*form));
    Cancel();
  });
}

}  // namespace
}  // namespace orx::test
