// The choice from a list through the slots: the host's arrays go in and come back with their own indexes.
#include "forms/Button.h"
#include "forms/ListBox.h"
#include "tests/com/support/MapDialogsTest.h"
#include "tests/com/support/Recorder.h"
#include "tests/com/support/ScriptCall.h"

namespace orx::com::test {
namespace {

class ListSelection : public MapDialogsTest {
 protected:
  HRESULT Choose() {
    BSTR title = caption.Get();
    BSTR asked = question.Get();
    return dialogs->ShowListSelection(entries.InOut(), &several, &listIndex, &title, &asks, &asked, selected.InOut(),
                                      &result);
  }
  /// The user selects the rows and presses the button.
  void Answer(const std::vector<int>& rows, const char* button = "cmdOK") {
    answer = [this, rows, button](Form& form) {
      auto& list = dynamic_cast<ListBox&>(*form.Find(several ? "lstMultiSelect" : "lstSingleSelect"));
      seen.clear();
      for (int row = 0; row < list.ListCount(); ++row) seen.push_back(list.List(row));
      for (const int row : rows) list.UserClick(row);
      dynamic_cast<Button&>(*form.Find(button)).UserPress();
    };
  }
  static std::vector<long> NumbersOf(const SafeArray& array) {
    VARTYPE type = VT_EMPTY;
    SafeArrayGetVartype(array.Get(), &type);
    EXPECT_EQ(type, VT_I4);
    ArrayBounds bounds;
    EXPECT_EQ(BoundsOf(array.Get(), bounds), S_OK);
    EXPECT_EQ(bounds.First, 1);
    std::vector<long> numbers(bounds.Count);
    for (LONG index = 1; index <= static_cast<LONG>(bounds.Count); ++index)
      SafeArrayGetElement(array.Get(), &index, &numbers[static_cast<std::size_t>(index) - 1]);
    return numbers;
  }
  static SafeArray ArrayOfNumbers(const std::vector<std::int32_t>& numbers) {
    SafeArray made(VT_I4, {1, static_cast<ULONG>(numbers.size())});
    LONG index = 0;
    for (const std::int32_t number : numbers) made.Put(++index, Variant(number));
    return made;
  }
  void ExpectRefused(HRESULT code, const std::string& argument) {
    EXPECT_EQ(Choose(), code);
    EXPECT_NE(TakenErrorText().find(argument), std::string::npos);
    EXPECT_TRUE(shown.empty());
    EXPECT_EQ(result, 0);
  }

  /// The call of a host that knows the names only, with an array variable of its own for the indexes.
  HRESULT ChooseInto(VARTYPE elements, SafeArray& array, ScriptCall& call) {
    call.Lent(ReferenceTo(VT_ARRAY | VT_BSTR, *entries.InOut())).Value(Variant(true)).Value(Variant(std::int32_t{0}));
    call.Value(Variant("Select Layer")).Value(Variant(false)).Value(Variant("Sure?"));
    return call.Lent(ReferenceTo(static_cast<VARTYPE>(VT_ARRAY | elements), *array.InOut())).Call();
  }

  SafeArray entries = ArrayOfTexts({"Roads", " Rivers ", ""}, 5);
  SafeArray selected;
  VARIANT_BOOL several = VARIANT_TRUE;
  long listIndex = 0;
  Bstr caption{"Select Layer"};
  VARIANT_BOOL asks = VARIANT_FALSE;
  Bstr question{"Sure?"};
  std::vector<std::string> seen;
};

TEST_F(ListSelection, ChosenIndexesAreTheHostsOwnInAnArrayCountedFromOne) {
  Answer({2, 0});
  EXPECT_EQ(Choose(), S_OK);
  EXPECT_EQ(result, 2);
  EXPECT_EQ(seen, (std::vector<std::string>{"Roads", "Rivers", "7"}));
  EXPECT_EQ(NumbersOf(selected), (std::vector<long>{5, 7}));
  EXPECT_EQ(shown, std::vector<std::string>{"frmListSelection: Select Layer"});
}

TEST_F(ListSelection, AnArrayThatIsThereIsReplaced) {
  selected = ArrayOfNumbers({1, 2, 3, 4});
  several = VARIANT_FALSE;
  Answer({1});
  EXPECT_EQ(Choose(), S_OK);
  EXPECT_EQ(result, 1);
  EXPECT_EQ(NumbersOf(selected), std::vector<long>{6});
}

TEST_F(ListSelection, NoneOfSeveralAndCancelLeaveTheArray) {
  selected = ArrayOfNumbers({77});
  SAFEARRAY* const before = selected.Get();
  Answer({});
  EXPECT_EQ(Choose(), S_OK);
  EXPECT_EQ(result, 0);
  Answer({1}, "cmdCancel");
  EXPECT_EQ(Choose(), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(selected.Get(), before);
  EXPECT_EQ(NumbersOf(selected), std::vector<long>{77});
}

TEST_F(ListSelection, OKWithoutAChoiceGivesOneAndAnArrayWithoutElements) {
  selected = ArrayOfNumbers({77});
  several = VARIANT_FALSE;
  Answer({});
  EXPECT_EQ(Choose(), S_OK);
  EXPECT_EQ(result, 1);
  EXPECT_EQ(NumbersOf(selected), std::vector<long>{});
}

TEST_F(ListSelection, WithoutAnArrayOfEntriesTheListIsEmpty) {
  entries = SafeArray();
  answer = [](Form& form) {
    EXPECT_FALSE(form.Find("cmdOK")->Enabled());
    dynamic_cast<Button&>(*form.Find("cmdCancel")).UserPress();
  };
  EXPECT_EQ(Choose(), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(selected.Get(), nullptr);
}

TEST_F(ListSelection, EntriesOfAnotherTypeOrOfSeveralDimensionsAreErrors) {
  entries = SafeArray(VT_R8, {0, 2});
  ExpectRefused(CodeOf(kErrorTypeMismatch), "mSelection");
  entries = TableOf(VT_BSTR);
  ExpectRefused(CodeOf(kErrorTypeMismatch), "mSelection");
}

TEST_F(ListSelection, AnArrayForTheIndexesOfAnotherTypeOrOfSeveralDimensionsIsAnError) {
  selected = SafeArray(VT_I2, {1, 2});
  ExpectRefused(CodeOf(kErrorTypeMismatch), "mSelected");
  selected = TableOf(VT_I4);
  ExpectRefused(CodeOf(kErrorTypeMismatch), "mSelected");
}

TEST_F(ListSelection, AnArrayForTheIndexesThatCannotBeReplacedIsAnErrorBeforeAnythingIsShown) {
  selected = ArrayOfNumbers({77});
  SafeArrayLock(selected.Get());
  ExpectRefused(CodeOf(kErrorFixedArray), "mSelected");
  SafeArrayUnlock(selected.Get());
  selected.Get()->fFeatures |= FADF_FIXEDSIZE;
  ExpectRefused(CodeOf(kErrorFixedArray), "mSelected");
  selected.Get()->fFeatures &= static_cast<USHORT>(~FADF_FIXEDSIZE);
  EXPECT_EQ(NumbersOf(selected), std::vector<long>{77});
}

TEST_F(ListSelection, AnArrayThatIsLockedMeanwhileStays) {
  selected = ArrayOfNumbers({77});
  several = VARIANT_FALSE;
  answer = [this](Form& form) {
    SafeArrayLock(selected.Get());
    dynamic_cast<ListBox&>(*form.Find("lstSingleSelect")).UserDoubleClick(0);
  };
  EXPECT_EQ(Choose(), CodeOf(kErrorFixedArray));
  EXPECT_EQ(result, 0);
  SafeArrayUnlock(selected.Get());
  EXPECT_EQ(NumbersOf(selected), std::vector<long>{77});
}

TEST_F(ListSelection, TheListIndexIsSelectedAtFirst) {
  listIndex = 2;
  Answer({});
  EXPECT_EQ(Choose(), S_OK);
  EXPECT_EQ(NumbersOf(selected), std::vector<long>{6});
}

TEST_F(ListSelection, PlacesForAllArgumentsAreRequired) {
  BSTR text = nullptr;
  for (int missing = 0; missing < 8; ++missing) {
    const auto unless = [&](int argument, auto* place) { return missing == argument ? nullptr : place; };
    EXPECT_EQ(dialogs->ShowListSelection(unless(0, entries.InOut()), unless(1, &several), unless(2, &listIndex),
                                         unless(3, &text), unless(4, &asks), unless(5, &text),
                                         unless(6, selected.InOut()), unless(7, &result)),
              E_POINTER)
        << missing;
  }
  EXPECT_TRUE(shown.empty());
}

TEST_F(ListSelection, ALanguageThatFailsIsAnErrorOfTheCall) {
  const auto words = LanguageOf(1, "x");
  IDispatch* given = words.Get();
  ASSERT_EQ(dialogs->putref_Language(&given), S_OK);
  words->Broken = "EntryCount";
  EXPECT_TRUE(FAILED(Choose()));
  EXPECT_TRUE(shown.empty());
}

TEST_F(ListSelection, LateBoundCallersGetTheirVariableBackAsAnArray) {
  Answer({0, 2});
  Variant variables[] = {entries.MoveToVariant(VT_BSTR),
                         Variant(true),
                         Variant(std::int32_t{0}),
                         Variant("Select Layer"),
                         Variant(false),
                         Variant("Sure?"),
                         Variant()};
  VARIANT references[7] = {};
  // The last argument comes first.
  for (int i = 0; i < 7; ++i) {
    references[6 - i].vt = VT_BYREF | VT_VARIANT;
    references[6 - i].pvarVal = &variables[i];
  }
  DISPPARAMS parameters = {references, nullptr, 7, 0};
  Variant answered;
  ASSERT_EQ(dialogs->Invoke(14, IID_NULL, 0, DISPATCH_METHOD, &parameters, &answered, nullptr, nullptr), S_OK);
  EXPECT_EQ(answered.lVal, 2);
  ASSERT_EQ(variables[6].vt, VT_ARRAY | VT_VARIANT);
  LONG second = 2;
  Variant element;
  SafeArrayGetElement(variables[6].parray, &second, static_cast<VARIANT*>(&element));
  ASSERT_EQ(element.vt, VT_I4);
  EXPECT_EQ(element.lVal, 7);
}

TEST_F(ListSelection, LateBoundCallersGetTheIndexesInTheTypeOfTheirArray) {
  for (const VARTYPE type : {VT_VARIANT, VT_R8, VT_I8}) {
    Answer({0, 2});
    SafeArray array(type, {0, 1});
    ScriptCall call(dialogs.Get(), "ShowListSelection");
    ASSERT_EQ(ChooseInto(type, array, call), S_OK) << type;
    VARTYPE found = VT_EMPTY;
    SafeArrayGetVartype(array.Get(), &found);
    EXPECT_EQ(found, type);
    ArrayBounds bounds;
    ASSERT_EQ(BoundsOf(array.Get(), bounds), S_OK);
    ASSERT_EQ(bounds.Count, 2u);
    VARIANT second = {};
    second.vt = static_cast<VARTYPE>(VT_BYREF | type);
    const ArrayElements elements(array.Get());
    second.byref = elements.At(1);
    Variant number;
    ASSERT_EQ(VariantCopyInd(&number, &second), S_OK);
    ASSERT_EQ(VariantChangeType(&number, &number, 0, VT_I4), S_OK);
    EXPECT_EQ(number.lVal, 7) << type;
  }
}

TEST_F(ListSelection, LateBoundCallersAreToldBeforehandThatTheirArrayCannotTakeTheIndexes) {
  for (const VARTYPE type : {VT_I2, VT_UI1, VT_BOOL, VT_DISPATCH}) {
    SafeArray array(type, {0, 1});
    ScriptCall call(dialogs.Get(), "ShowListSelection");
    EXPECT_TRUE(FAILED(ChooseInto(type, array, call))) << type;
    EXPECT_TRUE(shown.empty()) << type;
  }
}

TEST_F(ListSelection, LateBoundEntriesMayStandInAnArrayThatCannotChange) {
  Answer({0});
  SafeArray fixed(VT_VARIANT, {0, 2});
  fixed.Get()->fFeatures |= FADF_FIXEDSIZE;
  Variant chosen;
  ScriptCall call(dialogs.Get(), "ShowListSelection");
  call.Lent(ReferenceTo(VT_ARRAY | VT_VARIANT, *fixed.InOut())).Value(Variant(true)).Value(Variant(std::int32_t{0}));
  call.Value(Variant("Select Layer")).Value(Variant(false)).Value(Variant("Sure?")).Variable(chosen);
  EXPECT_EQ(call.Call(), S_OK);
  EXPECT_EQ(call.Result.lVal, 1);
  fixed.Get()->fFeatures &= static_cast<USHORT>(~FADF_FIXEDSIZE);
}

}  // namespace
}  // namespace orx::com::test
