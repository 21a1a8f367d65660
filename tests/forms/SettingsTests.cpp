// Settings: the same on every desktop, whatever it keeps them in.
#include <stdexcept>

#include "tests/support/DesktopTest.h"

namespace orx::test {
namespace {

class SettingsTest : public DesktopTest {
 protected:
  // The store may be one for all programs of a user, and tests run side by side.
  const std::string Key =
      std::string("Orvex Settings Test ") + testing::UnitTest::GetInstance()->current_test_info()->name();

  SettingsTest() { store().Forget(Key); }
  ~SettingsTest() override { store().Forget(Key); }

  SettingsStore& store() { return desktop().Settings(); }
  std::optional<std::string> Read(const std::string& name) { return store().Read({Key, "DataDialog", name}); }
  void Write(const std::string& name, const std::string& text) { store().Write({Key, "DataDialog", name}, text); }
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
  store().Write({Key, "MapSettings", "Left"}, "3");
  EXPECT_EQ(Read("Left"), "1");
  EXPECT_EQ(Read("Left/Top"), "2");
  EXPECT_EQ(store().Read({Key, "MapSettings", "Left"}), "3");
  EXPECT_EQ(store().Read({Key + " 2", "DataDialog", "Left"}), std::nullopt);
}

TEST_F(SettingsTest, AKeyMayHaveLevelsAndOtherLetters) {
  const SettingName deep{Key + "\\Kärten\\2", "DataDialog", "Top"};
  store().Write(deep, "77");
  EXPECT_EQ(store().Read(deep), "77");
}

TEST_F(SettingsTest, ForgettingAKeyTakesAllItsSectionsAndNoOthers) {
  const std::string other = Key + " other";
  Write("Left", "1");
  store().Write({other, "DataDialog", "Left"}, "2");
  store().Forget(Key);
  EXPECT_EQ(Read("Left"), std::nullopt);
  EXPECT_EQ(store().Read({other, "DataDialog", "Left"}), "2");
  store().Forget(other);
}

TEST_F(SettingsTest, ForgettingNothingLeavesEverything) {
  Write("Left", "1");
  store().Forget("");
  store().Forget("\\");
  EXPECT_EQ(Read("Left"), "1");
}

TEST_F(SettingsTest, ANameWithAnEmptyPartIsRefusedWithAllItsParts) {
  EXPECT_THROW(store().Write({"", "DataDialog", "Left"}, "1"), std::invalid_argument);
  EXPECT_THROW(store().Write({Key, "", "Left"}, "1"), std::invalid_argument);
  try {
    store().Write({Key, "DataDialog", ""}, "1");
    FAIL() << "an empty name was taken";
  } catch (const std::invalid_argument& error) {
    EXPECT_NE(std::string(error.what()).find(Key + "\\DataDialog\\"), std::string::npos);
  }
}

}  // namespace
}  // namespace orx::test
