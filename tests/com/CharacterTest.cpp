// The choice of a character through the slots: its results come back in the arguments.
#include "forms/Button.h"
#include "forms/PictureBox.h"
#include "forms/TextBox.h"
#include "tests/com/support/MapDialogsTest.h"

namespace orx::com::test {
namespace {

class CharacterDialog : public MapDialogsTest {
 protected:
  HRESULT Choose(VARIANT* owner = nullptr) {
    return dialogs->ShowCharacterSelection(font.InOut(), &character, &rotation, &changed, nullptr, owner, &result);
  }
  /// The user picks B, turns it by 30 degrees and presses the button.
  void Answer(const char* button) {
    answer = [button](Form& form) {
      auto& grid = dynamic_cast<PictureBox&>(*form.Find("picFont"));
      auto& field = dynamic_cast<TextBox&>(*form.Find("txtRot"));
      grid.UserMouseDown({9 + 19 * ('B' % 20), 9 + 19 * ('B' / 20)});
      grid.UserClick();
      field.SetFocus();
      field.UserText("30", 2, 0);
      dynamic_cast<Button&>(*form.Find(button)).UserPress();
    };
  }

  Bstr font{"No Such Font"};
  long character = 'A';
  double rotation = 0;
  VARIANT_BOOL changed = VARIANT_FALSE;
};

TEST_F(CharacterDialog, WhatIsChosenComesBackInTheArguments) {
  Answer("cmdOK");
  EXPECT_EQ(Choose(), S_OK);
  EXPECT_EQ(result, -1);
  EXPECT_STREQ(font.Get(), L"No Such Font");
  EXPECT_EQ(character, 'B');
  EXPECT_EQ(rotation, 30);
  EXPECT_EQ(changed, VARIANT_TRUE);
  EXPECT_EQ(shown, std::vector<std::string>{"frmTrueType: Pick True Type"});
}

TEST_F(CharacterDialog, CancelChangesNoArgumentAndIsNoError) {
  const BSTR before = font.Get();
  Answer("cmdCancel");
  EXPECT_EQ(Choose(), S_OK);
  EXPECT_EQ(result, -1);
  EXPECT_EQ(font.Get(), before);
  EXPECT_EQ(character, 'A');
  EXPECT_EQ(rotation, 0);
  EXPECT_EQ(changed, VARIANT_FALSE);
}

TEST_F(CharacterDialog, ANameThatIsNothingBecomesArial) {
  font = Bstr();
  Answer("cmdOK");
  EXPECT_EQ(Choose(), S_OK);
  EXPECT_STREQ(font.Get(), L"arial");
}

TEST_F(CharacterDialog, ARotationThatIsNoWholeNumberGivesZero) {
  rotation = 1E10;
  EXPECT_EQ(Choose(), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(rotation, 0);
  EXPECT_EQ(changed, VARIANT_TRUE);
}

TEST_F(CharacterDialog, TheCaptionIsTakenAndHasNoEffect) {
  Bstr caption("A title");
  BSTR given = caption.Get();
  EXPECT_EQ(dialogs->ShowCharacterSelection(font.InOut(), &character, &rotation, &changed, &given, nullptr, &result),
            S_OK);
  EXPECT_EQ(shown, std::vector<std::string>{"frmTrueType: Pick True Type"});
}

TEST_F(CharacterDialog, PlacesForAllResultsAreRequired) {
  EXPECT_EQ(dialogs->ShowCharacterSelection(nullptr, &character, &rotation, &changed, nullptr, nullptr, &result),
            E_POINTER);
  EXPECT_EQ(dialogs->ShowCharacterSelection(font.InOut(), nullptr, &rotation, &changed, nullptr, nullptr, &result),
            E_POINTER);
  EXPECT_EQ(dialogs->ShowCharacterSelection(font.InOut(), &character, nullptr, &changed, nullptr, nullptr, &result),
            E_POINTER);
  EXPECT_EQ(dialogs->ShowCharacterSelection(font.InOut(), &character, &rotation, nullptr, nullptr, nullptr, &result),
            E_POINTER);
  EXPECT_EQ(dialogs->ShowCharacterSelection(font.InOut(), &character, &rotation, &changed, nullptr, nullptr, nullptr),
            E_POINTER);
  EXPECT_TRUE(shown.empty());
}

TEST_F(CharacterDialog, ATextAsOwnerIsAnErrorAndNothingIsShown) {
  Variant text("Main window");
  EXPECT_EQ(Choose(&text), CodeOf(kErrorTypeMismatch));
  EXPECT_NE(TakenErrorText().find("OwnerForm"), std::string::npos);
  EXPECT_TRUE(shown.empty());
  EXPECT_EQ(character, 'A');
}

TEST_F(CharacterDialog, ALanguageThatFailsIsAResultOfZero) {
  const auto words = LanguageOf(1, "x");
  IDispatch* given = words.Get();
  ASSERT_EQ(dialogs->putref_Language(&given), S_OK);
  words->Broken = "TranslateText";
  EXPECT_EQ(Choose(), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(changed, VARIANT_FALSE);
}

TEST_F(CharacterDialog, LateBoundCallersGetTheirVariablesBack) {
  Answer("cmdOK");
  Variant variables[] = {Variant("No Such Font"), Variant(std::int32_t{'A'}), Variant(0.0), Variant(false)};
  VARIANT references[4] = {};
  // The last argument comes first.
  for (int i = 0; i < 4; ++i) {
    references[3 - i].vt = VT_BYREF | VT_VARIANT;
    references[3 - i].pvarVal = &variables[i];
  }
  DISPPARAMS parameters = {references, nullptr, 4, 0};
  Variant answered;
  ASSERT_EQ(dialogs->Invoke(13, IID_NULL, 0, DISPATCH_METHOD, &parameters, &answered, nullptr, nullptr), S_OK);
  EXPECT_EQ(answered.lVal, -1);
  EXPECT_EQ(variables[1].lVal, 'B');
  EXPECT_EQ(variables[2].dblVal, 30);
  EXPECT_EQ(variables[3].boolVal, VARIANT_TRUE);
}

}  // namespace
}  // namespace orx::com::test
