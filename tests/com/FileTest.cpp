// The members that choose files, called through their slots with arrays and texts of the automation library.
#include "forms/Requests.h"
#include "pickers/frmMsgBox.h"
#include "service/modDialog.h"
#include "tests/com/support/MapDialogsTest.h"
#include "tests/com/support/Recorder.h"
#include "tests/com/support/ScriptCall.h"

namespace orx::com::test {
namespace {

class ComFiles : public MapDialogsTest {
 protected:
  ComFiles() { modDialog::ResetRememberedChoices(); }
  ~ComFiles() override { modDialog::ResetRememberedChoices(); }

  void Pick(const std::vector<std::string>& names) {
    answerFiles = [this, names](OpenFileRequest& request) {
      isAsked = true;
      PutAnswer(request, "C:\\maps", names);
    };
  }

  void ExpectRefused(HRESULT code) {
    Pick({"a.shp"});
    EXPECT_EQ(dialogs->ShowAddLayer(0, VARIANT_TRUE, files.InOut(), &chosen), code);
    EXPECT_NE(TakenErrorText().find("Files"), std::string::npos);
    EXPECT_EQ(dialogs->ShowAddData(0, VARIANT_TRUE, files.InOut(), &chosen), code);
    EXPECT_TRUE(shown.empty());
    EXPECT_FALSE(isAsked);
  }
  /// The call of a host that knows the names only, with an array variable of its own.
  HRESULT AddLayersInto(VARTYPE elements, SafeArray& array, ScriptCall& call) {
    Pick({"a.shp", "b.shp"});
    call.Value(Variant(std::int32_t{0})).Value(Variant(true));
    return call.Lent(ReferenceTo(static_cast<VARTYPE>(VT_ARRAY | elements), *array.InOut())).Call();
  }

  SafeArray files;
  VARIANT_BOOL chosen = VARIANT_TRUE;
  bool isAsked = false;
};

TEST_F(ComFiles, ChosenLayersComeBackInAnArrayCountedFromOne) {
  Pick({"a.shp", "b.shp"});
  ASSERT_EQ(dialogs->ShowAddLayer(0, VARIANT_FALSE, files.InOut(), &chosen), S_OK);
  EXPECT_EQ(chosen, VARIANT_TRUE);
  EXPECT_EQ(TextsOf(files.Get()), (std::vector<std::string>{"C:\\maps\\a.shp", "C:\\maps\\b.shp"}));
  LONG first = 0;
  SafeArrayGetLBound(files.Get(), 1, &first);
  EXPECT_EQ(first, 1);
}

TEST_F(ComFiles, TheElementWithTheIndexOneIsTheNameThatTheDialogOpensOn) {
  std::string initial;
  answerFiles = [&](OpenFileRequest& request) { initial = InitialName(request); };
  files = ArrayOfTexts({"zero.vkr", "one.vkr"}, 0);
  ASSERT_EQ(dialogs->ShowAddData(0, VARIANT_TRUE, files.InOut(), &chosen), S_OK);
  EXPECT_EQ(initial, "one.vkr");
  files = ArrayOfTexts({"first.vkr"}, 1);
  dialogs->ShowAddData(0, VARIANT_TRUE, files.InOut(), &chosen);
  EXPECT_EQ(initial, "first.vkr");
}

TEST_F(ComFiles, CancelLeavesTheArrayAsItWas) {
  files = ArrayOfTexts({"before"}, 0);
  ASSERT_EQ(dialogs->ShowAddData(0, VARIANT_FALSE, files.InOut(), &chosen), S_OK);
  EXPECT_EQ(chosen, VARIANT_FALSE);
  EXPECT_EQ(TextsOf(files.Get()), std::vector<std::string>{"before"});
}

TEST_F(ComFiles, AnArrayThatCannotTakeTheFilesIsAnErrorBeforeAnythingIsShown) {
  files = ArrayOfTexts({"before"});
  SafeArrayLock(files.Get());
  ExpectRefused(CodeOf(kErrorFixedArray));
  SafeArrayUnlock(files.Get());
  files.Get()->fFeatures |= FADF_FIXEDSIZE;
  ExpectRefused(CodeOf(kErrorFixedArray));
  files.Get()->fFeatures &= static_cast<USHORT>(~FADF_FIXEDSIZE);
  EXPECT_EQ(TextsOf(files.Get()), std::vector<std::string>{"before"});
  files = SafeArray(VT_I4, {1, 1});
  ExpectRefused(CodeOf(kErrorTypeMismatch));
  files = TableOf(VT_BSTR);
  ExpectRefused(CodeOf(kErrorTypeMismatch));
}

TEST_F(ComFiles, LateBoundCallersGetTheirArrayOfVariantsFilled) {
  SafeArray variants(VT_VARIANT, {0, 3});
  ScriptCall call(dialogs.Get(), "ShowAddLayer");
  ASSERT_EQ(AddLayersInto(VT_VARIANT, variants, call), S_OK);
  VARTYPE type = VT_EMPTY;
  SafeArrayGetVartype(variants.Get(), &type);
  EXPECT_EQ(type, VT_VARIANT);
  ArrayBounds bounds;
  ASSERT_EQ(BoundsOf(variants.Get(), bounds), S_OK);
  EXPECT_EQ(bounds.First, 1);
  ASSERT_EQ(bounds.Count, 2u);
  LONG second = 2;
  Variant element;
  SafeArrayGetElement(variants.Get(), &second, static_cast<VARIANT*>(&element));
  ASSERT_EQ(element.vt, VT_BSTR);
  EXPECT_EQ(TextOf(element.bstrVal), "C:\\maps\\b.shp");
}

TEST_F(ComFiles, LateBoundCallersAreToldBeforehandThatTheirArrayCannotTakeTheFiles) {
  for (const bool isFixed : {true, false}) {
    SafeArray array(isFixed ? VT_VARIANT : VT_I2, {0, 3});
    if (isFixed) array.Get()->fFeatures |= FADF_FIXEDSIZE;
    ScriptCall call(dialogs.Get(), "ShowAddLayer");
    EXPECT_TRUE(FAILED(AddLayersInto(isFixed ? VT_VARIANT : VT_I2, array, call)));
    EXPECT_EQ(call.Code, CodeOf(kErrorFixedArray)) << isFixed;
    EXPECT_FALSE(isAsked) << isFixed;
    array.Get()->fFeatures &= static_cast<USHORT>(~FADF_FIXEDSIZE);
  }
}

TEST_F(ComFiles, TheOwnersHandleReachesThePlatformWithItsSign) {
  std::uintptr_t owner = 0;
  answerFiles = [&](OpenFileRequest& request) { owner = request.OwnerHandle; };
  dialogs->ShowAddLayer(-2, VARIANT_FALSE, files.InOut(), &chosen);
  EXPECT_EQ(owner, static_cast<std::uintptr_t>(-2));
}

TEST_F(ComFiles, PlacesForResultsAreRequired) {
  EXPECT_EQ(dialogs->ShowAddLayer(0, VARIANT_FALSE, nullptr, &chosen), E_POINTER);
  EXPECT_EQ(dialogs->ShowAddData(0, VARIANT_FALSE, files.InOut(), nullptr), E_POINTER);
  VARIANT_BOOL cancelAll = VARIANT_FALSE;
  EXPECT_EQ(dialogs->ShowFileNotFound(nullptr, nullptr, &cancelAll, &chosen), E_POINTER);
  EXPECT_TRUE(shown.empty());
}

TEST_F(ComFiles, AMissingFileGivesTheUsersChoiceThroughItsArguments) {
  Pick({"found.shp"});
  answer = [](Form& form) { dynamic_cast<frmMsgBox&>(form).cmdBrowse.UserPress(); };
  Bstr name("C:\\maps\\GONE.SHP");
  Bstr newName("before");
  VARIANT_BOOL cancelAll = VARIANT_TRUE;
  ASSERT_EQ(dialogs->ShowFileNotFound(name.Get(), newName.Out(), &cancelAll, &chosen), S_OK);
  EXPECT_EQ(newName.Text(), "C:\\maps\\found.shp");
  EXPECT_EQ(cancelAll, VARIANT_FALSE);
  EXPECT_EQ(chosen, VARIANT_FALSE) << "The result is never anything else.";
  EXPECT_EQ(shown, std::vector<std::string>{"frmMsgBox: Open layer"});
}

TEST_F(ComFiles, SkippingAllMissingDataFilesIsTold) {
  answer = [](Form& form) { dynamic_cast<frmMsgBox&>(form).cmdCancelAll.UserPress(); };
  Bstr newName;
  VARIANT_BOOL cancelAll = VARIANT_FALSE;
  ASSERT_EQ(dialogs->ShowDataFileNotFound(nullptr, newName.Out(), &cancelAll, &chosen), S_OK);
  EXPECT_EQ(cancelAll, VARIANT_TRUE);
  EXPECT_EQ(newName.Text(), "");
}

}  // namespace
}  // namespace orx::com::test
