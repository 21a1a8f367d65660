// Settings: the same on every desktop, whatever it keeps them in.
#include <stdexcept>

#include "tests/support/DesktopTest.h"

namespace orx::test {
namespace {

class SettingsTest : public DesktopTest {
 protected:
  // The store may be one for all programs of a user, and tests run side by side.
  const std::string key =
      std::string("Orvex Settings Test ") + testing::UnitTest::GetInstance()->current_test_info()->name();

  SettingsTest() { Store().Forget(key); }
  ~SettingsTest() override { Store().Forget(key); }

  SettingsStore& Store() { return desktop().Settings(); }
  std::optional<std::string> Read(const std::string& name) { return Store().Read({key, "DataDialog", name}); }
  void Write(const std::string& name, const std::string& text) { Store().Write({key, "DataDialog", name}, text); }
};

TEST_F(SettingsTest, WhatWasNeverWrittenIsNotThere) {
  EXPECT_EQ(Read("Left"), std::nullopt);
}

TEST_F(SettingsTest, ATextIsReadAsItWasWritten) {
  for (const std::string text :
       {"1200", "", "-15", "1E+20", " blanks ", "Größe \xE2\x82\xAC \xF0\x9F\x97\xBA", "a=b;c/d\\e\"f", "line\nline"}) {
    Write("Left", text);
    EXPECT_EQ(Read("Left"), text);
  }
}

TEST_F(SettingsTest, NamesAndSectionsDoNotMixUp) {
  Write("Left", "1");
  Write("Left/Top", "2");
  Store().Write({key, "MapSettings", "Left"}, "3");
  EXPECT_EQ(Read("Left"), "1");
  EXPECT_EQ(Read("Left/Top"), "2");
  EXPECT_EQ(Store().Read({key, "MapSettings", "Left"}), "3");
  EXPECT_EQ(Store().Read({key + " 2", "DataDialog", "Left"}), std::nullopt);
}

TEST_F(SettingsTest, AKeyMayHaveLevelsAndOtherLetters) {
  const SettingName deep{key + "\\Kärten\\2", "DataDialog", "Top"};
  Store().Write(deep, "77");
  EXPECT_EQ(Store().Read(deep), "77");
}

TEST_F(SettingsTest, ForgettingAKeyTakesAllItsSectionsAndNoOthers) {
  const std::string other = key + " other";
  Write("Left", "1");
  Store().Write({other, "DataDialog", "Left"}, "2");
  Store().Forget(key);
  EXPECT_EQ(Read("Left"), std::nullopt);
  EXPECT_EQ(Store().Read({other, "DataDialog", "Left"}), "2");
  Store().Forget(other);
}

TEST_F(SettingsTest, ForgettingNothingLeavesEverything) {
  Write("Left", "1");
  Store().Forget("");
  Store().Forget("\\");
  EXPECT_EQ(Read("Left"), "1");
}

TEST_F(SettingsTest, ANameWithAnEmptyPartIsRefusedWithAllItsParts) {
  EXPECT_THROW(Store().Write({"", "DataDialog", "Left"}, "1"), std::invalid_argument);
  EXPECT_THROW(Store().Write({key, "", "Left"}, "1"), std::invalid_argument);
  try {
    Store().Write({key, "DataDialog", ""}, "1");
    FAIL() << "an empty name was taken";
  } catch (const std::invalid_argument& error) {
    EXPECT_NE(std::string(error.what()).find(key + "\\DataDialog\\"), std::string::npos);
  }
}

}  // namespace
}  // namespace orx::test
