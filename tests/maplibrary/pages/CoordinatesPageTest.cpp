// The page for the extent of a layer or a map.
#include <cmath>
#include <functional>

#include "tests/maplibrary/pages/PagesTest.h"

namespace orx::test {
namespace {

class MapLibraryPagesCoordinates : public PagesTest {
 protected:
  template <class Acts>
  Calls AfterOK(Acts acts) {
    InDialog("frmCoordinates", acts);
    service.ShowCoordinates(&layer);
    return layer.Log.Calls;
  }
  void Refuses(const std::string& field, const std::string& text, const std::string& title,
               const std::string& message) {
    InDialog("frmCoordinates", [=, this] { ExpectRefused(field, text); });
    ExpectRefusal(title, message);
    service.ShowCoordinates(&layer);
    EXPECT_EQ(Calls{}, layer.Log.Calls);
  }
};

TEST_F(MapLibraryPagesCoordinates, ShowsTheEdgesAndTheSizes) {
  layer.Extent.HeldRight = -84;
  AfterOK([this] {
    EXPECT_EQ("-84.5", Seen("txtLeft"));
    EXPECT_EQ("-84", Seen("txtRight"));
    EXPECT_EQ("36", Seen("txtBottom"));
    EXPECT_EQ("36.25", Seen("txtTop"));
    EXPECT_EQ("0.5", Seen("txtWidth"));
    EXPECT_EQ("0.25", Seen("txtHeight"));
  });
}

TEST_F(MapLibraryPagesCoordinates, AnUntouchedOKCallsNoSetter) {
  EXPECT_EQ(Calls{}, AfterOK([] {}));
}

TEST_F(MapLibraryPagesCoordinates, AnEditedEdgeLeavesTheOthersUntouched) {
  EXPECT_EQ(Calls{"Left(-85)"}, AfterOK([this] { Type("txtLeft", "-85"); }));
  EXPECT_EQ(0.1 + 0.2, layer.Extent.HeldRight);
}

TEST_F(MapLibraryPagesCoordinates, EachEdgeIsWrittenOnOK) {
  EXPECT_EQ((Calls{"Left(-90)", "Right(90)", "Bottom(-45)", "Top(45)"}), AfterOK([this] {
              Type("txtLeft", "-90");
              Type("txtRight", "90");
              Type("txtBottom", "-45");
              Type("txtTop", "45");
            }));
}

TEST_F(MapLibraryPagesCoordinates, AnExtentMovedPastItsOldEdgesIsInOrderAtEachStep) {
  EXPECT_EQ((Calls{"Right(200)", "Left(100)", "Top(60)", "Bottom(50)"}), AfterOK([this] {
              Type("txtLeft", "100");
              Type("txtRight", "200");
              Type("txtBottom", "50");
              Type("txtTop", "60");
            }));
}

TEST_F(MapLibraryPagesCoordinates, TheSizesFollowTheEdges) {
  AfterOK([this] {
    Type("txtLeft", "-10");
    Type("txtRight", "10");
    Type("txtTop", "40");
    user.Press(*form, kTab);
    EXPECT_EQ("20", Seen("txtWidth"));
    EXPECT_EQ("4", Seen("txtHeight"));
  });
}

TEST_F(MapLibraryPagesCoordinates, TheWidthIsBlankWhileTheEdgesAreNotInOrder) {
  AfterOK([this] {
    Type("txtLeft", "100");
    Type("txtRight", "200");
    user.Press(*form, kShiftTab);
    EXPECT_EQ("100", Seen("txtWidth"));
    Type("txtLeft", "300");
    user.Press(*form, kTab);
    EXPECT_EQ("", Seen("txtWidth"));
    Type("txtRight", "400");
  });
}

TEST_F(MapLibraryPagesCoordinates, TheSizesAreFreeOfRoundingErrors) {
  layer.Extent.HeldLeft = 0.1;
  layer.Extent.HeldRight = 0.1 + 0.2;
  AfterOK([this] { EXPECT_EQ("0.2", Seen("txtWidth")); });
}

TEST_F(MapLibraryPagesCoordinates, TheSizesCannotBeEdited) {
  AfterOK([this] {
    Type("txtWidth", "5");
    EXPECT_NE("5", Seen("txtWidth"));
  });
}

TEST_F(MapLibraryPagesCoordinates, ALeftEdgeBehindTheRightOneIsRefused) {
  layer.Extent.HeldRight = -84;
  Refuses("txtLeft", "-83", "Invalid range", "Left (-83) must be less than Right (-84).");
}

TEST_F(MapLibraryPagesCoordinates, ARightEdgeBeforeTheLeftOneIsRefused) {
  layer.Extent.HeldRight = -84;
  Refuses("txtRight", "-84.5", "Invalid range", "Left (-84.5) must be less than Right (-84.5).");
}

TEST_F(MapLibraryPagesCoordinates, ABottomEdgeAboveTheTopOneIsRefused) {
  Refuses("txtBottom", "37", "Invalid range", "Bottom (37) must be less than Top (36.25).");
}

TEST_F(MapLibraryPagesCoordinates, ATopEdgeBelowTheBottomOneIsRefused) {
  Refuses("txtTop", "35", "Invalid range", "Bottom (36) must be less than Top (35).");
}

TEST_F(MapLibraryPagesCoordinates, TextThatIsNoFiniteNumberIsRefusedInEachField) {
  layer.Extent.HeldRight = 1;
  for (const auto& [field, name] : {std::pair("txtLeft", "Left"), std::pair("txtRight", "Right"),
                                    std::pair("txtBottom", "Bottom"), std::pair("txtTop", "Top")}) {
    Refuses(field, "west", "Invalid number", std::string(name) + ": \"west\" is not a number. Type a number.");
    Refuses(field, "1E400", "Invalid number", std::string(name) + ": \"1E400\" is not a number. Type a number.");
    Refuses(field, "nan", "Invalid number", std::string(name) + ": \"nan\" is not a number. Type a number.");
  }
}

TEST_F(MapLibraryPagesCoordinates, AnExtentThatIsNotInOrderStaysWhileItIsNotEdited) {
  layer.Extent.HeldRight = -100;
  EXPECT_EQ(Calls{"Top(40)"}, AfterOK([this] {
              EXPECT_EQ("", Seen("txtWidth"));
              Type("txtTop", "40");
            }));
}

TEST_F(MapLibraryPagesCoordinates, ANumberThatIsNoneStaysWhileItIsNotEdited) {
  layer.Extent.HeldLeft = std::nan("");
  EXPECT_EQ(Calls{}, AfterOK([] {}));
}

TEST_F(MapLibraryPagesCoordinates, ASaveWithEdgesInWrongOrderWritesNothing) {
  const auto page = MakePage(PageKind::Coordinates);
  page->Page->Client(&layer);
  page->Page->RefreshContents();
  Field("txtLeft").Text("-90");
  Field("txtTop").Text("30");
  ExpectRefusal("Invalid range", "Bottom (36) must be less than Top (30).");
  page->Page->SaveChanges();
  EXPECT_EQ(Calls{}, layer.Log.Calls);
  EXPECT_EQ("36.25", Field("txtTop").Text());
  EXPECT_EQ("-90", Field("txtLeft").Text());
}

TEST_F(MapLibraryPagesCoordinates, TheExtentOfAMapIsEdited) {
  RecordedMap map;
  InDialog("frmCoordinates", [this] { Type("txtTop", "40"); });
  EXPECT_EQ(-1, service.ShowCoordinates(&map));
  EXPECT_EQ(Calls{"Top(40)"}, map.Log.Calls);
}

class MapLibraryPagesGeoreference : public PagesTest {
 protected:
  /// A page of the map, with `answer` for its request.
  std::shared_ptr<PageForm> PageOf(HostObject& client, std::function<void(GeoreferenceRequest&)> answer) {
    auto made = MakePage(PageKind::Coordinates);
    if (answer) made->Page->GeoreferenceRequested = std::move(answer);
    made->Page->Client(&client);
    made->Page->RefreshContents();
    made->Show(ShowMode::Modeless);
    return made;
  }
  ~MapLibraryPagesGeoreference() override { desktop().CloseOpenForms(); }
  bool IsOffered() { return user.See(*form->Find("cmdGeoreference")).Visible; }

  RecordedMap map;
};

TEST_F(MapLibraryPagesGeoreference, TheDialogIsOfferedForAMapWhereItIsAnswered) {
  const auto answered = PageOf(map, [](GeoreferenceRequest&) {});
  EXPECT_TRUE(IsOffered());
  answered->Page->Client(&layer);
  answered->Page->RefreshContents();
  EXPECT_FALSE(IsOffered());
  answered->Unload();
  const auto alone = PageOf(map, {});
  EXPECT_FALSE(IsOffered());
}

TEST_F(MapLibraryPagesGeoreference, TheRequestBringsTheMapAndAChangeIsShown) {
  HostObject* asked = nullptr;
  const auto page = PageOf(map, [this, &asked](GeoreferenceRequest& request) {
    asked = request.Map;
    map.HeldExtent.HeldLeft = -90;
    map.HeldExtent.HeldTop = 40.5;
    request.Changed = true;
  });
  Press("cmdGeoreference");
  EXPECT_EQ(&map, asked);
  EXPECT_EQ("-90", Seen("txtLeft"));
  EXPECT_EQ("40.5", Seen("txtTop"));
  EXPECT_EQ("4.5", Seen("txtHeight"));
  EXPECT_TRUE(page->Page->IsDirty());
  page->Page->SaveChanges();
  EXPECT_EQ(Calls{}, map.Log.Calls);
}

TEST_F(MapLibraryPagesGeoreference, WithoutAChangeThePageKeepsItsEdits) {
  const auto page = PageOf(map, [this](GeoreferenceRequest&) { map.HeldExtent.HeldTop = 40.5; });
  Type("txtLeft", "-90");
  Press("cmdGeoreference");
  EXPECT_EQ("-90", Seen("txtLeft"));
  EXPECT_EQ("36.25", Seen("txtTop"));
  EXPECT_FALSE(page->Page->IsDirty());
}

TEST_F(MapLibraryPagesCoordinates, EdgesAreReadInTheUsersLocale) {
  testDesktop().Separators({",", ".", "€"});
  EXPECT_EQ(Calls{"Top(36.75)"}, AfterOK([this] {
              EXPECT_EQ("36,25", Seen("txtTop"));
              Type("txtTop", "36,75");
            }));
}

}  // namespace
}  // namespace orx::test
