// The page for the labels of a layer.
#include "tests/maplibrary/pages/PagesTest.h"

namespace orx::test {
namespace {

class MapLibraryPagesLabels : public PagesTest {
 protected:
  template <class Acts>
  Calls AfterOK(Acts acts) {
    InDialog("frmLabels", acts);
    service.ShowLabels(&layer);
    return layer.Log.Calls;
  }
  void Refuses(const std::string& field, const std::string& text, const std::string& title,
               const std::string& message) {
    InDialog("frmLabels", [=, this] { ExpectRefused(field, text); });
    ExpectRefusal(title, message);
    service.ShowLabels(&layer);
    EXPECT_EQ(Calls{}, layer.Log.Calls);
  }
  const TextMark& Preview() { return std::get<TextMark>(Get<PictureBox>("pctPreview").Drawing().Marks().at(0)); }
};

TEST_F(MapLibraryPagesLabels, ShowsTheLabelsValues) {
  AfterOK([this] {
    EXPECT_EQ(1, user.See(*form->Find("chkShowLabels")).Value);
    EXPECT_EQ("Name", Seen("cboContent"));
    EXPECT_EQ("Above", Seen("cboPosition"));
    EXPECT_EQ("0", Seen("txtRotation"));
    EXPECT_EQ("Arial", Seen("cboFont"));
    EXPECT_EQ("9", Seen("txtSize"));
    EXPECT_EQ("Red", Seen("cboColor"));
    EXPECT_EQ("#FF0000", Seen("txtColor"));
  });
}

TEST_F(MapLibraryPagesLabels, AnUntouchedOKCallsNoSetter) {
  EXPECT_EQ(Calls{}, AfterOK([] {}));
}

TEST_F(MapLibraryPagesLabels, ValuesThatNoListOffersStayAsTheyAre) {
  layer.HeldContent = static_cast<LabelContent>(7);
  layer.HeldPosition = static_cast<LabelPosition>(-3);
  EXPECT_EQ(Calls{}, AfterOK([this] { EXPECT_EQ(-1, user.See(*form->Find("cboContent")).Value); }));
}

TEST_F(MapLibraryPagesLabels, TheSwitchIsWrittenOnOK) {
  EXPECT_EQ(Calls{"ShowLabels(False)"}, AfterOK([this] { Toggle("chkShowLabels"); }));
}

TEST_F(MapLibraryPagesLabels, TheContentIsWrittenOnOK) {
  EXPECT_EQ(Calls{"Content(2)"}, AfterOK([this] { Choose("cboContent", 2); }));
}

TEST_F(MapLibraryPagesLabels, ThePositionIsWrittenOnOK) {
  EXPECT_EQ(Calls{"Position(4)"}, AfterOK([this] { Choose("cboPosition", 4); }));
}

TEST_F(MapLibraryPagesLabels, TheRotationIsWrittenOnOK) {
  EXPECT_EQ(Calls{"LabelRotation(90)"}, AfterOK([this] { Type("txtRotation", "90"); }));
}

TEST_F(MapLibraryPagesLabels, AllPartsOfTheFontAreWrittenTogetherAndTheRestOfItStays) {
  EXPECT_EQ(Calls{"LabelFont(Verdana,11.5,bold,italic,underline,strikethrough)"}, AfterOK([this] {
              user.Type(Get<ComboBox>("cboFont"), "Verdana");
              Type("txtSize", "11.5");
              Toggle("chkBold");
              Toggle("chkItalic");
              Toggle("chkUnderline");
            }));
}

TEST_F(MapLibraryPagesLabels, ANamedColorIsWrittenOnOK) {
  EXPECT_EQ(Calls{"LabelColor(0,0,255)"}, AfterOK([this] {
              Choose("cboColor", 5);
              EXPECT_EQ("#0000FF", Seen("txtColor"));
            }));
}

TEST_F(MapLibraryPagesLabels, AColorInHexadecimalIsWrittenOnOK) {
  EXPECT_EQ(Calls{"LabelColor(1,2,171)"}, AfterOK([this] { Type("txtColor", "0102ab"); }));
}

TEST_F(MapLibraryPagesLabels, AColorInHexadecimalSelectsItsNameOrCustom) {
  AfterOK([this] {
    Type("txtColor", "#FFFFFF");
    user.Press(*form, kTab);
    EXPECT_EQ("White", Seen("cboColor"));
    Type("txtColor", "#FFFFFE");
    user.Press(*form, kTab);
    EXPECT_EQ("Custom", Seen("cboColor"));
    EXPECT_EQ((Color{255, 255, 254}), Get<PictureBox>("pctColor").BackColor());
  });
}

TEST_F(MapLibraryPagesLabels, ChoosingCustomKeepsTheColor) {
  EXPECT_EQ(Calls{}, AfterOK([this] { Choose("cboColor", 10); }));
}

TEST_F(MapLibraryPagesLabels, AColorThatIsNotHexadecimalIsRefused) {
  Refuses("txtColor", "#12345G", "Wrong value",
          "Hex: \"#12345G\" is not a color. Type six hexadecimal digits, such as #FF8000.");
}

TEST_F(MapLibraryPagesLabels, AColorOfThreeDigitsIsRefused) {
  Refuses("txtColor", "#123", "Wrong value",
          "Hex: \"#123\" is not a color. Type six hexadecimal digits, such as #FF8000.");
}

TEST_F(MapLibraryPagesLabels, ARotationThatIsNoNumberIsRefused) {
  Refuses("txtRotation", "x", "Invalid number", "Rotation: \"x\" is not a number. Type a number from -360 to 360.");
}

TEST_F(MapLibraryPagesLabels, ARotationBeyondOneTurnIsRefused) {
  Refuses("txtRotation", "-361", "Wrong value", "Rotation: -361 is not allowed. Type a number from -360 to 360.");
}

TEST_F(MapLibraryPagesLabels, ASizeThatIsNoNumberIsRefused) {
  Refuses("txtSize", "", "Invalid number", "Size: \"\" is not a number. Type a number from 1 to 144.");
}

TEST_F(MapLibraryPagesLabels, ASizeAboveTheLargestIsRefused) {
  Refuses("txtSize", "145", "Wrong value", "Size: 145 is not allowed. Type a number from 1 to 144.");
}

TEST_F(MapLibraryPagesLabels, FieldsAreDisabledWhileLabelsAreNotShown) {
  AfterOK([this] {
    EXPECT_TRUE(IsEnabled("txtSize"));
    Toggle("chkShowLabels");
    for (const char* name : {"cboContent", "cboPosition", "txtRotation", "cboFont", "txtSize", "chkBold", "cboColor"})
      EXPECT_FALSE(IsEnabled(name)) << name;
    EXPECT_TRUE(IsEnabled("chkShowLabels"));
    Toggle("chkShowLabels");
    EXPECT_TRUE(IsEnabled("txtSize"));
  });
}

TEST_F(MapLibraryPagesLabels, EditsMadeBeforeTheLabelsWereHiddenAreWritten) {
  EXPECT_EQ((Calls{"ShowLabels(False)", "LabelRotation(45)"}), AfterOK([this] {
              Type("txtRotation", "45");
              Toggle("chkShowLabels");
            }));
}

TEST_F(MapLibraryPagesLabels, ThePreviewShowsFontColorAndRotation) {
  AfterOK([this] {
    Choose("cboContent", 1);
    Choose("cboColor", 5);
    Toggle("chkBold");
    Type("txtRotation", "30");
    user.Press(*form, kTab);
    EXPECT_EQ("123", Preview().Text);
    EXPECT_EQ((Color{0, 0, 255}), Preview().Pen);
    EXPECT_TRUE(Preview().Face.Bold);
    EXPECT_EQ(30, Preview().Rotation);
  });
}

TEST_F(MapLibraryPagesLabels, ThePreviewIsEmptyWhileLabelsAreNotShown) {
  AfterOK([this] {
    Toggle("chkShowLabels");
    EXPECT_TRUE(Get<PictureBox>("pctPreview").Drawing().Marks().empty());
  });
}

}  // namespace
}  // namespace orx::test
