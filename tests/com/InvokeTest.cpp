// Calls by name with everything that script hosts send.
#include <gtest/gtest.h>

#include "tests/com/support/Recorder.h"
#include "tests/com/support/ScriptCall.h"
#include "tests/com/support/ScriptObject.h"

namespace orx::com::test {
namespace {

class Invoke : public testing::Test {
 protected:
  ScriptCall Call(const char* member) { return ScriptCall(recorder.Get(), member); }
  /// What reached the object in the last call.
  std::string Last() const { return recorder->Calls.empty() ? "" : recorder->Calls.back(); }

  ComPtr<Recorder> recorder = MakeCounted<Recorder>();
  ComPtr<ScriptObject> object = MakeCounted<ScriptObject>();
};

TEST_F(Invoke, VariablesOfAScriptCarryValuesInAndResultsOut) {
  Variant font("Arial");
  Variant character(std::int32_t{33});
  Variant rotation(1.5);
  Variant changed(false);
  ScriptCall call = Call("ShowCharacterSelection");
  ASSERT_EQ(call.Variable(font).Variable(character).Variable(rotation).Variable(changed).Call(), S_OK);
  EXPECT_EQ(Last(), "ShowCharacterSelection(\"Arial\", 33, 1.5, False, \"\", missing)");
  ASSERT_EQ(font.vt, VT_BSTR);
  EXPECT_EQ(TextOf(font.bstrVal), "Symbols");
  ASSERT_EQ(character.vt, VT_I4);
  EXPECT_EQ(character.lVal, 65);
  ASSERT_EQ(rotation.vt, VT_R8);
  EXPECT_EQ(rotation.dblVal, 22.5);
  ASSERT_EQ(changed.vt, VT_BOOL);
  EXPECT_EQ(changed.boolVal, VARIANT_TRUE);
  EXPECT_EQ(call.Result.lVal, 13);
}

TEST_F(Invoke, VariablesThatWereNeverSetCountAsZeroAndTheEmptyText) {
  Variant font;
  Variant character;
  Variant rotation;
  Variant changed;
  ASSERT_EQ(
      Call("ShowCharacterSelection").Variable(font).Variable(character).Variable(rotation).Variable(changed).Call(),
      S_OK);
  EXPECT_EQ(Last(), "ShowCharacterSelection(\"\", 0, 0.0, False, \"\", missing)");
  EXPECT_EQ(TextOf(font.bstrVal), "Symbols");
  EXPECT_EQ(character.lVal, 65);
}

TEST_F(Invoke, TypedVariablesTravelAsTheyAre) {
  Bstr font("Arial");
  LONG character = 33;
  double rotation = 1.5;
  VARIANT_BOOL changed = VARIANT_FALSE;
  ScriptCall call = Call("ShowCharacterSelection");
  call.Lent(ReferenceTo(VT_BSTR, *font.Out()));
  call.Lent(ReferenceTo(VT_I4, character)).Lent(ReferenceTo(VT_R8, rotation)).Lent(ReferenceTo(VT_BOOL, changed));
  ASSERT_EQ(call.Call(), S_OK);
  EXPECT_EQ(font.Text(), "Symbols");
  EXPECT_EQ(character, 65);
  EXPECT_EQ(rotation, 22.5);
  EXPECT_EQ(changed, VARIANT_TRUE);
}

TEST_F(Invoke, TypedVariablesOfOtherTypesAreConvertedBothWays) {
  Bstr font;
  SHORT character = 33;
  float rotation = 1.5F;
  LONG changed = 0;
  ScriptCall call = Call("ShowCharacterSelection");
  call.Lent(ReferenceTo(VT_BSTR, *font.Out()));
  call.Lent(ReferenceTo(VT_I2, character)).Lent(ReferenceTo(VT_R4, rotation)).Lent(ReferenceTo(VT_I4, changed));
  ASSERT_EQ(call.Call(), S_OK);
  EXPECT_EQ(Last(), "ShowCharacterSelection(\"\", 33, 1.5, False, \"\", missing)");
  EXPECT_EQ(character, 65);
  EXPECT_EQ(rotation, 22.5F);
  EXPECT_EQ(changed, -1);
}

TEST_F(Invoke, ValuesInPlaceOfVariablesServeAsWell) {
  ScriptCall call = Call("ShowCharacterSelection");
  call.Value(Variant("Arial")).Value(Variant("33")).Value(Variant("1.5")).Value(Variant(std::int32_t{0}));
  ASSERT_EQ(call.Call(), S_OK);
  EXPECT_EQ(Last(), "ShowCharacterSelection(\"Arial\", 33, 1.5, False, \"\", missing)");
}

TEST_F(Invoke, AVariableThatRefersToAnotherOneIsFollowed) {
  Variant index(std::int32_t{3});
  VARIANT inner = ReferenceTo(VT_VARIANT, static_cast<VARIANT&>(index));
  ASSERT_EQ(Call("ShowLegends").Value(Variant(object.Get())).Variable(inner).Call(), S_OK);
  EXPECT_EQ(Last(), "ShowLegends(object, 3, \"\", 1, missing)");
  EXPECT_EQ(index.lVal, 103);
}

TEST_F(Invoke, NumbersInTextFollowTheLocaleOfTheCall) {
  constexpr LCID kGerman = 0x407;
  ScriptCall call = Call("ShowDataClassify");
  call.Value(Variant(object.Get())).Value(Variant("1,5")).Value(Variant("2,25")).Value(Variant(std::int32_t{32}));
  ASSERT_EQ(call.Value(Variant(false)).Call(DISPATCH_METHOD, kGerman), S_OK);
  EXPECT_EQ(Last(), "ShowDataClassify(object, 1.5, 2.25, 32, False, \"\", 1, missing)");
}

TEST_F(Invoke, ArgumentsLeftOutAtTheEndTakeTheirDefaults) {
  ASSERT_EQ(Call("ShowLegends").Value(Variant(object.Get())).Call(), S_OK);
  EXPECT_EQ(Last(), "ShowLegends(object, 0, \"\", 1, missing)");
  ASSERT_EQ(Call("ShowGeoReference").Value(Variant(object.Get())).Call(), S_OK);
  EXPECT_EQ(Last(), "ShowGeoReference(object, 2, \"\", \"\", missing)");
}

TEST_F(Invoke, AVariableThatHandsOnAnArgumentLeftOutKeepsTellingSo) {
  Variant omitted;
  omitted.vt = VT_ERROR;
  omitted.scode = DISP_E_PARAMNOTFOUND;
  ASSERT_EQ(Call("ShowLegends").Value(Variant(object.Get())).Variable(omitted).Call(), S_OK);
  EXPECT_EQ(Last(), "ShowLegends(object, 0, \"\", 1, missing)");
  EXPECT_EQ(omitted.vt, VT_ERROR);
  EXPECT_EQ(omitted.scode, DISP_E_PARAMNOTFOUND);
  SCODE typed = DISP_E_PARAMNOTFOUND;
  ASSERT_EQ(Call("ShowLegends").Value(Variant(object.Get())).Lent(ReferenceTo(VT_ERROR, typed)).Call(), S_OK);
  EXPECT_EQ(typed, DISP_E_PARAMNOTFOUND);
}

TEST_F(Invoke, ArgumentsLeftOutInBetweenTakeTheirDefaults) {
  ScriptCall call = Call("ShowLegends");
  call.Value(Variant(object.Get())).Missing().Value(Variant("A")).Missing().Value(Variant(std::int32_t{7}));
  ASSERT_EQ(call.Call(), S_OK);
  EXPECT_EQ(Last(), "ShowLegends(object, 0, \"A\", 1, VT3)");
}

TEST_F(Invoke, NamedArgumentsFindTheirParameters) {
  ScriptCall call = Call("ShowLegends");
  call.Value(Variant(object.Get())).Named("mModal", Variant(std::int32_t{0})).Named("mCaption", Variant("B"));
  ASSERT_EQ(call.Call(), S_OK);
  EXPECT_EQ(Last(), "ShowLegends(object, 0, \"B\", 0, missing)");
}

TEST_F(Invoke, EveryWordForNoObjectIsNothing) {
  Variant null;
  null.vt = VT_NULL;
  ASSERT_EQ(Call("ShowProperties").Value(Variant(static_cast<IDispatch*>(nullptr))).Call(), S_OK);
  ASSERT_EQ(Call("ShowProperties").Value(Variant()).Call(), S_OK);
  ASSERT_EQ(Call("ShowProperties").Value(std::move(null)).Call(), S_OK);
  ASSERT_EQ(Call("ShowProperties").Value(Variant(std::int32_t{0})).Call(), S_OK);
  EXPECT_EQ(recorder->Calls, std::vector<std::string>(4, "ShowProperties(Nothing, \"\", 1, missing)"));
}

TEST_F(Invoke, AnObjectInAVariableStaysThere) {
  Variant variable(object.Get());
  const ULONG before = ReferencesOf(object.Get());
  ASSERT_EQ(Call("ShowProperties").Variable(variable).Call(), S_OK);
  EXPECT_EQ(variable.vt, VT_DISPATCH);
  EXPECT_EQ(variable.pdispVal, object.Get());
  EXPECT_EQ(ReferencesOf(object.Get()), before);
}

TEST_F(Invoke, AnObjectAsUnknownServesWhenItAnswersToNames) {
  Variant unknown;
  unknown.vt = VT_UNKNOWN;
  unknown.punkVal = ComPtr<IUnknown>(object.Get()).Detach();
  ASSERT_EQ(Call("ShowProperties").Value(std::move(unknown)).Call(), S_OK);
  EXPECT_EQ(Last(), "ShowProperties(object, \"\", 1, missing)");
}

TEST_F(Invoke, MembersAreReachedWhicheverWayScriptsNameTheirKind) {
  for (const WORD flags : {DISPATCH_METHOD, DISPATCH_METHOD | DISPATCH_PROPERTYGET}) {
    EXPECT_EQ(Call("ShowProperties").Value(Variant()).Call(static_cast<WORD>(flags)), S_OK);
  }
  for (const WORD flags : {DISPATCH_PROPERTYGET, DISPATCH_METHOD | DISPATCH_PROPERTYGET}) {
    ScriptCall call = Call("RegistryKey");
    EXPECT_EQ(call.Call(static_cast<WORD>(flags)), S_OK);
    EXPECT_EQ(TextOf(call.Result.bstrVal), "Key");
  }
  for (const WORD flags : {DISPATCH_PROPERTYPUT, DISPATCH_PROPERTYPUTREF}) {
    EXPECT_EQ(Call("Language").Value(Variant(object.Get())).Put(static_cast<WORD>(flags)), S_OK);
    EXPECT_EQ(Last(), "set Language(object)");
    EXPECT_EQ(Call("RegistryKey").Value(Variant("K")).Put(static_cast<WORD>(flags)), S_OK);
    EXPECT_EQ(Last(), "let RegistryKey(\"K\")");
  }
}

TEST_F(Invoke, AResultThatNobodyWantsIsDropped) {
  DISPPARAMS none = {};
  EXPECT_EQ(recorder->Invoke(1, IID_NULL, LOCALE_INVARIANT, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
            S_OK);
  EXPECT_EQ(Last(), "get RegistryKey()");
}

TEST_F(Invoke, NamesAreFoundInLettersOfEitherCase) {
  EXPECT_EQ(Call("showPROPERTIES").Value(Variant()).Call(), S_OK);
  EXPECT_EQ(Call("ShowNothing").Call(), DISP_E_UNKNOWNNAME);
}

TEST_F(Invoke, WhatAMemberRaisesReachesTheCallerWithItsDescription) {
  recorder->Failure = "The file \"x\" is damaged.";
  Variant variable(object.Get());
  ScriptCall call = Call("ShowProperties");
  EXPECT_EQ(call.Variable(variable).Call(), DISP_E_EXCEPTION);
  EXPECT_EQ(call.Description, "The file \"x\" is damaged.");
  EXPECT_EQ(call.Source, "OrvexMapDialogs2.Recorder");
  EXPECT_EQ(call.Code, CodeOf(kErrorFileFormat));
  EXPECT_EQ(variable.pdispVal, object.Get());
}

TEST_F(Invoke, TenThousandCallsKeepNothing) {
  Variant font("Arial");
  Variant number;
  const ULONG before = ReferencesOf(recorder.Get());
  for (int i = 0; i < 10000; ++i) {
    ASSERT_EQ(Call("ShowCharacterSelection").Variable(font).Variable(number).Variable(number).Variable(number).Call(),
              S_OK);
    recorder->Calls.clear();
  }
  EXPECT_EQ(ReferencesOf(recorder.Get()), before);
}

struct Refusal {
  const char* What;
  std::function<HRESULT(ScriptCall&)> Make;
  HRESULT Answer;
  /// The argument that is wrong, counted from the last one; 99 when no argument is named.
  UINT Wrong;
};

TEST_F(Invoke, CallsThatDoNotFitAreRefusedAndReachNothing) {
  const Refusal refusals[] = {
      {"required left out", [](ScriptCall& c) { return c.Call(); }, DISP_E_PARAMNOTOPTIONAL, 0},
      {"required missing", [](ScriptCall& c) { return c.Missing().Missing().Call(); }, DISP_E_PARAMNOTOPTIONAL, 1},
      {"too many", [](ScriptCall& c) { return c.Value({}).Value({}).Value({}).Value({}).Value({}).Value({}).Call(); },
       DISP_E_BADPARAMCOUNT, 99},
      {"text for a number", [](ScriptCall& c) { return c.Value({}).Value(Variant("three")).Call(); },
       DISP_E_TYPEMISMATCH, 0},
      {"too great", [](ScriptCall& c) { return c.Value({}).Value(Variant(3e9)).Call(); }, DISP_E_OVERFLOW, 0},
      {"number for an object", [](ScriptCall& c) { return c.Value(Variant(std::int32_t{5})).Value({}).Call(); },
       DISP_E_TYPEMISMATCH, 1},
      {"text for an object", [](ScriptCall& c) { return c.Value(Variant("5")).Call(); }, DISP_E_TYPEMISMATCH, 0},
      {"unknown name", [](ScriptCall& c) { return c.Named("mColour", {}).Call(); }, DISP_E_UNKNOWNNAME, 99},
  };
  for (const Refusal& refusal : refusals) {
    ScriptCall call = Call("ShowLegends");
    EXPECT_EQ(refusal.Make(call), refusal.Answer) << refusal.What;
    if (refusal.Wrong != 99) {
      EXPECT_EQ(call.WrongArgument, refusal.Wrong) << refusal.What;
    }
  }
  EXPECT_TRUE(recorder->Calls.empty());
}

TEST_F(Invoke, MembersThatAreNotThereAreRefused) {
  DISPPARAMS none = {};
  EXPECT_EQ(recorder->Invoke(99, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
            DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(recorder->Invoke(4, IID_NULL, 0, DISPATCH_PROPERTYPUT, &none, nullptr, nullptr, nullptr),
            DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(recorder->Invoke(4, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr), E_POINTER);
}

TEST_F(Invoke, ReferencesToNothingAndVariantsThatReferToThemselvesAreRefused) {
  VARIANT itself = {};
  itself.vt = VT_BYREF | VT_VARIANT;
  itself.pvarVal = &itself;
  std::vector<VARIANT> wrong{itself};
  for (const VARTYPE type : {VT_VARIANT, VT_I2, VT_R8, VT_UNKNOWN}) {
    VARIANT nowhere = {};
    nowhere.vt = static_cast<VARTYPE>(VT_BYREF | type);
    wrong.push_back(nowhere);
  }
  for (const VARIANT& argument : wrong) {
    EXPECT_TRUE(FAILED(Call("ShowLegends").Value(Variant(object.Get())).Lent(argument).Call())) << argument.vt;
    EXPECT_TRUE(FAILED(Call("ShowListSelection").Lent(argument).Call())) << argument.vt;
  }
  EXPECT_TRUE(recorder->Calls.empty());
}

TEST_F(Invoke, ArgumentListsThatContradictThemselvesAreRefused) {
  VARIANT argument = {};
  DISPID name = 77;
  DISPPARAMS moreNamesThanArguments = {&argument, &name, 0, 1};
  EXPECT_TRUE(
      FAILED(recorder->Invoke(6, IID_NULL, 0, DISPATCH_METHOD, &moreNamesThanArguments, nullptr, nullptr, nullptr)));
  DISPPARAMS nameOutside = {&argument, &name, 1, 1};
  EXPECT_EQ(recorder->Invoke(6, IID_NULL, 0, DISPATCH_METHOD, &nameOutside, nullptr, nullptr, nullptr),
            DISP_E_PARAMNOTFOUND);
  DISPID value = DISPID_PROPERTYPUT;
  DISPPARAMS valueForAMethod = {&argument, &value, 1, 1};
  EXPECT_EQ(recorder->Invoke(6, IID_NULL, 0, DISPATCH_METHOD, &valueForAMethod, nullptr, nullptr, nullptr),
            DISP_E_PARAMNOTFOUND);
  DISPPARAMS noValue = {};
  EXPECT_TRUE(FAILED(recorder->Invoke(1, IID_NULL, 0, DISPATCH_PROPERTYPUT, &noValue, nullptr, nullptr, nullptr)));
  EXPECT_TRUE(recorder->Calls.empty());
}

}  // namespace
}  // namespace orx::com::test
