// The check of data files that hosts of the component bring: through the newer interface, by name, and as data objects.
#include <thread>

#include "com/HostAdapters.h"
#include "forms/Desktop.h"
#include "tests/com/support/MapDialogsTest.h"
#include "tests/com/support/ScriptCall.h"
#include "tests/com/support/Signatures.h"
#include "tests/com/support/SlotObjects.h"

namespace orx::com::test {
namespace {

ComPtr<ScriptObject> CheckThatSays(bool answer) {
  return MakeCounted<ScriptObject>(std::map<std::string, Variant>{{"CanOpen", Variant(answer)}});
}

class FileChecks : public MapDialogsTest {
 protected:
  ~FileChecks() override { orx::CCommonMapDialogs::FileCheck(nullptr); }

  /// What the dialogs ask.
  static bool CanOpen() { return orx::CCommonMapDialogs::FileCheck()->CanOpen("a.bil"); }

  ComPtr<::ICommonMapDialogs2> newer = dialogs.As<::ICommonMapDialogs2>();
};

TEST_F(FileChecks, TheNewerInterfaceIsTheSameObject) {
  ASSERT_TRUE(newer);
  EXPECT_EQ(newer.As<IUnknown>().Get(), dialogs.As<IUnknown>().Get());
  EXPECT_EQ(newer.As<::_CCommonMapDialogs>().Get(), dialogs.Get());
  const auto support = dialogs.As<ISupportErrorInfo>();
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(::_CCommonMapDialogs)), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(::ICommonMapDialogs2)), S_OK);
}

TEST_F(FileChecks, ACheckIsAskedAndGivenBackUntilNothingIsSet) {
  const auto check = CheckThatSays(false);
  ASSERT_EQ(newer->putref_FileCheck(check.Get()), S_OK);
  EXPECT_FALSE(CanOpen());
  check->Field("CanOpen") = Variant(true);
  EXPECT_TRUE(CanOpen());
  ComPtr<IDispatch> got;
  EXPECT_EQ(newer->get_FileCheck(got.Out()), S_OK);
  EXPECT_EQ(got.As<IUnknown>().Get(), check.As<IUnknown>().Get());
  got.Reset();
  EXPECT_EQ(newer->putref_FileCheck(nullptr), S_OK);
  EXPECT_EQ(orx::CCommonMapDialogs::FileCheck(), nullptr);
  EXPECT_EQ(newer->get_FileCheck(got.Out()), S_OK);
  EXPECT_FALSE(got);
  EXPECT_EQ(ReferencesOf(check.Get()), 1u);
}

TEST_F(FileChecks, AScriptSetsItByNameOnTheDispatchThatItHas) {
  const auto check = CheckThatSays(false);
  EXPECT_EQ(ScriptCall(dialogs.Get(), "FileCheck").Value(Variant(check.Get())).Put(DISPATCH_PROPERTYPUTREF), S_OK);
  EXPECT_FALSE(CanOpen());
  ScriptCall read(dialogs.Get(), "FileCheck");
  EXPECT_EQ(read.Call(), S_OK);
  EXPECT_EQ(ComPtr<IUnknown>(read.Result.punkVal).As<IUnknown>().Get(), check.As<IUnknown>().Get());
  EXPECT_EQ(ScriptCall(newer.Get(), "RegistryKey").Value(Variant("Maps")).Put(), S_OK);
}

TEST_F(FileChecks, AnErrorOfTheCheckTellsTheUserWhy) {
  const auto check = CheckThatSays(true);
  check->Broken = "CanOpen";
  ASSERT_EQ(newer->putref_FileCheck(check.Get()), S_OK);
  try {
    CanOpen();
    FAIL();
  } catch (const std::exception& error) {
    EXPECT_STREQ(error.what(), "CanOpen is broken");
  }
}

TEST_F(FileChecks, AnObjectThatIsNoneIsRefusedAndTheOldOneStays) {
  const auto check = CheckThatSays(false);
  ASSERT_EQ(newer->putref_FileCheck(check.Get()), S_OK);
  EXPECT_EQ(newer->putref_FileCheck(MakeCounted<ScriptObject>().Get()), CodeOf(kErrorTypeMismatch));
  EXPECT_NE(TakenErrorText().find("CanOpen"), std::string::npos);
  EXPECT_FALSE(CanOpen());
}

TEST_F(FileChecks, ACheckGoesWithTheServiceThatItWasSetThrough) {
  const auto check = CheckThatSays(false);
  const auto other = CheckThatSays(true);
  auto second = Create().As<::ICommonMapDialogs2>();
  ASSERT_EQ(newer->putref_FileCheck(check.Get()), S_OK);
  ASSERT_EQ(second->putref_FileCheck(other.Get()), S_OK);
  newer.Reset();
  dialogs.Reset();
  EXPECT_EQ(ReferencesOf(check.Get()), 1u);
  EXPECT_TRUE(CanOpen()) << "The later one stays.";
  second.Reset();
  EXPECT_EQ(orx::CCommonMapDialogs::FileCheck(), nullptr);
}

TEST_F(FileChecks, ACheckMaySetAnotherOneWhileItIsAsked) {
  const auto check = CheckThatSays(true);
  orx::test::FaultPlan plan("CanOpen", [&] { newer->putref_FileCheck(nullptr); });
  check->Faults = &plan;
  ASSERT_EQ(newer->putref_FileCheck(check.Get()), S_OK);
  EXPECT_TRUE(CanOpen());
  EXPECT_EQ(orx::CCommonMapDialogs::FileCheck(), nullptr);
}

TEST_F(FileChecks, AreAskedOnTheirOwnThreadOnly) {
  const auto check = CheckThatSays(true);
  ASSERT_EQ(newer->putref_FileCheck(check.Get()), S_OK);
  std::thread([] { EXPECT_THROW(CanOpen(), WrongThread); }).join();
  EXPECT_TRUE(CanOpen());
}

/// A check with slots.
class SlotFileCheck final : public SlotObject<::IFileCheck> {
 public:
  std::string Asked;

  HRESULT STDMETHODCALLTYPE CanOpen(BSTR path, VARIANT_BOOL* result) noexcept override {
    Asked = TextOf(path);
    *result = VARIANT_TRUE;
    return S_OK;
  }
};

TEST_F(FileChecks, AreCalledThroughTheirSlots) {
  const auto check = MakeCounted<SlotFileCheck>();
  ASSERT_EQ(newer->putref_FileCheck(check.Get()), S_OK);
  EXPECT_TRUE(CanOpen());
  EXPECT_EQ(check->Asked, "a.bil");
}

TEST_F(FileChecks, ADataObjectMayCheckWhatIsChosenForIt) {
  const auto data = MakeCounted<ScriptObject>(
      std::map<std::string, Variant>{{"ClassifyMethod", Variant(std::int32_t{0})}, {"CanOpen", Variant(false)}});
  const auto adapter = AdaptHostObject(data.Get());
  ASSERT_TRUE(QueryKind<orx::IFileCheck>(adapter.get()));
  EXPECT_FALSE(QueryKind<orx::IFileCheck>(adapter.get())->CanOpen("a.bil"));
  EXPECT_FALSE(QueryKind<orx::IFileCheck>(AdaptHostObject(MakeCounted<ScriptObject>().Get()).get()));
}

}  // namespace
}  // namespace orx::com::test
