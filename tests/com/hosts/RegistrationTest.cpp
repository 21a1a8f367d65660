// Registration: what it writes, for whom, and that it can be undone.
#include <gtest/gtest.h>

#include <filesystem>

#include "com/Errors.h"
#include "com/Registration.h"
#include "desktops/win32/Handles.h"
#include "hostobjects/RunTimeError.h"
#include "tests/com/hosts/RegistryImage.h"
#include "tests/com/support/Server.h"

namespace orx::com::test {
namespace {

constexpr wchar_t kClass[] = L"CLSID\\{AAFAF84B-AFD8-48D3-87F3-36DA84C6A400}";
constexpr wchar_t kProgressClass[] = L"CLSID\\{20B81D7F-8E9E-4BB8-B4A3-7B2B926271F2}";

class Registration : public testing::Test {
 protected:
  ~Registration() override {
    server.UnregisterServer();
    EXPECT_EQ(ClassKeys(HKEY_LOCAL_MACHINE), allUsers) << "The next test would find what this one has left.";
  }

  RegistryImage Written(HKEY root) const {
    return Added(root, root == HKEY_LOCAL_MACHINE ? allUsers : user, ClassKeys(root));
  }

  const Apartment apartment;
  const Server server;
  const RegistryKeys allUsers = ClassKeys(HKEY_LOCAL_MACHINE);
  const RegistryKeys user = ClassKeys(HKEY_CURRENT_USER);
};

/// What hosts need in order to create a class.
void ExpectClass(const RegistryImage& image, const std::wstring& key, const std::wstring& progId) {
  const auto at = [&](const std::wstring& name) {
    const auto found = image.find(name);
    return found == image.end() ? L"missing: " + name : found->second;
  };
  EXPECT_EQ(at(key + L"\\InprocServer32:"), ServerPath());
  EXPECT_EQ(at(key + L"\\InprocServer32:ThreadingModel"), L"Apartment");
  EXPECT_EQ(at(key + L"\\ProgID:"), progId);
  EXPECT_EQ(at(key + L"\\Version:"), L"2.0");
  EXPECT_EQ(at(key + L"\\Programmable"), L"key");
  EXPECT_EQ(at(progId + L"\\CLSID:"), key.substr(key.find(L'{')));
  const std::wstring library = at(key + L"\\TypeLib:");
  EXPECT_EQ(at(L"TypeLib\\" + library + L"\\2.0\\0\\win" + std::to_wstring(sizeof(void*) * 8) + L":"), ServerPath());
}

TEST_F(Registration, WritesBothClassesAndTheTypeLibraryForAllUsers) {
  ASSERT_EQ(server.RegisterServer(), S_OK);
  const RegistryImage written = Written(HKEY_LOCAL_MACHINE);
  ExpectClass(written, kClass, L"OrvexMapDialogs2.CCommonMapDialogs");
  ExpectClass(written, kProgressClass, L"OrvexMapDialogs2.CCommonProgressDialog");
  EXPECT_EQ(Written(HKEY_CURRENT_USER), RegistryImage());
}

TEST_F(Registration, LetsHostsFindTheClassesAndTheTypeLibraryByName) {
  ASSERT_EQ(server.RegisterServer(), S_OK);
  CLSID found;
  ASSERT_EQ(CLSIDFromProgID(L"OrvexMapDialogs2.CCommonMapDialogs", &found), S_OK);
  ComPtr<::_CCommonMapDialogs> dialogs;
  ASSERT_EQ(CoCreateInstance(found, nullptr, CLSCTX_INPROC_SERVER, __uuidof(::_CCommonMapDialogs), dialogs.OutVoid()),
            S_OK);
  ComPtr<ITypeLib> library;
  EXPECT_EQ(LoadRegTypeLib(LIBID_OrvexMapDialogs2, 2, 0, 0, library.Out()), S_OK);
  dialogs.Reset();
  CoFreeUnusedLibraries();
}

TEST_F(Registration, LeavesNothingBehindWhenItIsTakenBack) {
  ASSERT_EQ(server.RegisterServer(), S_OK);
  ASSERT_EQ(server.UnregisterServer(), S_OK);
  EXPECT_EQ(ClassKeys(HKEY_LOCAL_MACHINE), allUsers);
  EXPECT_EQ(Written(HKEY_CURRENT_USER), RegistryImage());
}

TEST_F(Registration, MayBeRepeatedAndTakenBackTwice) {
  ASSERT_EQ(server.RegisterServer(), S_OK);
  const RegistryKeys once = ClassKeys(HKEY_LOCAL_MACHINE);
  EXPECT_EQ(server.RegisterServer(), S_OK);
  EXPECT_EQ(ClassKeys(HKEY_LOCAL_MACHINE), once);
  EXPECT_EQ(server.UnregisterServer(), S_OK);
  EXPECT_EQ(server.UnregisterServer(), S_OK);
}

TEST_F(Registration, CanBeForTheUserAlone) {
  ASSERT_EQ(server.Install(true, L"user"), S_OK);
  EXPECT_EQ(ClassKeys(HKEY_LOCAL_MACHINE), allUsers);
  ExpectClass(Written(HKEY_CURRENT_USER), kClass, L"OrvexMapDialogs2.CCommonMapDialogs");
  ASSERT_EQ(server.Install(false, L"user"), S_OK);
  EXPECT_EQ(ClassKeys(HKEY_CURRENT_USER), user);
}

TEST_F(Registration, TakesTheWordForTheUserInLettersOfAnyCase) {
  for (const wchar_t* const word : {L"User", L"USER", L"user"}) {
    EXPECT_EQ(server.Install(true, word), S_OK);
    EXPECT_EQ(server.Install(false, word), S_OK);
  }
}

TEST_F(Registration, RefusesToInstallForAnythingElse) {
  EXPECT_EQ(server.Install(true, L"everybody"), E_INVALIDARG);
  EXPECT_EQ(ClassKeys(HKEY_LOCAL_MACHINE), allUsers);
  EXPECT_EQ(server.Install(true, nullptr), S_OK);
  EXPECT_TRUE(ClassKeys(HKEY_LOCAL_MACHINE).contains(kClass));
}

/// The number that the system gives to the next key. It gives the lowest that is free: a key that stays open takes one.
HKEY NextKey() {
  win32::RegistryKey key;
  EXPECT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, L"Software", 0, KEY_READ, key.Out()), ERROR_SUCCESS);
  return key.Get();
}

TEST_F(Registration, ThatFailsOnTheWayTakesBackWhatItHasWrittenAndLeavesNoKeyOpen) {
  const std::wstring path = std::wstring(L"Software\\Classes\\") + kClass;
  const auto fail = [&] {
    win32::RegistryKey session;
    // Nothing lasting can be written below a key that goes with the session.
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr,
                              session.Out(), nullptr),
              ERROR_SUCCESS);
    EXPECT_THROW(Register(RegisteredFor::User), RunTimeError);
  };
  // What the system opens once and keeps is no leak.
  fail();
  const HKEY before = NextKey();
  fail();
  EXPECT_EQ(NextKey(), before);
  EXPECT_EQ(ClassKeys(HKEY_CURRENT_USER), user);
}

/// What the registry does where users may only write their own part.
void WriteAsUser(RegisteredFor whom) {
  if (whom == RegisteredFor::AllUsers) Check(HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED), "Software\\Classes");
}

TEST(RegistrationRights, TheUserAloneIsServedWhereTheMachineMayNotBeWritten) {
  std::vector<RegisteredFor> served;
  EXPECT_EQ(ForAllOrUser([&](RegisteredFor whom) {
              WriteAsUser(whom);
              served.push_back(whom);
            }),
            S_OK);
  EXPECT_EQ(served, std::vector{RegisteredFor::User});
}

TEST(RegistrationRights, OtherErrorsAreNoReasonToServeTheUserAlone) {
  int calls = 0;
  const auto action = [&](RegisteredFor) {
    ++calls;
    Check(TYPE_E_CANTLOADLIBRARY, "The type library");
  };
  EXPECT_EQ(ForAllOrUser(action), TYPE_E_CANTLOADLIBRARY);
  EXPECT_EQ(calls, 1);
}

/// A copy of the DLL in a folder of its own.
class Copy {
 public:
  Copy() {
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    mFolder = std::filesystem::path(folder) / (L"orx\x00E4\x0416" + std::to_wstring(GetCurrentProcessId()));
    std::filesystem::create_directories(mFolder);
    CopyFileW(ServerPath().c_str(), Path().c_str(), FALSE);
  }
  ~Copy() {
    std::error_code ignored;
    std::filesystem::remove_all(mFolder, ignored);
  }
  std::wstring Path() const { return (mFolder / L"orxMDlg.dll").wstring(); }

 private:
  std::filesystem::path mFolder;
};

TEST_F(Registration, OfADllThatWasMovedFailsInTheHostAndIsMendedByRegisteringAgain) {
  {
    const Copy copy;
    const Server copied(copy.Path());
    ASSERT_EQ(copied.RegisterServer(), S_OK);
    EXPECT_EQ(Written(HKEY_LOCAL_MACHINE)[std::wstring(kClass) + L"\\InprocServer32:"], copy.Path());
  }
  ComPtr<IUnknown> made;
  const CLSID id = __uuidof(::CCommonMapDialogs);
  const auto create = [&] { return CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, made.OutVoid()); };
  EXPECT_TRUE(FAILED(create()));
  EXPECT_FALSE(made);
  ASSERT_EQ(server.RegisterServer(), S_OK);
  ASSERT_EQ(create(), S_OK);
  made.Reset();
  CoFreeUnusedLibraries();
}

TEST_F(Registration, OfADllWhoseTypeLibraryIsBrokenFailsAndWritesNothing) {
  const Copy copy;
  const HANDLE update = BeginUpdateResourceW(copy.Path().c_str(), FALSE);
  char broken[] = "no type library";
  ASSERT_TRUE(UpdateResourceW(update, L"TYPELIB", MAKEINTRESOURCEW(1), 0, broken, sizeof(broken)));
  ASSERT_TRUE(EndUpdateResourceW(update, FALSE));
  const Server copied(copy.Path());
  EXPECT_TRUE(FAILED(copied.RegisterServer()));
  EXPECT_EQ(ClassKeys(HKEY_LOCAL_MACHINE), allUsers);
}

}  // namespace
}  // namespace orx::com::test
