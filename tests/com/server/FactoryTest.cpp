// Class factories of the DLL, and how long it stays loaded.
#include <gtest/gtest.h>

#include <thread>

#include "com/TypeDescriptions.h"
#include "tests/com/support/Server.h"

namespace orx::com::test {
namespace {

class Factories : public testing::Test {
 protected:
  Apartment apartment;
  Server server;
  const CLSID classes[2] = {__uuidof(::CCommonMapDialogs), __uuidof(::CCommonProgressDialog)};
};

TEST_F(Factories, MakeObjectsOfBothClasses) {
  EXPECT_TRUE(server.Create<::_CCommonMapDialogs>(classes[0]));
  EXPECT_TRUE(server.Create<::_CCommonProgressDialog>(classes[1]));
  EXPECT_FALSE(server.Create<::_CCommonProgressDialog>(classes[0]));
}

TEST_F(Factories, ObjectsAnswerForTheirInterfaces) {
  for (const CLSID& id : classes) {
    const ComPtr<IUnknown> object = server.Create<IUnknown>(id);
    ASSERT_TRUE(object);
    EXPECT_TRUE(object.As<IDispatch>());
    EXPECT_TRUE(object.As<ISupportErrorInfo>());
    EXPECT_TRUE(object.As<IProvideClassInfo>());
    EXPECT_FALSE(object.As<IStream>());
    EXPECT_EQ(object.As<IDispatch>().As<IUnknown>().Get(), object.As<IProvideClassInfo>().As<IUnknown>().Get());
  }
}

TEST_F(Factories, ObjectsTellTheirClass) {
  for (const CLSID& id : classes) {
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(server.Create<IProvideClassInfo>(id)->GetClassInfo(info.Out()), S_OK);
    const TypeAttributes attributes = AttributesOf(*info.Get());
    ASSERT_TRUE(attributes);
    EXPECT_TRUE(IsEqualGUID(attributes->guid, id));
  }
}

TEST_F(Factories, ObjectsSupportErrorInformationForTheirOwnInterface) {
  const auto dialogs = server.Create<ISupportErrorInfo>(classes[0]);
  EXPECT_EQ(dialogs->InterfaceSupportsErrorInfo(__uuidof(::_CCommonMapDialogs)), S_OK);
  EXPECT_EQ(dialogs->InterfaceSupportsErrorInfo(__uuidof(::_CCommonProgressDialog)), S_FALSE);
}

TEST_F(Factories, RefuseToBeAggregated) {
  const ComPtr<IUnknown> outer = server.Create<IUnknown>(classes[1]);
  for (const CLSID& id : classes) {
    IUnknown* object = outer.Get();
    EXPECT_EQ(server.Factory(id)->CreateInstance(outer.Get(), IID_IUnknown, reinterpret_cast<void**>(&object)),
              CLASS_E_NOAGGREGATION);
    EXPECT_FALSE(object);
  }
}

TEST_F(Factories, RefuseUnknownClassesAndInterfaces) {
  IUnknown* object = reinterpret_cast<IUnknown*>(this);
  auto** const out = reinterpret_cast<void**>(&object);
  EXPECT_EQ(server.GetClassObject(IID_IStream, IID_IClassFactory, out), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_FALSE(object);
  EXPECT_EQ(server.GetClassObject(classes[0], IID_IStream, out), E_NOINTERFACE);
  EXPECT_FALSE(object);
  EXPECT_EQ(server.Factory(classes[0])->CreateInstance(nullptr, IID_IStream, out), E_NOINTERFACE);
  EXPECT_FALSE(object);
}

TEST_F(Factories, RefuseToWriteNowhere) {
  EXPECT_EQ(server.GetClassObject(classes[0], IID_IClassFactory, nullptr), E_POINTER);
  EXPECT_EQ(server.Factory(classes[0])->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
  ComPtr<IErrorInfo> info;
  EXPECT_EQ(GetErrorInfo(0, info.Out()), S_OK) << "It says what is wrong.";
  EXPECT_EQ(server.Create<IUnknown>(classes[0])->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(Factories, KeepTheDllWhileAnObjectLives) {
  EXPECT_EQ(server.CanUnloadNow(), S_OK);
  for (const CLSID& id : classes) {
    ComPtr<IUnknown> object = server.Create<IUnknown>(id);
    EXPECT_EQ(server.CanUnloadNow(), S_FALSE);
    object.Reset();
    EXPECT_EQ(server.CanUnloadNow(), S_OK);
  }
}

TEST_F(Factories, KeepTheDllWhileAFactoryLives) {
  ComPtr<IClassFactory> factory = server.Factory(classes[0]);
  EXPECT_EQ(server.CanUnloadNow(), S_FALSE);
  factory.Reset();
  EXPECT_EQ(server.CanUnloadNow(), S_OK);
}

TEST_F(Factories, KeepTheDllWhileItIsLocked) {
  server.Factory(classes[0])->LockServer(TRUE);
  server.Factory(classes[1])->LockServer(TRUE);
  server.Factory(classes[0])->LockServer(FALSE);
  EXPECT_EQ(server.CanUnloadNow(), S_FALSE);
  server.Factory(classes[0])->LockServer(FALSE);
  EXPECT_EQ(server.CanUnloadNow(), S_OK);
}

TEST_F(Factories, KeepTheDllWhileADescriptionIsReadFromAnObject) {
  ComPtr<ITypeInfo> info;
  ASSERT_EQ(server.Create<IDispatch>(classes[0])->GetTypeInfo(0, LOCALE_INVARIANT, info.Out()), S_OK);
  EXPECT_EQ(server.CanUnloadNow(), S_OK) << "The system's own object does not need the DLL.";
  Bstr name;
  EXPECT_EQ(info->GetDocumentation(MEMBERID_NIL, name.Out(), nullptr, nullptr, nullptr), S_OK);
  EXPECT_EQ(name.Text(), "_CCommonMapDialogs");
}

TEST(Unloading, LeavesNothingOfTheDllInTheProcess) {
  const Apartment apartment;
  {
    const Server server;
    const auto dialogs = server.Create<::_CCommonMapDialogs>(__uuidof(::CCommonMapDialogs));
    ASSERT_TRUE(dialogs);
    Bstr key;
    EXPECT_EQ(dialogs->get_RegistryKey(key.Out()), S_OK);
    EXPECT_TRUE(IsServerLoaded());
  }
  EXPECT_FALSE(IsServerLoaded());
  // A second life in the same process is as good as the first.
  const Server again;
  EXPECT_TRUE(again.Create<::_CCommonMapDialogs>(__uuidof(::CCommonMapDialogs)));
}

TEST(Unloading, IsPossibleAfterAThreadHasEndedWithADialogOpen) {
  const Apartment apartment;
  for (int round = 0; round < 3; ++round) {
    {
      const Server server;
      std::thread([&] {
        const Apartment own;
        const auto dialogs = server.Create<::_CCommonMapDialogs>(__uuidof(::CCommonMapDialogs));
        IDispatch* none = nullptr;
        auto mode = ::ShowModeless;
        long result = 77;
        EXPECT_EQ(dialogs->ShowProperties(&none, nullptr, &mode, nullptr, &result), S_OK);
      }).join();
      EXPECT_EQ(server.CanUnloadNow(), S_OK);
    }
    EXPECT_FALSE(IsServerLoaded());
  }
}

}  // namespace
}  // namespace orx::com::test
