// Calls by name with the arrays that script hosts send.
#include <gtest/gtest.h>

#include "tests/com/support/Recorder.h"
#include "tests/com/support/ScriptCall.h"
#include "tests/com/support/ScriptObject.h"

namespace orx::com::test {
namespace {

/// An array as scripts have them: of variants.
Variant VariantArray(const std::vector<std::string>& texts, LONG first = 0) {
  SafeArray made(VT_VARIANT, {first, static_cast<ULONG>(texts.size())});
  for (const std::string& text : texts) made.Put(first++, Variant(text));
  return made.MoveToVariant(VT_VARIANT);
}

Variant TextArray(const std::vector<std::string>& texts) {
  return ArrayOfTexts(texts).MoveToVariant(VT_BSTR);
}

class InvokeArrays : public testing::Test {
 protected:
  /// ShowAddLayer with these files; gives what reached the object.
  std::string AddLayer(VARIANT& files, HRESULT expected = S_OK) {
    ScriptCall call(recorder.Get(), "ShowAddLayer");
    EXPECT_EQ(call.Value(Variant(std::int32_t{0})).Value(Variant(true)).Variable(files).Call(), expected);
    return recorder->Calls.empty() ? "" : recorder->Calls.back();
  }

  ComPtr<Recorder> recorder = MakeCounted<Recorder>();
};

TEST_F(InvokeArrays, ArraysOfVariantsBecomeArraysOfTextsAndComeBackAsArraysOfVariants) {
  Variant files = VariantArray({"x", "y"});
  EXPECT_EQ(AddLayer(files), "ShowAddLayer(0, True, [x y])");
  ASSERT_EQ(files.vt, VT_ARRAY | VT_VARIANT);
  LONG first = 0;
  LONG last = 0;
  SafeArrayGetLBound(files.parray, 1, &first);
  SafeArrayGetUBound(files.parray, 1, &last);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(last, 2);
  Variant element;
  SafeArrayGetElement(files.parray, &last, static_cast<VARIANT*>(&element));
  ASSERT_EQ(element.vt, VT_BSTR);
  EXPECT_EQ(TextOf(element.bstrVal), "b.bil");
}

TEST_F(InvokeArrays, ElementsOfAllTypesBecomeTexts) {
  Variant files = SafeArray(VT_I4, {5, 2}).MoveToVariant(VT_I4);
  EXPECT_EQ(AddLayer(files), "ShowAddLayer(0, True, [0 0])");
}

TEST_F(InvokeArrays, ArraysOfTextsServeAsTheyAre) {
  Variant files = TextArray({"x"});
  EXPECT_EQ(AddLayer(files), "ShowAddLayer(0, True, [x])");
  EXPECT_EQ(files.vt, VT_ARRAY | VT_VARIANT);
}

TEST_F(InvokeArrays, AVariableThatWasNeverSetIsAnEmptyArray) {
  Variant files;
  EXPECT_EQ(AddLayer(files), "ShowAddLayer(0, True, [])");
  EXPECT_EQ(files.vt, VT_ARRAY | VT_VARIANT);
}

TEST_F(InvokeArrays, ASingleTextIsAnArrayOfOne) {
  Variant files("x");
  EXPECT_EQ(AddLayer(files), "ShowAddLayer(0, True, [x])");
}

TEST_F(InvokeArrays, ObjectsWithALengthAreArrays) {
  const ComPtr<ScriptObject> list = ScriptObject::ArrayOf({"x", "y", "z"});
  Variant files(list.Get());
  EXPECT_EQ(AddLayer(files), "ShowAddLayer(0, True, [x y z])");
}

TEST_F(InvokeArrays, ObjectsWithoutALengthAndNegativeLengthsAreRefused) {
  Variant plain(MakeCounted<ScriptObject>().Get());
  EXPECT_EQ(AddLayer(plain, DISP_E_TYPEMISMATCH), "");
  std::map<std::string, Variant> fields;
  fields.emplace("length", Variant(std::int32_t{-1}));
  Variant negative(MakeCounted<ScriptObject>(std::move(fields)).Get());
  EXPECT_EQ(AddLayer(negative, DISP_E_TYPEMISMATCH), "");
}

TEST_F(InvokeArrays, AnObjectThatClaimsToBeEndlesslyLongIsRefused) {
  std::map<std::string, Variant> fields;
  fields.emplace("length", Variant(std::int32_t{0x7FFFFFFF}));
  Variant endless(MakeCounted<ScriptObject>(std::move(fields)).Get());
  ScriptCall call(recorder.Get(), "ShowAddLayer");
  EXPECT_TRUE(FAILED(call.Value({}).Value({}).Variable(endless).Call()));
}

TEST_F(InvokeArrays, ArraysOfTwoDimensionsAreRefused) {
  Variant table = TableOf(VT_VARIANT).MoveToVariant(VT_VARIANT);
  EXPECT_EQ(AddLayer(table, DISP_E_TYPEMISMATCH), "");
}

TEST_F(InvokeArrays, ElementsThatAreGreaterThanPlainValuesBecomeTextsToo) {
  Variant decimals = SafeArray(VT_DECIMAL, {0, 2}).MoveToVariant(VT_DECIMAL);
  EXPECT_EQ(AddLayer(decimals), "ShowAddLayer(0, True, [0 0])");
}

TEST_F(InvokeArrays, RecordsAreRefused) {
  Variant records = SafeArray(VT_I4, {0, 2}).MoveToVariant(VT_RECORD);
  EXPECT_EQ(AddLayer(records, DISP_E_TYPEMISMATCH), "");
}

TEST_F(InvokeArrays, ATypedArrayVariableTravelsAsItIs) {
  SafeArray files = ArrayOfTexts({"x"});
  ScriptCall call(recorder.Get(), "ShowAddLayer");
  call.Value(Variant(std::int32_t{0})).Value(Variant(true)).Lent(ReferenceTo(VT_ARRAY | VT_BSTR, *files.InOut()));
  EXPECT_EQ(call.Call(), S_OK);
  EXPECT_EQ(TextsOf(files.Get()), (std::vector<std::string>{"a.bil", "b.bil"}));
}

TEST_F(InvokeArrays, AnArrayVariableOfVariantsIsFilled) {
  SafeArray array(VT_VARIANT, {0, 2});
  Variant reference;
  static_cast<VARIANT&>(reference) = ReferenceTo(VT_ARRAY | VT_VARIANT, *array.InOut());
  EXPECT_EQ(AddLayer(reference), "ShowAddLayer(0, True, [])");
  LONG index = 1;
  Variant element;
  SafeArrayGetElement(array.Get(), &index, static_cast<VARIANT*>(&element));
  ASSERT_EQ(element.vt, VT_BSTR);
  EXPECT_EQ(TextOf(element.bstrVal), "a.bil");
  VariantInit(&reference);
}

TEST_F(InvokeArrays, AnAnswerIsNeverLostInAnArrayThatCannotGrow) {
  SafeArray array(VT_VARIANT, {0, 2});
  array.Get()->fFeatures |= FADF_FIXEDSIZE;
  Variant reference;
  static_cast<VARIANT&>(reference) = ReferenceTo(VT_ARRAY | VT_VARIANT, *array.InOut());
  EXPECT_EQ(AddLayer(reference, DISP_E_ARRAYISLOCKED), "ShowAddLayer(0, True, [])");
  LONG index = 0;
  Variant element;
  SafeArrayGetElement(array.Get(), &index, static_cast<VARIANT*>(&element));
  EXPECT_EQ(element.vt, VT_EMPTY);
  array.Get()->fFeatures &= static_cast<USHORT>(~FADF_FIXEDSIZE);
  VariantInit(&reference);
}

TEST_F(InvokeArrays, SelectionsTravelBothWaysInOneCall) {
  Variant entries = VariantArray({"one", "two"});
  Variant selected;
  Variant caption("Choose");
  ScriptCall call(recorder.Get(), "ShowListSelection");
  call.Variable(entries).Value(Variant(true)).Value(Variant(std::int32_t{1})).Variable(caption);
  call.Value(Variant(false)).Value(Variant("Sure?")).Variable(selected);
  ASSERT_EQ(call.Call(), S_OK);
  EXPECT_EQ(recorder->Calls.back(), "ShowListSelection([one two], True, 1, \"Choose\", False, \"Sure?\", numbers)");
  ASSERT_EQ(selected.vt, VT_ARRAY | VT_VARIANT);
  LONG second = 1;
  Variant element;
  SafeArrayGetElement(selected.parray, &second, static_cast<VARIANT*>(&element));
  ASSERT_EQ(element.vt, VT_I4);
  EXPECT_EQ(element.lVal, 8);
}

TEST_F(InvokeArrays, AValueThatIsNoNumberIsNotPutIntoAnArrayOfNumbers) {
  Variant selected = VariantArray({"first"});
  ScriptCall call(recorder.Get(), "ShowListSelection");
  call.Value({}).Value({}).Value({}).Value({}).Value({}).Value({}).Variable(selected);
  EXPECT_EQ(call.Call(), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(call.WrongArgument, 0u);
  EXPECT_TRUE(recorder->Calls.empty());
}

}  // namespace
}  // namespace orx::com::test
