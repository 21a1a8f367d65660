// The page for the properties of a layer and the dialog for characters that it asks for.
#include "pickers/frmTrueType.h"
#include "tests/maplibrary/pages/PagesTest.h"
#include "tests/support/RecordingHost.h"

namespace orx::test {
namespace {

class CharactersRequest : public PagesTest {
 protected:
  /// Has the symbol chosen in the settings of the layer, where the user does `acts` in the dialog for characters, and
  /// presses OK in both.
  template <class Acts>
  void Choose(Acts acts) {
    InDialog("frmSettings", [this, acts] {
      script.ExpectForm("frmTrueType", [this, acts](Form& shown) {
        auto& picker = dynamic_cast<frmTrueType&>(shown);
        acts(picker);
        if (picker.Visible()) user.Click(picker.cmdOK);
      });
      Press("cmdCharacter");
    });
    result = service.Show(&layer, 0);
  }
  void PickOn(frmTrueType& picker, int code) {
    const Rect cell = CharacterGrid(desktop().Scale()).CellOf(code);
    user.ClickAt(picker.picFont, {cell.Left, cell.Top});
  }

  std::int32_t result = 77;
};

TEST_F(CharactersRequest, TheSymbolThatIsChosenBecomesThatOfTheLayer) {
  Choose([this](frmTrueType& picker) {
    EXPECT_EQ("Map Signs", picker.SelFont());
    EXPECT_EQ('A', picker.SelCharacter());
    EXPECT_EQ("30", user.See(picker.txtRot).Text);
    PickOn(picker, 0x80);
  });
  EXPECT_EQ(Calls{"SymbolCharacter(8364)"}, layer.Log.Calls);
  EXPECT_EQ(-1, result);
}

TEST_F(CharactersRequest, CancelLeavesTheSymbol) {
  Choose([this](frmTrueType& picker) {
    PickOn(picker, 'B');
    user.Click(picker.cmdCancel);
  });
  EXPECT_EQ(Calls{}, layer.Log.Calls);
  EXPECT_EQ(0, result);
}

TEST_F(CharactersRequest, ASymbolWithoutACodeStaysWhenNothingElseIsPicked) {
  layer.HeldSymbolCharacter = 0x25B2;
  Choose([](frmTrueType& picker) { EXPECT_EQ(255, picker.SelCharacter()); });
  EXPECT_EQ(Calls{}, layer.Log.Calls);
  Choose([this](frmTrueType& picker) { PickOn(picker, 'x'); });
  EXPECT_EQ(Calls{"SymbolCharacter(120)"}, layer.Log.Calls);
}

TEST_F(CharactersRequest, ASymbolWithoutACodeStaysWhenOnlyTheRotationChanges) {
  layer.HeldSymbolCharacter = 0x1F600;
  Choose([this](frmTrueType& picker) { user.Type(picker.txtRot, "90"); });
  EXPECT_EQ(Calls{"SymbolRotation(90)"}, layer.Log.Calls);
}

TEST_F(CharactersRequest, AFractionOfADegreeIsRounded) {
  layer.HeldSymbolRotation = 12.5;
  Choose([](frmTrueType&) {});
  EXPECT_EQ(Calls{"SymbolRotation(12)"}, layer.Log.Calls);
}

TEST_F(CharactersRequest, TheDialogSpeaksTheLanguageOfTheOneThatAsks) {
  CallLog log;
  RecordingLanguage words(log);
  service.Language(&words);
  Choose([this](frmTrueType& picker) { EXPECT_EQ("<Pick True Type>", user.SeeCaption(picker)); });
  EXPECT_EQ(Calls{}, layer.Log.Calls);
}

TEST_F(CharactersRequest, ASignOfTheRangeOfSignsGivesWayToAnotherOne) {
  layer.HeldSymbolCharacter = 0xF06C;
  Choose([this](frmTrueType& picker) {
    EXPECT_EQ(0x6C, picker.SelCharacter());
    PickOn(picker, 0x6D);
  });
  EXPECT_EQ(Calls{"SymbolCharacter(" + std::to_string(0xF06D) + ")"}, layer.Log.Calls);
}

}  // namespace
}  // namespace orx::test
