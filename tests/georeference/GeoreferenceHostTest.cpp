// The georeference dialog and its host: what is read and written, in which order, and what happens when that fails.
#include <cmath>
#include <limits>

#include "pages/PageFactory.h"
#include "service/CCommonMapDialogs.h"
#include "tests/georeference/GeoreferenceTest.h"

namespace orx::test {
namespace {

using GeoreferenceHost = GeoreferenceTest;

TEST_F(GeoreferenceHost, TheExtentIsAskedForWithEachValue) {
  Edit([this] {
    EXPECT_EQ((Calls{"Extent", "Left", "Extent", "Right", "Extent", "Bottom", "Extent", "Top"}), map.Log.Calls);
    map.Log.Calls.clear();
    Type(kBottom, "-5");
  });
  EXPECT_EQ((Calls{"Extent", "Left=(0)", "Extent", "Right=(100)", "Extent", "Bottom=(-5)", "Extent", "Top=(45)"}),
            map.Log.Calls);
}

TEST_F(GeoreferenceHost, AnExtentMovedPastItsOldEdgesIsInOrderAtEachStep) {
  Edit([this] {
    Type(kRight, "1100");
    Type(kLeft, "1000");
    Type(kBottom, "500");
  });
  EXPECT_EQ((Calls{"Right=(1100)", "Left=(1000)", "Top=(550)", "Bottom=(500)"}), map.Writes());
  EXPECT_TRUE(map.IsInOrder);
  map.Log.Calls.clear();
  Edit([this] {
    Type(kLeft, "-100");
    Type(kRight, "0");
    Type(kBottom, "-50");
  });
  EXPECT_EQ((Calls{"Left=(-100)", "Right=(0)", "Bottom=(-50)", "Top=(0)"}), map.Writes());
  EXPECT_TRUE(map.IsInOrder);
}

TEST_F(GeoreferenceHost, AnExtentThatCannotBeReadIsNotShown) {
  for (const char* const member : {"Extent", "Left", "Right", "Bottom", "Top"}) {
    map.Log.Failing = {member};
    ExpectNotShown(member);
  }
}

TEST_F(GeoreferenceHost, WithoutAnExtentNothingIsShown) {
  map.HasExtent = false;
  ExpectNotShown("an extent that is nothing");
  PlainObject other;
  EXPECT_FALSE(modMain::ShowGeoreferenceDialog(desktop(), &other, nullptr));
  EXPECT_FALSE(modMain::ShowGeoreferenceDialog(desktop(), nullptr, nullptr));
}

TEST_F(GeoreferenceHost, AnExtentWithoutARatioIsRefusedWithABeep) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kLargest = std::numeric_limits<double>::max();
  map.Edges(0, 100, 50, 50);
  ExpectNotShown("no height");
  map.Edges(7, 7, 0, 50);
  ExpectNotShown("no width");
  map.Edges(7, 7, 50, 50);
  ExpectNotShown("a point");
  map.Edges(std::nan(""), 100, 0, 50);
  ExpectNotShown("a left edge that is no number");
  map.Edges(0, 100, 0, std::nan(""));
  ExpectNotShown("a top edge that is no number");
  map.Edges(-kInfinity, 100, 0, 50);
  ExpectNotShown("an endless width");
  map.Edges(0, 100, 0, kInfinity);
  ExpectNotShown("an endless height");
  map.Edges(-kLargest, kLargest, 0, 50);
  ExpectNotShown("a width that overflows");
}

TEST_F(GeoreferenceHost, AnEdgeThatCannotBeWrittenIsPassedOver) {
  const struct {
    const char* Failing;
    Calls Written;
  } kept[] = {{"Left=", {"Right=(90)", "Bottom=(-10)", "Top=(40)"}},
              {"Right=", {"Left=(-10)", "Bottom=(-10)", "Top=(40)"}},
              {"Bottom=", {"Left=(-10)", "Right=(90)", "Top=(40)"}},
              {"Top=", {"Left=(-10)", "Right=(90)", "Bottom=(-10)"}}};
  for (const auto& one : kept) {
    map.Edges(0, 100, 0, 50);
    map.Log = {};
    EXPECT_FALSE(Edit([&] {
      Type(kLeft, "-10");
      Type(kRight, "90");
      Type(kBottom, "-10");
      map.Log.Failing = {one.Failing};
    })) << one.Failing;
    Calls done = map.Writes();
    std::erase_if(done, [&](const std::string& call) { return call.starts_with(one.Failing); });
    EXPECT_EQ(one.Written, done) << one.Failing;
  }
}

TEST_F(GeoreferenceHost, AnEdgeStaysWhenItWouldPassOneThatCannotBeWritten) {
  EXPECT_FALSE(Edit([this] {
    Type(kRight, "1100");
    Type(kLeft, "1000");
    map.Log.Failing = {"Right="};
  }));
  EXPECT_EQ(0, map.Left);
  EXPECT_EQ(100, map.Right);
  EXPECT_TRUE(map.IsInOrder);
}

TEST_F(GeoreferenceHost, AMapThatLosesItsExtentMeanwhileIsAnError) {
  EXPECT_FALSE(Edit([this] { map.HasExtent = false; }));
  EXPECT_EQ(Calls{}, map.Writes());
}

TEST_F(GeoreferenceHost, ALanguageThatFailsWhenItIsGivenIsAnErrorAndNoMore) {
  CallLog log;
  RecordingLanguage words(log);
  log.Failing = {"Language.EntryCount"};
  language = &words;
  EXPECT_FALSE(Edit([this] {
    EXPECT_EQ("Georeference", user.SeeCaption(*form));
    Type(kRight, "200");
  }));
  ExpectEdges(0, 200, 0, 100);
}

TEST_F(GeoreferenceHost, ADialogThatCannotBeLoadedWritesNothing) {
  CallLog log;
  RecordingLanguage words(log);
  log.Failing = {"Language.TranslateForm"};
  language = &words;
  EXPECT_FALSE(Open());
  EXPECT_EQ(Calls{}, map.Writes());
}

class GeoreferenceService : public GeoreferenceTest {
 protected:
  /// Expects the dialog and presses the button in it.
  void ExpectAnswer(const std::string& button) {
    script.ExpectForm("frmGeoreference", [this, button](Form& shown) {
      EXPECT_EQ("Georeference", user.SeeCaption(shown));
      EXPECT_EQ(2, user.See(*shown.Find("chkAspectRatio")).Value);
      user.Type(dynamic_cast<TextBox&>(*shown.Find("txtInput(1)")), "200");
      user.Press(shown, kTab);
      EXPECT_EQ("100.0000", user.See(*shown.Find("txtInput(3)")).Text);
      user.Click(dynamic_cast<Button&>(*shown.Find(button)));
    });
  }

  pages::PageFactory pages;
  CCommonMapDialogs service{desktop(), pages};
};

TEST_F(GeoreferenceService, OKAndCancelBothTellThatNothingHasFailed) {
  ExpectAnswer("cmdCancel");
  EXPECT_EQ(-1, service.ShowGeoReference(&map));
  ExpectEdges(0, 100, 0, 50);
  ExpectAnswer("cmdOK");
  EXPECT_EQ(-1, service.ShowGeoReference(&map));
  ExpectEdges(0, 200, 0, 100);
}

TEST_F(GeoreferenceService, RatioFormatAndCaptionHaveNoEffect) {
  ExpectAnswer("cmdCancel");
  EXPECT_EQ(-1, service.ShowGeoReference(&map, CheckState::Unchecked, "0", "A title"));
}

TEST_F(GeoreferenceService, AFailureIsTold) {
  map.Log.Failing = {"Top="};
  ExpectAnswer("cmdOK");
  EXPECT_EQ(0, service.ShowGeoReference(&map));
}

TEST_F(GeoreferenceService, OtherObjectsShowNothing) {
  PlainObject layer;
  EXPECT_EQ(0, service.ShowGeoReference(&layer));
  EXPECT_EQ(0, service.ShowGeoReference(nullptr));
  EXPECT_EQ(0, script.Beeps);
}

TEST_F(GeoreferenceService, AnErrorOfTheQuestionWhatAnObjectIsReachesTheHost) {
  struct Broken final : HostObject {
    HostInterface* ViewFor(const std::type_info&) override { throw RunTimeError(1001, "No answer."); }
  } broken;
  EXPECT_THROW(service.ShowGeoReference(&broken), RunTimeError);
}

TEST_F(GeoreferenceService, TheDialogSpeaksTheLanguageOfTheService) {
  CallLog log;
  RecordingLanguage words(log);
  service.Language(&words);
  script.ExpectForm("frmGeoreference", [this](Form& shown) {
    EXPECT_EQ("<Georeference>", user.SeeCaption(shown));
    user.CloseBox(shown);
  });
  EXPECT_EQ(-1, service.ShowGeoReference(&map));
}

}  // namespace
}  // namespace orx::test
