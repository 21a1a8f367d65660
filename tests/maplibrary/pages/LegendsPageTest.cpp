// The page for the legends of a map.
#include "tests/maplibrary/pages/PagesTest.h"

namespace orx::test {
namespace {

class MapLibraryPagesLegends : public PagesTest {
 protected:
  MapLibraryPagesLegends() {
    for (const char* title : {"Elevation", "Roads", "Places"}) legends.Legends.emplace_back(legends.Log, title);
  }
  template <class Acts>
  Calls AfterOK(Acts acts, std::int32_t startUp = 0) {
    InDialog("frmLegend", acts);
    mResult = service.ShowLegends(&legends, startUp);
    return legends.Log.Calls;
  }

  RecordedLegends legends;
  std::int32_t mResult = 0;
};

TEST_F(MapLibraryPagesLegends, ShowsTheFirstLegend) {
  AfterOK([this] {
    EXPECT_EQ("1: Elevation", Seen("cboLegend"));
    EXPECT_EQ("Elevation", Seen("txtTitle"));
    EXPECT_EQ("Bottom right", Seen("cboCorner"));
    EXPECT_EQ("8.25", Seen("txtTextSize"));
    EXPECT_EQ(1, user.See(*form->Find("chkVisible")).Value);
    EXPECT_EQ(0, user.See(*form->Find("chkFramed")).Value);
  });
}

TEST_F(MapLibraryPagesLegends, TheStartUpIndexChoosesTheLegend) {
  AfterOK([this] { EXPECT_EQ("Places", Seen("txtTitle")); }, 2);
}

TEST_F(MapLibraryPagesLegends, AStartUpIndexOutsideTheLegendsChoosesTheFirst) {
  AfterOK([this] { EXPECT_EQ("Elevation", Seen("txtTitle")); }, 3);
  AfterOK([this] { EXPECT_EQ("Elevation", Seen("txtTitle")); }, -1);
}

TEST_F(MapLibraryPagesLegends, AnUntouchedOKCallsNoSetter) {
  EXPECT_EQ(Calls{}, AfterOK([this] {
              Choose("cboLegend", 1);
              Choose("cboLegend", 2);
            }));
  EXPECT_EQ(0, mResult);
}

TEST_F(MapLibraryPagesLegends, EachFieldEditsItsMember) {
  EXPECT_EQ((Calls{"Title(Height)", "Visible(False)", "Corner(0)", "Framed(True)", "TextSize(10)"}), AfterOK([this] {
              Type("txtTitle", "Height");
              Toggle("chkVisible");
              Choose("cboCorner", 0);
              Toggle("chkFramed");
              Type("txtTextSize", "10");
            }));
  EXPECT_EQ(-1, mResult);
}

TEST_F(MapLibraryPagesLegends, ATitleMayBeBlank) {
  EXPECT_EQ(Calls{"Title()"}, AfterOK([this] { Type("txtTitle", ""); }));
}

TEST_F(MapLibraryPagesLegends, EditsOfSeveralLegendsAreWrittenTogether) {
  AfterOK([this] {
    Type("txtTitle", "Height");
    Choose("cboLegend", 2);
    EXPECT_EQ("Places", Seen("txtTitle"));
    Type("txtTextSize", "12");
    Choose("cboLegend", 0);
    EXPECT_EQ("Height", Seen("txtTitle"));
    EXPECT_TRUE(legends.Log.Calls.empty());
  });
  EXPECT_EQ("Height", legends.Legends[0].HeldTitle);
  EXPECT_EQ(12, legends.Legends[2].HeldTextSize);
  EXPECT_EQ((Calls{"Title(Height)", "TextSize(12)"}), legends.Log.Calls);
}

TEST_F(MapLibraryPagesLegends, TheListFollowsATypedTitle) {
  AfterOK([this] {
    Type("txtTitle", "Height");
    user.Press(*form, kTab);
    EXPECT_EQ("1: Height", Seen("cboLegend"));
  });
}

TEST_F(MapLibraryPagesLegends, ARefusedSizeKeepsTheLegendThatIsShown) {
  InDialog("frmLegend", [this] {
    Type("txtTextSize", "200");
    Choose("cboLegend", 1);
    EXPECT_EQ("1: Elevation", Seen("cboLegend"));
    EXPECT_EQ("8.25", Seen("txtTextSize"));
    EXPECT_TRUE(user.See(Field("txtTextSize")).Focused);
  });
  ExpectRefusal("Wrong value", "Text size: 200 is not allowed. Type a number from 1 to 144.");
  service.ShowLegends(&legends);
}

TEST_F(MapLibraryPagesLegends, ASizeThatIsNoNumberIsRefused) {
  InDialog("frmLegend", [this] { ExpectRefused("txtTextSize", "big"); });
  ExpectRefusal("Invalid number", "Text size: \"big\" is not a number. Type a number from 1 to 144.");
  EXPECT_EQ(0, service.ShowLegends(&legends));
}

TEST_F(MapLibraryPagesLegends, ApplyKeepsTheLegendThatIsShown) {
  AfterOK([this] {
    Choose("cboLegend", 1);
    Toggle("chkFramed");
    Press("cmdApply");
    EXPECT_EQ("2: Roads", Seen("cboLegend"));
  });
  EXPECT_EQ(Calls{"Framed(True)"}, legends.Log.Calls);
  EXPECT_EQ((std::vector<bool>{true}), callBack.Applied);
}

TEST_F(MapLibraryPagesLegends, WithoutLegendsTheFieldsAreDisabled) {
  legends.Legends.clear();
  EXPECT_EQ(Calls{}, AfterOK([this] {
              EXPECT_FALSE(IsEnabled("cboLegend"));
              EXPECT_FALSE(IsEnabled("txtTitle"));
            }));
}

}  // namespace
}  // namespace orx::test
