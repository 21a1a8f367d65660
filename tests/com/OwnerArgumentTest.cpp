// What may be said for the owner of a dialog.
#include "com/OwnerArgument.h"

#include <gtest/gtest.h>

#include "com/SafeArray.h"
#include "hostobjects/RunTimeError.h"
#include "tests/com/support/ScriptCall.h"
#include "tests/com/support/ScriptObject.h"

namespace orx::com::test {
namespace {

std::uintptr_t HandleOf(const VARIANT& owner) {
  return OwnerOf(&owner).NativeHandle;
}

Variant Number(VARTYPE type, LONGLONG value) {
  Variant made;
  made.vt = type;
  made.llVal = value;
  return made;
}

ComPtr<ScriptObject> WindowOf(std::int32_t handle, Naming naming = Naming::Plain) {
  std::map<std::string, Variant> fields;
  fields.emplace("hWnd", Variant(handle));
  return MakeCounted<ScriptObject>(std::move(fields), naming);
}

TEST(OwnerArgument, EveryWordForNothingIsNoOwner) {
  Variant null;
  null.vt = VT_NULL;
  Variant missing;
  missing.vt = VT_ERROR;
  missing.scode = DISP_E_PARAMNOTFOUND;
  EXPECT_EQ(OwnerOf(nullptr).NativeHandle, 0u);
  EXPECT_EQ(HandleOf(Variant()), 0u);
  EXPECT_EQ(HandleOf(null), 0u);
  EXPECT_EQ(HandleOf(missing), 0u);
  EXPECT_EQ(HandleOf(Variant(static_cast<IDispatch*>(nullptr))), 0u);
  EXPECT_EQ(HandleOf(Variant(std::int32_t{0})), 0u);
}

TEST(OwnerArgument, WholeNumbersOfEveryTypeAreHandles) {
  for (const VARTYPE type : {VT_I2, VT_I4, VT_I8, VT_UI2, VT_UI4, VT_UI8, VT_INT, VT_UINT})
    EXPECT_EQ(HandleOf(Number(type, 0x1234)), 0x1234u) << type;
  EXPECT_EQ(HandleOf(Variant(double{0x12345})), 0x12345u);
}

TEST(OwnerArgument, HandlesAboveTheMiddleAreTheSameSignedAndUnsigned) {
  const std::uintptr_t expected = HandleOf(Number(VT_I4, static_cast<std::int32_t>(0x80001234)));
  EXPECT_EQ(HandleOf(Number(VT_UI4, 0x80001234)), expected);
  EXPECT_EQ(HandleOf(Number(VT_I8, 0x80001234)), expected);
  EXPECT_EQ(static_cast<std::uint32_t>(expected), 0x80001234u);
}

TEST(OwnerArgument, VariablesAreFollowed) {
  LONG handle = 0x77;
  EXPECT_EQ(HandleOf(ReferenceTo(VT_I4, handle)), 0x77u);
  Variant inner(std::int32_t{0x78});
  VARIANT outer = ReferenceTo(VT_VARIANT, static_cast<VARIANT&>(inner));
  EXPECT_EQ(HandleOf(outer), 0x78u);
  EXPECT_EQ(HandleOf(ReferenceTo(VT_VARIANT, outer)), 0x78u);
}

TEST(OwnerArgument, ObjectsTellTheirWindow) {
  for (const Naming naming : {Naming::Plain, Naming::ExtendedOnly}) {
    const auto window = WindowOf(0x4321, naming);
    EXPECT_EQ(HandleOf(Variant(window.Get())), 0x4321u);
    EXPECT_EQ(window->Read, std::vector<std::string>{"hWnd"});
    EXPECT_EQ(ReferencesOf(window.Get()), 1u);
  }
}

TEST(OwnerArgument, AnythingElseIsRefusedWithAReason) {
  Variant unknown;
  unknown.vt = VT_UNKNOWN;
  unknown.punkVal = MakeCounted<PlainObject>().Detach();
  const Variant array = SafeArray(VT_I4, {0, 1}).MoveToVariant(VT_I4);
  const Variant object(MakeCounted<ScriptObject>().Get());
  const Variant text("12");
  const Variant truth(true);
  const Variant fraction(1.5);
  const Variant huge(1e300);
  for (const VARIANT* owner :
       std::initializer_list<const VARIANT*>{&unknown, &array, &object, &text, &truth, &fraction, &huge}) {
    try {
      OwnerOf(owner);
      ADD_FAILURE() << "Type " << owner->vt << " was taken.";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number(), kErrorTypeMismatch) << owner->vt;
      EXPECT_NE(std::string(error.what()).find("OwnerForm"), std::string::npos);
    }
  }
}

}  // namespace
}  // namespace orx::com::test
