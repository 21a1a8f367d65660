// The georeference dialog as its user meets it: what it shows, how the top edge follows, what it refuses, how it
// closes.
#include "tests/georeference/GeoreferenceTest.h"

namespace orx::test {
namespace {

TEST_F(GeoreferenceTest, TheEdgesHaveTheirDesignedTextsUntilTheFormIsLoaded) {
  const auto designed = std::make_shared<frmGeoreference>(desktop());
  for (const Field field : {kLeft, kRight, kBottom}) EXPECT_EQ("0", designed->txtInput[field].Text());
  EXPECT_EQ("", designed->txtInput[kTop].Text());
}

TEST_F(GeoreferenceTest, ShowsTheEdgesAsPlainNumbers) {
  map.Edges(-84.5, 0.1 + 0.2, 1E20, 3E20);
  Edit([this] {
    EXPECT_EQ("Georeference", user.SeeCaption(*form));
    EXPECT_EQ("-84.5", Seen(kLeft));
    EXPECT_EQ("0.30000000000000004", Seen(kRight));
    EXPECT_EQ("1E+20", Seen(kBottom));
    EXPECT_EQ("3E+20", Seen(kTop));
    Cancel();
  });
}

TEST_F(GeoreferenceTest, TheRatioIsKeptWhateverTheUserWants) {
  Edit([this] {
    const orx::test::Seen box = user.See(form->chkAspectRatio);
    EXPECT_EQ("Keep aspect ratio", box.Text);
    EXPECT_EQ(2, box.Value);
    EXPECT_FALSE(box.Enabled);
    Cancel();
  });
}

TEST_F(GeoreferenceTest, OpensInTheMiddleOfTheScreenOnTheFirstFieldWithItsTextSelected) {
  Edit([this] {
    const Size screen = desktop().Metrics(BorderStyle::Fixed).Screen;
    EXPECT_EQ((screen.Width - form->Width()) / 2, form->Left());
    EXPECT_EQ((screen.Height - form->Height()) / 2, form->Top());
    EXPECT_TRUE(user.See(At(kLeft)).Focused);
    EXPECT_EQ(1, At(kLeft).SelLength());
    Cancel();
  });
}

TEST_F(GeoreferenceTest, TabGoesFromEdgeToEdgeAndOnToTheButtons) {
  Edit([this] {
    for (Control* const control : std::initializer_list<Control*>{&At(kRight), &At(kBottom), &At(kTop), &form->cmdOK,
                                                                  &form->cmdCancel, &At(kLeft)}) {
      user.Press(*form, kTab);
      EXPECT_TRUE(user.See(*control).Focused) << control->Name();
    }
    Cancel();
  });
}

TEST_F(GeoreferenceTest, EachFieldHasTheNameOfItsEdge) {
  Edit([this] {
    EXPECT_EQ("Left", At(kLeft).AccessibleName());
    EXPECT_EQ("Right", At(kRight).AccessibleName());
    EXPECT_EQ("Bottom", At(kBottom).AccessibleName());
    EXPECT_EQ("Top", At(kTop).AccessibleName());
    Cancel();
  });
}

TEST_F(GeoreferenceTest, TheTopFollowsTheRightAndTheBottomEdge) {
  EXPECT_TRUE(Edit([this] {
    Type(kRight, "200");
    Leave();
    EXPECT_EQ("100.0000", Seen(kTop));
    Type(kBottom, "10");
    Leave();
    EXPECT_EQ("110.0000", Seen(kTop));
  }));
  ExpectEdges(0, 200, 10, 110);
}

TEST_F(GeoreferenceTest, TheTopFollowsTheLeftEdge) {
  Edit([this] {
    Type(kLeft, "-20");
    Leave();
    EXPECT_EQ("60.0000", Seen(kTop));
    EXPECT_EQ("-20", Seen(kLeft));
  });
  ExpectEdges(-20, 100, 0, 60);
}

TEST_F(GeoreferenceTest, ATypedTopGivesWayToTheOneThatFollows) {
  Edit([this] {
    Type(kRight, "200");
    Type(kTop, "999");
    Leave();
    EXPECT_EQ("100.0000", Seen(kTop));
  });
  ExpectEdges(0, 200, 0, 100);
}

TEST_F(GeoreferenceTest, TheRatioIsThatOfTheStart) {
  Edit([this] {
    for (const char* const right : {"10", "7", "3000"}) Type(kRight, right);
    Leave();
    EXPECT_EQ("1500.0000", Seen(kTop));
    Cancel();
  });
}

TEST_F(GeoreferenceTest, AnExtentUpsideDownStaysUpsideDown) {
  map.Edges(0, 100, 50, 0);
  Edit([this] {
    Type(kRight, "200");
    Leave();
    EXPECT_EQ("-50.0000", Seen(kTop));
  });
  ExpectEdges(0, 200, 50, -50);
}

TEST_F(GeoreferenceTest, OKUntouchedLeavesEveryBit) {
  map.Edges(-84.499999999999986, 0.1 + 0.2, 1.0 / 3, 2.0 / 3 + 1E-13);
  EXPECT_TRUE(Edit([] {}));
  ExpectEdges(-84.499999999999986, 0.1 + 0.2, 1.0 / 3, 2.0 / 3 + 1E-13);
  EXPECT_EQ(4U, map.Writes().size());
}

TEST_F(GeoreferenceTest, TabbingThroughAllFieldsLeavesEveryBit) {
  map.Edges(0.1, 0.7, 1.0 / 3, 2.0 / 3);
  Edit([this] {
    for (int i = 0; i < 6; ++i) user.Press(*form, kTab);
    EXPECT_EQ("0.6666666666666666", Seen(kTop));
  });
  ExpectEdges(0.1, 0.7, 1.0 / 3, 2.0 / 3);
}

TEST_F(GeoreferenceTest, BlanksAroundANumberAreNoEdit) {
  Edit([this] {
    Type(kRight, "  100 ");
    Leave();
    EXPECT_EQ("50", Seen(kTop));
  });
  ExpectEdges(0, 100, 0, 50);
}

TEST_F(GeoreferenceTest, WhatIsTypedBackBringsTheVerySameTopBack) {
  map.Edges(0.1, 0.7, 1.0 / 3, 0.88);
  Edit([this] {
    Type(kRight, "0.9");
    Type(kBottom, "2");
    Type(kTop, "5");
    Type(kRight, "0.70");
    Type(kBottom, "0.3333333333333333");
    Leave();
    EXPECT_EQ("0.8800", Seen(kTop));
  });
  ExpectEdges(0.1, 0.7, 1.0 / 3, 0.88);
}

TEST_F(GeoreferenceTest, EnterTakesTheNumberThatIsBeingTyped) {
  Edit([this] {
    Type(kRight, "200");
    user.Press(*form, kEnter);
    EXPECT_FALSE(form->Visible());
  });
  ExpectEdges(0, 200, 0, 100);
}

TEST_F(GeoreferenceTest, WhatIsNoNumberIsRefusedInEveryField) {
  EXPECT_TRUE(Edit([this] {
    for (const Field field : {kLeft, kRight, kBottom, kTop})
      for (const char* const text : {"west", "", "1E400", "1,5", "nan"}) ExpectRefused(field, text);
  }));
  ExpectEdges(0, 100, 0, 50);
}

TEST_F(GeoreferenceTest, ANumberFromWhichNoTopFollowsIsRefused) {
  Edit([this] {
    Type(kLeft, "-1E308");
    ExpectRefused(kRight, "1E308");
    EXPECT_EQ("100", Seen(kRight));
  });
  ExpectEdges(-1E308, 100, 0, 5E307);
}

TEST_F(GeoreferenceTest, ARefusedNumberLeavesTheLastGoodOne) {
  Edit([this] {
    Type(kRight, "200");
    Leave();
    ExpectRefused(kRight, "east");
    EXPECT_EQ("200", Seen(kRight));
    EXPECT_EQ("100.0000", Seen(kTop));
    Type(kRight, "300");
  });
  ExpectEdges(0, 300, 0, 150);
}

TEST_F(GeoreferenceTest, CancelWaitsForARefusedNumber) {
  EXPECT_TRUE(Edit([this] {
    Type(kRight, "east");
    script.ExpectMessage({"Input not valid.", "Wrong value", MessageIcon::Exclamation});
    Cancel();
    EXPECT_TRUE(form->Visible());
    Cancel();
    EXPECT_FALSE(form->Visible());
  }));
  EXPECT_EQ(Calls{}, map.Writes());
}

TEST_F(GeoreferenceTest, OKRefusesALeftEdgeThatIsNotBelowTheRightOne) {
  EXPECT_TRUE(Edit([this] {
    for (const char* const left : {"100", "150"}) {
      Type(kLeft, left);
      ExpectOKRefused();
    }
    EXPECT_EQ(Calls{}, map.Writes());
    Type(kLeft, "50");
    user.Click(form->cmdOK);
    EXPECT_FALSE(form->Visible());
    EXPECT_FALSE(form->Canceled());
  }));
  ExpectEdges(50, 100, 0, 25);
}

TEST_F(GeoreferenceTest, AfterARefusedOKTheUserMayCancel) {
  EXPECT_TRUE(Edit([this] {
    Type(kRight, "0");
    ExpectOKRefused();
    Cancel();
  }));
  EXPECT_EQ(Calls{}, map.Writes());
}

TEST_F(GeoreferenceTest, CancelEscapeAndTheCloseBoxWriteNothingAndAreNoError) {
  const std::function<void()> ways[] = {[this] { Cancel(); }, [this] { user.Press(*form, kEscape); },
                                        [this] { user.CloseBox(*form); }};
  for (const std::function<void()>& leave : ways) {
    EXPECT_TRUE(Edit([this, leave] {
      Type(kRight, "200");
      Leave();
      leave();
      EXPECT_FALSE(form->Visible());
      EXPECT_TRUE(form->Canceled());
    }));
    EXPECT_EQ(Calls{}, map.Writes());
  }
  ExpectEdges(0, 100, 0, 50);
}

TEST_F(GeoreferenceTest, NumbersAreThoseOfTheUsersLocale) {
  testDesktop().Separators({",", ".", "€"});
  map.Edges(0.5, 100.5, 0, 50);
  Edit([this] {
    EXPECT_EQ("0,5", Seen(kLeft));
    ExpectRefused(kRight, "200.5");
    Type(kRight, "1.200,5");
    Leave();
    EXPECT_EQ("600,0000", Seen(kTop));
  });
  ExpectEdges(0.5, 1200.5, 0, 600);
}

TEST_F(GeoreferenceTest, TheLanguageTranslatesAndGivesTheHelpNumber) {
  CallLog log;
  RecordingLanguage words(log);
  words.Texts = {{"_HelpMapGeoreference", "37.5"}};
  language = &words;
  Edit([this] {
    EXPECT_EQ(38, form->HelpContextId());
    EXPECT_EQ("<Georeference>", user.SeeCaption(*form));
    EXPECT_EQ("<Bottom>", user.See(form->lblHelp[2]).Text);
    EXPECT_EQ("<Bottom>", At(kBottom).AccessibleName());
    EXPECT_EQ("<Keep aspect ratio>", user.See(form->chkAspectRatio).Text);
    Cancel();
  });
}

TEST_F(GeoreferenceTest, ALanguageWithoutEntriesOrWithoutANumberChangesNothing) {
  CallLog log;
  RecordingLanguage words(log);
  words.Texts = {{"_HelpMapGeoreference", "none"}};
  language = &words;
  for (const std::int32_t entries : {0, 10}) {
    words.Entries = entries;
    Edit([this, entries] {
      EXPECT_EQ(0, form->HelpContextId());
      EXPECT_EQ(entries == 0 ? "Georeference" : "<Georeference>", user.SeeCaption(*form));
      Cancel();
    });
  }
}

}  // namespace
}  // namespace orx::test
