// The page for the general properties of a layer.
#include "tests/maplibrary/pages/PagesTest.h"

namespace orx::test {
namespace {

class MapLibraryPagesProperties : public PagesTest {
 protected:
  /// What the layer hears when the user does `acts` and presses OK.
  template <class Acts>
  Calls AfterOK(Acts acts) {
    InDialog("frmProperties", acts);
    mResult = service.ShowProperties(&layer);
    return layer.Log.Calls;
  }
  /// The entry is refused with that message, and OK then writes nothing.
  void Refuses(const std::string& field, const std::string& text, const std::string& title,
               const std::string& message) {
    InDialog("frmProperties", [=, this] { ExpectRefused(field, text); });
    ExpectRefusal(title, message);
    EXPECT_EQ(0, service.ShowProperties(&layer));
    EXPECT_EQ(Calls{}, layer.Log.Calls);
  }

  std::int32_t mResult = 0;
};

TEST_F(MapLibraryPagesProperties, ShowsTheLayersValues) {
  AfterOK([this] {
    EXPECT_EQ("Elevation", Seen("txtName"));
    EXPECT_EQ("/data/jacksboro.bil", Seen("txtSource"));
    EXPECT_EQ("/data/jacksboro.bil", form->Find("txtSource")->ToolTipText());
    EXPECT_EQ(1, user.See(*form->Find("chkVisible")).Value);
    EXPECT_EQ("Map Signs", Seen("cboFont"));
    EXPECT_EQ("A (U+0041)", Seen("txtCharacter"));
    EXPECT_EQ("30", Seen("txtRotation"));
    EXPECT_EQ("12", Seen("txtSize"));
  });
}

TEST_F(MapLibraryPagesProperties, AnUntouchedOKCallsNoSetter) {
  EXPECT_EQ(Calls{}, AfterOK([] {}));
  EXPECT_EQ(0, mResult);
}

TEST_F(MapLibraryPagesProperties, TabbingThroughAllFieldsCallsNoSetter) {
  layer.HeldSymbolRotation = 1.0 / 3;
  layer.HeldSymbolSize = 500;
  layer.HeldSymbolCharacter = 0xF041;
  EXPECT_EQ(Calls{}, AfterOK([this] {
              for (int i = 0; i < 12; ++i) user.Press(*form, kTab);
            }));
}

TEST_F(MapLibraryPagesProperties, TheNameIsWrittenOnOK) {
  EXPECT_EQ(Calls{"Name(Relief)"}, AfterOK([this] { Type("txtName", "Relief"); }));
  EXPECT_EQ(-1, mResult);
}

TEST_F(MapLibraryPagesProperties, VisibleIsWrittenOnOK) {
  EXPECT_EQ(Calls{"Visible(False)"}, AfterOK([this] { Toggle("chkVisible"); }));
}

TEST_F(MapLibraryPagesProperties, AFontOfTheListIsWrittenOnOK) {
  EXPECT_EQ(Calls{"SymbolFont(Arial)"}, AfterOK([this] { Choose("cboFont", 0); }));
}

TEST_F(MapLibraryPagesProperties, ATypedFontIsWrittenOnOK) {
  EXPECT_EQ(Calls{"SymbolFont(Other Signs)"}, AfterOK([this] { user.Type(Get<ComboBox>("cboFont"), "Other Signs"); }));
}

TEST_F(MapLibraryPagesProperties, TheRotationIsWrittenOnOK) {
  EXPECT_EQ(Calls{"SymbolRotation(-22.5)"}, AfterOK([this] { Type("txtRotation", "-22.5"); }));
}

TEST_F(MapLibraryPagesProperties, TheSizeIsWrittenOnOK) {
  EXPECT_EQ(Calls{"SymbolSize(14)"}, AfterOK([this] { Type("txtSize", "14"); }));
}

TEST_F(MapLibraryPagesProperties, AValueTypedAsItWasIsNotWritten) {
  EXPECT_EQ(Calls{}, AfterOK([this] { Type("txtSize", "12.0"); }));
  EXPECT_EQ(0, mResult);
}

struct CharacterEntry {
  const char* Text;
  std::int32_t Code;
};

class MapLibraryPagesCharacter : public PagesTest, public testing::WithParamInterface<CharacterEntry> {};

TEST_P(MapLibraryPagesCharacter, IsAcceptedAsCharacterOrCode) {
  InDialog("frmProperties", [this] { Type("txtCharacter", GetParam().Text); });
  service.ShowProperties(&layer);
  EXPECT_EQ(GetParam().Code, layer.HeldSymbolCharacter);
}

INSTANTIATE_TEST_SUITE_P(Entries, MapLibraryPagesCharacter,
                         testing::Values(CharacterEntry{"B", 'B'}, CharacterEntry{"7", '7'}, CharacterEntry{"65", 65},
                                         CharacterEntry{"U+00E4", 0xE4}, CharacterEntry{"u+f041", 0xF041},
                                         CharacterEntry{"€", 0x20AC}, CharacterEntry{"😀", 0x1F600},
                                         CharacterEntry{" 1234 ", 1234}, CharacterEntry{"+", '+'},
                                         CharacterEntry{"C (U+0041)", 'C'}, CharacterEntry{"A (U+0043)", 'C'}));

TEST_F(MapLibraryPagesProperties, ACharacterThatShowsNothingShowsItsCode) {
  layer.HeldSymbolCharacter = 0xF041;
  AfterOK([this] { EXPECT_EQ("U+F041", Seen("txtCharacter")); });
}

constexpr const char* kNoCharacter = " is not a character. Type one character, or its code such as U+0041 or 65.";

TEST_F(MapLibraryPagesProperties, TwoLettersAreNoCharacter) {
  Refuses("txtCharacter", "AB", "Wrong value", std::string("Character: \"AB\"") + kNoCharacter);
}

TEST_F(MapLibraryPagesProperties, ACodeBeyondUnicodeIsNoCharacter) {
  Refuses("txtCharacter", "U+110000", "Wrong value", std::string("Character: \"U+110000\"") + kNoCharacter);
}

TEST_F(MapLibraryPagesProperties, AHalfOfAPairIsNoCharacter) {
  Refuses("txtCharacter", "U+D800", "Wrong value", std::string("Character: \"U+D800\"") + kNoCharacter);
}

TEST_F(MapLibraryPagesProperties, AControlCodeIsNoCharacter) {
  Refuses("txtCharacter", "U+001F", "Wrong value", std::string("Character: \"U+001F\"") + kNoCharacter);
}

TEST_F(MapLibraryPagesProperties, AnEmptyTextIsNoCharacter) {
  Refuses("txtCharacter", "", "Wrong value", std::string("Character: \"\"") + kNoCharacter);
}

TEST_F(MapLibraryPagesProperties, ABlankNameIsRefused) {
  Refuses("txtName", "  ", "Wrong value", "Name: a blank name is not allowed. Type a name.");
}

TEST_F(MapLibraryPagesProperties, ARotationThatIsNoNumberIsRefused) {
  Refuses("txtRotation", "north", "Invalid number",
          "Rotation: \"north\" is not a number. Type a number from -360 to 360.");
}

TEST_F(MapLibraryPagesProperties, ARotationBeyondOneTurnIsRefused) {
  Refuses("txtRotation", "360.5", "Wrong value", "Rotation: 360.5 is not allowed. Type a number from -360 to 360.");
}

TEST_F(MapLibraryPagesProperties, ASizeThatIsNoNumberIsRefused) {
  Refuses("txtSize", "12 pt", "Invalid number", "Size: \"12 pt\" is not a number. Type a number from 1 to 144.");
}

TEST_F(MapLibraryPagesProperties, ASizeBelowOnePointIsRefused) {
  Refuses("txtSize", "0.5", "Wrong value", "Size: 0.5 is not allowed. Type a number from 1 to 144.");
}

TEST_F(MapLibraryPagesProperties, ThePreviewTurnsTheSymbol) {
  AfterOK([this] {
    Type("txtRotation", "45");
    user.Press(*form, kTab);
    const auto& marks = Get<PictureBox>("pctSymbol").Drawing().Marks();
    ASSERT_EQ(1U, marks.size());
    const auto& symbol = std::get<TextMark>(marks[0]);
    EXPECT_EQ("A", symbol.Text);
    EXPECT_EQ("Map Signs", symbol.Face.Name);
    EXPECT_EQ(45, symbol.Rotation);
  });
}

TEST_F(MapLibraryPagesProperties, TheChoiceButtonIsHiddenWithoutSomeoneToAnswer) {
  AfterOK([this] { EXPECT_FALSE(user.See(*form->Find("cmdCharacter")).Visible); });
}

TEST_F(MapLibraryPagesProperties, TheChoiceIsAskedForWithThePresentSymbolAndTakenOver) {
  const auto page = MakePage(PageKind::Properties);
  page->Page->CharacterRequested = [](CharacterRequest& request) {
    EXPECT_EQ("Map Signs", request.FontName);
    EXPECT_EQ('A', request.Character);
    request = {"Wingdings", 0x80, 90, true};
  };
  page->Page->Client(&layer);
  page->Page->RefreshContents();
  page->Show(ShowMode::Modeless);
  Press("cmdCharacter");
  EXPECT_EQ("€ (U+20AC)", Seen("txtCharacter"));
  page->Page->SaveChanges();
  EXPECT_EQ((Calls{"SymbolFont(Wingdings)", "SymbolCharacter(8364)", "SymbolRotation(90)"}), layer.Log.Calls);
  page->Unload();
}

TEST_F(MapLibraryPagesProperties, ASymbolThatFontsHaveNoCodeForStaysUntilAnotherIsChosen) {
  layer.HeldSymbolCharacter = 0x25B2;
  std::int32_t answer = 255;
  const auto page = MakePage(PageKind::Properties);
  page->Page->CharacterRequested = [&answer](CharacterRequest& request) {
    EXPECT_EQ(255, request.Character);
    request = {"Wingdings", answer, request.Rotation, true};
  };
  page->Page->Client(&layer);
  page->Page->RefreshContents();
  page->Show(ShowMode::Modeless);
  Press("cmdCharacter");
  EXPECT_EQ("▲ (U+25B2)", Seen("txtCharacter"));
  EXPECT_EQ("Wingdings", Seen("cboFont"));
  answer = 0x93;
  Press("cmdCharacter");
  EXPECT_EQ("“ (U+201C)", Seen("txtCharacter"));
  page->Unload();
}

TEST_F(MapLibraryPagesProperties, AChoiceThatChangedNothingLeavesTheFields) {
  const auto page = MakePage(PageKind::Properties);
  page->Page->CharacterRequested = [](CharacterRequest& request) { request.Character = 'Z'; };
  page->Page->Client(&layer);
  page->Page->RefreshContents();
  page->Show(ShowMode::Modeless);
  Press("cmdCharacter");
  EXPECT_EQ("A (U+0041)", Seen("txtCharacter"));
  page->Unload();
}

TEST_F(MapLibraryPagesProperties, NameChangedComesAfterTheNameWasWritten) {
  const auto page = MakePage(PageKind::Properties);
  std::string told;
  page->Page->NameChanged = [&](const std::string& name) { told = name + "=" + layer.HeldName; };
  page->Page->Client(&layer);
  page->Page->RefreshContents();
  Field("txtName").Text("Relief");
  page->Page->SaveChanges();
  EXPECT_EQ("Relief=Relief", told);
  told.clear();
  page->Page->SaveChanges();
  EXPECT_EQ("", told);
}

}  // namespace
}  // namespace orx::test
