// What a host sets and reads back: the bar with its errors, the title, and the text.
#include "hostobjects/RunTimeError.h"
#include "tests/progress/ProgressTest.h"

namespace orx::test {
namespace {

class ProgressValues : public ProgressTest {
 protected:
  /// The number of the error that an act raises, 0 for none.
  template <class Act>
  static std::int32_t NumberOf(Act&& act) {
    try {
      act();
    } catch (const RunTimeError& error) {
      EXPECT_STRNE("", error.what());
      return error.Number();
    }
    return 0;
  }
};

TEST_F(ProgressValues, AreAsDesignedAtFirst) {
  EXPECT_EQ("Progress", progress->Caption());
  EXPECT_EQ("Message ...", progress->Message());
  EXPECT_EQ(0, progress->Value());
  EXPECT_FALSE(progress->CancelAction());
  EXPECT_EQ(0, NumberOf([&] { progress->Value(100); }));
  EXPECT_EQ(kErrorInvalidValue, NumberOf([&] { progress->Value(101); }));
}

TEST_F(ProgressValues, AreReadBackAsTheyWereSet) {
  for (const std::int32_t value : {0, 1, 7, 99, 1000, 123456, 16777215, 16777216, -1, -16777216}) {
    progress->Init(-16777216, 16777216, value);
    EXPECT_EQ(value, progress->Value());
    progress->Value(value / 2);
    EXPECT_EQ(value / 2, progress->Value());
  }
}

TEST_F(ProgressValues, AreOfSinglePrecision) {
  progress->Init(0, 20000000, 16777217);
  EXPECT_EQ(16777216, progress->Value());
  progress->Value(16777219);
  EXPECT_EQ(16777220, progress->Value());
}

TEST_F(ProgressValues, BeyondWhatSinglePrecisionHoldsOfTheWholeNumbersOverflow) {
  progress->Init(0, 2147483647, 2147483647);
  EXPECT_EQ(kErrorOverflow, NumberOf([&] { progress->Value(); }));
  progress->Init(-2147483647 - 1, 0, -2147483647 - 1);
  EXPECT_EQ(-2147483647 - 1, progress->Value());
}

TEST_F(ProgressValues, OfANewRangeAboveOrBelowTheOldOneAreTaken) {
  progress->Init(200, 300, 250);
  EXPECT_EQ(250, progress->Value());
  progress->Init(-30, -20, -25);
  EXPECT_EQ(-25, progress->Value());
  progress->Init(0, 0, 0);
  EXPECT_EQ(0, progress->Value());
}

TEST_F(ProgressValues, BeyondTheEndsRaiseTheErrorOfTheBarAndChangeNothing) {
  progress->Init(10, 20, 15);
  for (const std::int32_t value : {9, 21, -15, 2147483647}) {
    EXPECT_EQ(kErrorInvalidValue, NumberOf([&] { progress->Value(value); })) << value;
    EXPECT_EQ(15, progress->Value());
  }
}

TEST_F(ProgressValues, AreInitialisedFromTheMinimumOnUntilOneIsRefused) {
  progress->Init(0, 300, 250);
  EXPECT_EQ(kErrorInvalidValue, NumberOf([&] { progress->Init(10, 5, 7); }));
  // The minimum stands, the maximum and the value are as before.
  EXPECT_EQ(250, progress->Value());
  EXPECT_EQ(0, NumberOf([&] { progress->Value(300); }));
  EXPECT_EQ(kErrorInvalidValue, NumberOf([&] { progress->Value(9); }));
  EXPECT_EQ(kErrorInvalidValue, NumberOf([&] { progress->Init(0, 50, 51); }));
  EXPECT_EQ(50, progress->Value());
}

TEST_F(ProgressValues, FillTheBarInProportion) {
  progress->Init(-50, 150, 0);
  progress->Show();
  const int pixels = Window().prgBar.Pixels();
  EXPECT_EQ(pixels / 4, user.See(Window().prgBar).Value);
  progress->Value(50);
  EXPECT_EQ(pixels / 2, SeeSettled(Window().prgBar).Value);
  progress->Value(-50);
  EXPECT_EQ(0, SeeSettled(Window().prgBar).Value);
  progress->Value(149);
  EXPECT_LT(SeeSettled(Window().prgBar).Value, pixels);
  progress->Value(150);
  EXPECT_EQ(pixels, SeeSettled(Window().prgBar).Value);
}

TEST_F(ProgressValues, OfARangeWithoutLengthLeaveTheBarEmpty) {
  progress->Init(5, 5, 5);
  progress->Show();
  EXPECT_EQ(0, user.See(Window().prgBar).Value);
}

TEST_F(ProgressValues, SetWhileTheWindowIsHiddenAreThereWhenItIsShown) {
  progress->Show();
  const std::shared_ptr<Form> form = desktop().OpenForms().back();
  progress->Hide();
  progress->Init(0, 10, 10);
  progress->Message("Almost there");
  progress->Caption("Contours");
  progress->Show();
  EXPECT_EQ(form.get(), &Window());
  EXPECT_EQ(Window().prgBar.Pixels(), user.See(Window().prgBar).Value);
  EXPECT_EQ("Almost there", user.See(Window().lblMsg).Text);
  EXPECT_EQ("Contours", user.SeeCaption(Window()));
}

TEST_F(ProgressValues, TheMessageIsShownAsItIsWritten) {
  progress->Show();
  EXPECT_EQ("Message ...", user.See(Window().lblMsg).Text);
  for (const char* text : {"Tiles & layers", "a && b", "&File", "100 %", "Gr\u00FC\u00DFe \u20AC \u5730", ""}) {
    progress->Message(text);
    EXPECT_EQ(text, progress->Message());
    EXPECT_EQ(text, SeeSettled(Window().lblMsg).Text);
  }
}

TEST_F(ProgressValues, AnEmptyMessageEmptiesTheLabel) {
  progress->Message("");
  progress->Show();
  EXPECT_EQ("", progress->Message());
  EXPECT_EQ("", user.See(Window().lblMsg).Text);
}

TEST_F(ProgressValues, TheCaptionIsTheTitleOfTheWindow) {
  progress->Show();
  EXPECT_EQ("Progress", user.SeeCaption(Window()));
  for (const char* text : {"Gel\xC3\xA4nde & mehr", ""}) {
    progress->Caption(text);
    EXPECT_EQ(text, progress->Caption());
    EXPECT_EQ(text, user.SeeCaption(Window()));
  }
}

TEST_F(ProgressValues, TheBarIsCalledProgressByAssistiveSoftware) {
  progress->Show();
  EXPECT_EQ("Progress", Window().prgBar.AccessibleName());
}

}  // namespace
}  // namespace orx::test
