// Calls with any arguments: every member of the creatable classes, with numbers, kinds and names of arguments that fit,
// nearly fit, or make no sense. Each call is answered, and nothing of it is left.
#include <deque>
#include <random>

#include "com/ProgressDialog.h"
#include "com/TypeDescriptions.h"
#include "tests/com/support/AllocationSpy.h"
#include "tests/com/support/MapDialogsTest.h"
#include "tests/com/support/Recorder.h"

namespace orx::com::test {
namespace {

class Dice {
 public:
  explicit Dice(unsigned seed) : mRandom(seed) {}

  int Below(int limit) { return static_cast<int>(mRandom() % static_cast<unsigned>(limit)); }
  bool OneIn(int times) { return Below(times) == 0; }
  template <class Type>
  Type One(std::initializer_list<Type> list) {
    return list.begin()[Below(static_cast<int>(list.size()))];
  }

 private:
  std::mt19937 mRandom;
};

/// Objects as hosts have them. They outlive the calls, since a language is not kept alive by those who use it.
struct Objects {
  ComPtr<ScriptObject> Plain = MakeCounted<ScriptObject>();
  ComPtr<ScriptObject> Language = LanguageOf(3, "text");
  ComPtr<ScriptObject> Array = ScriptObject::ArrayOf({"a", "b"});
  ComPtr<ScriptObject> Data = MakeCounted<ScriptObject>(
      std::map<std::string, Variant>{{"ClassifyMethod", Variant(1.5)}, {"ClassCount", Variant("many")}});
  ComPtr<ScriptObject> Map = MakeCounted<ScriptObject>(
      std::map<std::string, Variant>{{"LayerCount", Variant(std::int32_t{-7})}, {"Layer", Variant("none")}});
  ComPtr<ScriptObject> CallBack = MakeCounted<ScriptObject>(
      std::map<std::string, Variant>{{"ApplyNotify", Variant()}, {"RegisterNotify", Variant()}});
};

/// The arguments of one call, with all that they refer to.
class AnyArguments {
 public:
  AnyArguments(Dice& dice, const Objects& objects) : mDice(dice), mObjects(objects) {
    for (int i = dice.Below(10); i > 0; --i) mGiven.push_back(Argument());
    mNames.resize(16);
    for (DISPID& name : mNames)
      name = dice.OneIn(4) ? dice.One<DISPID>({DISPID_PROPERTYPUT, -1, -4, 1000, 0x7FFFFFFF}) : dice.Below(9);
    Given.rgvarg = mGiven.data();
    Given.rgdispidNamedArgs = mNames.data();
    Given.cArgs = static_cast<UINT>(mGiven.size());
    // More names than arguments now and then.
    Given.cNamedArgs = dice.OneIn(2) ? 0 : static_cast<UINT>(dice.Below(static_cast<int>(mGiven.size()) + 2));
  }

  DISPPARAMS Given = {};

 private:
  VARIANT Argument() {
    Variant& slot = mSlots.emplace_back();
    if (mDice.OneIn(12)) return ReferenceTo(slot, slot);
    slot = Value();
    if (mDice.OneIn(12)) return Null(slot);
    if (mDice.OneIn(3)) return slot;
    return mDice.OneIn(2) ? ReferenceTo(slot, mSlots.emplace_back()) : TypedReference(slot);
  }
  /// A variant by reference; of itself, when both are the same.
  static VARIANT ReferenceTo(Variant& slot, Variant& reference) {
    reference.vt = VT_BYREF | VT_VARIANT;
    reference.pvarVal = &slot;
    return reference;
  }
  static VARIANT TypedReference(Variant& slot) {
    VARIANT reference = slot;
    if (slot.vt == VT_EMPTY || slot.vt == VT_NULL) return reference;
    reference.vt = static_cast<VARTYPE>(VT_BYREF | slot.vt);
    reference.byref = slot.vt == VT_DECIMAL ? static_cast<void*>(&slot.decVal) : &slot.llVal;
    return reference;
  }
  static VARIANT Null(const Variant& slot) {
    VARIANT reference = {};
    const bool isValue = slot.vt != VT_EMPTY && slot.vt != VT_NULL;
    reference.vt = static_cast<VARTYPE>(VT_BYREF | (isValue ? slot.vt : VARTYPE{VT_VARIANT}));
    return reference;
  }
  Variant Value() {
    switch (mDice.Below(6)) {
      case 0:
        return Variant(mDice.One<std::int32_t>({0, 1, -1, 2, 7, 33, 255, 100000, -2147483647}));
      case 1:
        return Variant(mDice.One({"", "1", "-1", "Arial", "1.5", "True", "1E400", "\xC3\xA4", "C:\\a.shp"}));
      case 2:
        return Object();
      case 3:
        return Array();
      default:
        return OfType(mDice.One<VARTYPE>({VT_EMPTY, VT_NULL, VT_BOOL, VT_R8, VT_R4, VT_I2, VT_UI1, VT_I8, VT_UI8,
                                          VT_DATE, VT_CY, VT_DECIMAL, VT_ERROR, VT_UNKNOWN, VT_INT}));
    }
  }
  Variant OfType(VARTYPE type) {
    Variant value;
    if (type == VT_ERROR) {
      value.scode = mDice.OneIn(2) ? DISP_E_PARAMNOTFOUND : E_FAIL;
    } else if (type != VT_EMPTY && type != VT_NULL && type != VT_UNKNOWN) {
      Variant number(mDice.One<std::int32_t>({0, 1, 3, 100}));
      EXPECT_EQ(S_OK, VariantChangeType(&value, &number, 0, type));
    }
    value.vt = type;
    return value;
  }
  Variant Object() {
    return Variant(mDice.One<IDispatch*>({nullptr, mObjects.Plain.Get(), mObjects.Language.Get(), mObjects.Array.Get(),
                                          mObjects.Data.Get(), mObjects.Map.Get(), mObjects.CallBack.Get()}));
  }
  Variant Array() {
    switch (mDice.Below(5)) {
      case 0:
        return ArrayOfTexts({"Roads", "", "Rivers"}, mDice.Below(3)).MoveToVariant(VT_BSTR);
      case 1:
        return SafeArray(VT_VARIANT, {mDice.Below(3), 4}).MoveToVariant(VT_VARIANT);
      case 2:
        return SafeArray(VT_I4, {-1, 3}).MoveToVariant(VT_I4);
      case 3:
        return TableOf(VT_VARIANT).MoveToVariant(VT_VARIANT);
      default: {
        Variant none;
        none.vt = mDice.One<VARTYPE>({VT_ARRAY | VT_BSTR, VT_ARRAY | VT_VARIANT, VT_ARRAY | VT_I4});
        return none;
      }
    }
  }

  Dice& mDice;
  const Objects& mObjects;
  std::deque<Variant> mSlots;
  std::vector<VARIANT> mGiven;
  std::vector<DISPID> mNames;
};

/// The numbers of an object's members, of those that every object has, and some that nobody has.
std::vector<DISPID> MembersOf(IDispatch& object) {
  ComPtr<ITypeInfo> info;
  EXPECT_EQ(S_OK, object.GetTypeInfo(0, LOCALE_INVARIANT, info.Out()));
  std::vector<DISPID> members{DISPID_VALUE, DISPID_NEWENUM, DISPID_PROPERTYPUT, 12345};
  for (UINT i = 0; const FunctionDescription function = FunctionOf(*info.Get(), i); ++i)
    members.push_back(function->memid);
  return members;
}

class AnyCall : public MapDialogsTest {
 protected:
  /// Calls each member often, with another object for every hundred calls, so that modeless dialogs go with theirs.
  template <class Make>
  void CallAll(Make make, unsigned seed) {
    Dice dice(seed);
    for (int round = 0; round < 20; ++round) {
      const auto object = make();
      for (const DISPID member : MembersOf(*object.Get()))
        for (int i = 0; i < 10; ++i) CallOnce(*object.Get(), member, dice);
    }
    SetErrorInfo(0, nullptr);
  }

  int answered = 0;
  int refused = 0;

 private:
  void CallOnce(IDispatch& object, DISPID member, Dice& dice) {
    AnyArguments arguments(dice, mObjects);
    Variant returned;
    ExceptionInfo error;
    UINT wrong = 0;
    const WORD flags = dice.One<WORD>({DISPATCH_METHOD, DISPATCH_METHOD | DISPATCH_PROPERTYGET, DISPATCH_PROPERTYGET,
                                       DISPATCH_PROPERTYPUT, DISPATCH_PROPERTYPUTREF,
                                       DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF, 0, 0xFFFF});
    const HRESULT result =
        object.Invoke(member, IID_NULL, LOCALE_INVARIANT, flags, &arguments.Given, dice.OneIn(4) ? nullptr : &returned,
                      dice.OneIn(4) ? nullptr : &error, dice.OneIn(4) ? nullptr : &wrong);
    ++(SUCCEEDED(result) ? answered : refused);
  }

  Objects mObjects;
};

TEST_F(AnyCall, OfTheDialogsIsAnsweredAndLeavesNothing) {
  const auto make = [this] { return Create(); };
  CallAll(make, 1);
  AllocationSpy spy;
  CallAll(make, 1);
  EXPECT_EQ(0, spy.InUse());
  EXPECT_GT(answered, 100);
  EXPECT_GT(refused, 100);
  EXPECT_FALSE(shown.empty());
}

TEST_F(AnyCall, OfTheProgressDialogIsAnsweredAndLeavesNothing) {
  const auto make = [] { return MakeCounted<ProgressDialog>(); };
  CallAll(make, 2);
  AllocationSpy spy;
  CallAll(make, 2);
  EXPECT_EQ(0, spy.InUse());
  EXPECT_GT(answered, 100);
  EXPECT_GT(refused, 100);
}

}  // namespace
}  // namespace orx::com::test
