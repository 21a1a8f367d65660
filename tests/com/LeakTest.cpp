// What is taken from the system is given back, also when something fails on the way.
#include <functional>

#include "com/Conversion.h"
#include "com/HostArrays.h"
#include "com/Members.h"
#include "com/SafeArray.h"
#include "com/SourceInterface.h"
#include "com/TypeDescriptions.h"
#include "forms/Button.h"
#include "forms/ListBox.h"
#include "hostobjects/RunTimeError.h"
#include "tests/com/support/AllocationSpy.h"
#include "tests/com/support/MapDialogsTest.h"
#include "tests/com/support/Recorder.h"

namespace orx::com::test {
namespace {

/// Runs the act once for each of its allocations, with that one failing. It must fail each time and leave nothing
/// behind.
void ExpectNothingLeftWhenMemoryEnds(const std::function<void()>& act) {
  // What is made once and kept is no leak.
  act();
  AllocationSpy spy;
  act();
  const long needed = spy.Allocations();
  EXPECT_GT(needed, 1);
  EXPECT_EQ(spy.InUse(), 0);
  long failed = 0;
  for (long good = 0; good < needed; ++good) {
    spy.FailAfter(good);
    try {
      act();
    } catch (const std::exception&) {
      ++failed;
    }
    EXPECT_EQ(spy.InUse(), 0) << good;
  }
  EXPECT_GT(2 * failed, needed);
}

TEST(Leaks, AnArrayThatCannotBeFilledLeavesNothingBehind) {
  ExpectNothingLeftWhenMemoryEnds([] {
    SafeArray array;
    PutTexts({"a", "b", "c"}, *array.InOut(), "Files");
    PutNumbers({1, 2}, *array.InOut(), "mSelected");
  });
}

TEST(Leaks, AnArrayThatCannotBeFilledLeavesTheOldOne) {
  SafeArray array = ArrayOfTexts({"before"});
  SAFEARRAY* const before = array.Get();
  AllocationSpy spy;
  // The array and the first text are there, the second text is not.
  spy.FailAfter(2);
  EXPECT_ANY_THROW(PutTexts({"a", "b"}, *array.InOut(), "Files"));
  EXPECT_EQ(array.Get(), before);
  EXPECT_EQ(TextsOf(array.Get()), std::vector<std::string>{"before"});
}

TEST(Leaks, ConvertedArraysLeaveNothingBehind) {
  ExpectNothingLeftWhenMemoryEnds([] {
    const Variant texts = ArrayOfTexts({"a", "b"}).MoveToVariant(VT_BSTR);
    Variant variants;
    Variant back;
    Check(ToScriptArray(texts, variants), "There");
    Check(ConvertArray(variants, VT_BSTR, LOCALE_INVARIANT, back), "Back");
  });
}

TEST(Leaks, AnErrorThatAMemberRaisesLeavesNothingBehind) {
  const auto object = MakeCounted<ScriptObject>(std::map<std::string, Variant>{{"Name", Variant("Relief")}});
  const Members member(object.Get());
  EXPECT_EQ(member.GetText("Name"), "Relief");
  object->Broken = "Name";
  AllocationSpy spy;
  EXPECT_THROW(member.GetText("Name"), RunTimeError);
  EXPECT_THROW(member.Put("Name", Variant("Water")), RunTimeError);
  EXPECT_GT(spy.Allocations(), 1);
  EXPECT_EQ(spy.InUse(), 0);
}

class LeaksOfTheService : public MapDialogsTest {};

TEST_F(LeaksOfTheService, AChoiceThatCannotBeGivenBackLeavesNothingBehind) {
  answer = [](Form& form) { dynamic_cast<ListBox&>(*form.Find("lstSingleSelect")).UserDoubleClick(1); };
  ExpectNothingLeftWhenMemoryEnds([this] {
    SafeArray entries = ArrayOfTexts({"Roads", "Rivers"});
    SafeArray selected;
    VARIANT_BOOL no = VARIANT_FALSE;
    long index = 0;
    BSTR none = nullptr;
    const HRESULT chosen =
        dialogs->ShowListSelection(entries.InOut(), &no, &index, &none, &no, &none, selected.InOut(), &result);
    SetErrorInfo(0, nullptr);
    Check(chosen, "ShowListSelection");
    EXPECT_EQ(result, 1);
  });
}

/// Counts what it has lent. All else is not there.
class Lender final : public Counted<ITypeInfo> {
 public:
  HRESULT STDMETHODCALLTYPE GetTypeAttr(TYPEATTR** attributes) noexcept override {
    ++Lent;
    *attributes = &mAttributes;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetFuncDesc(UINT index, FUNCDESC** function) noexcept override {
    if (index >= kFunctions) return TYPE_E_ELEMENTNOTFOUND;
    ++Lent;
    *function = &mFunction;
    return S_OK;
  }
  void STDMETHODCALLTYPE ReleaseTypeAttr(TYPEATTR* attributes) noexcept override { Lent -= attributes == &mAttributes; }
  void STDMETHODCALLTYPE ReleaseFuncDesc(FUNCDESC* function) noexcept override { Lent -= function == &mFunction; }

  HRESULT STDMETHODCALLTYPE GetTypeComp(ITypeComp**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetVarDesc(UINT, VARDESC**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNames(MEMBERID, BSTR*, UINT, UINT*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetRefTypeOfImplType(UINT, HREFTYPE*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetImplTypeFlags(UINT, INT*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(LPOLESTR*, UINT, MEMBERID*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Invoke(PVOID, MEMBERID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetDocumentation(MEMBERID, BSTR*, BSTR*, DWORD*, BSTR*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetDllEntry(MEMBERID, INVOKEKIND, BSTR*, BSTR*, WORD*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetRefTypeInfo(HREFTYPE, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE AddressOfMember(MEMBERID, INVOKEKIND, PVOID*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID, PVOID*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMops(MEMBERID, BSTR*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetContainingTypeLib(ITypeLib**, UINT*) noexcept override { return E_NOTIMPL; }
  void STDMETHODCALLTYPE ReleaseVarDesc(VARDESC*) noexcept override {}

  static constexpr UINT kFunctions = 3;
  int Lent = 0;

 private:
  TYPEATTR mAttributes = {};
  FUNCDESC mFunction = {};
};

TEST(Leaks, DescriptionsAreGivenBackWhateverIsThrownMeanwhile) {
  const auto lender = MakeCounted<Lender>();
  try {
    const TypeAttributes attributes = AttributesOf(*lender.Get());
    const FunctionDescription function = FunctionOf(*lender.Get(), 0);
    EXPECT_TRUE(attributes);
    EXPECT_TRUE(function);
    EXPECT_FALSE(FunctionOf(*lender.Get(), Lender::kFunctions));
    EXPECT_EQ(lender->Lent, 2);
    throw RunTimeError(kErrorOverflow, "Meanwhile");
  } catch (const RunTimeError&) {
    EXPECT_EQ(lender->Lent, 0);
  }
  EXPECT_EQ(ReferencesOf(lender.Get()), 1u);
}

TEST(Leaks, ALookForAMemberThatIsNotThereGivesAllDescriptionsBack) {
  const auto lender = MakeCounted<Lender>();
  DISPPARAMS none = {};
  EXPECT_EQ(InvokeMember(*lender.Get(), nullptr, {77, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr}),
            DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(lender->Lent, 0);
  EXPECT_EQ(ReferencesOf(lender.Get()), 1u);
}

}  // namespace
}  // namespace orx::com::test
