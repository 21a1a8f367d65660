// Registration: what it writes, for whom, and that it can be undone.
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

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

/// The registry's keys of classes as all users have them; the other bitness may see others.
class AllClasses {
 public:
  explicit AllClasses(REGSAM view = 0) : mView(view) {}

  void Write(const std::wstring& key, const wchar_t* name, const std::wstring& text) const {
    win32::RegistryKey made;
    ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, PathOfKey(key).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS | mView,
                              nullptr, made.Out(), nullptr),
              ERROR_SUCCESS);
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    ASSERT_EQ(RegSetKeyValueW(made.Get(), nullptr, name, REG_SZ, text.c_str(), bytes), ERROR_SUCCESS);
  }
  /// "missing" when there is no such text.
  std::wstring Text(const std::wstring& key, const wchar_t* name = nullptr) const {
    win32::RegistryKey opened;
    wchar_t text[1000] = L"missing";
    DWORD bytes = sizeof(text);
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, PathOfKey(key).c_str(), 0, KEY_READ | mView, opened.Out()) == ERROR_SUCCESS)
      RegGetValueW(opened.Get(), nullptr, name, RRF_RT_REG_SZ, nullptr, text, &bytes);
    return text;
  }
  void Remove(const std::wstring& folder, const std::wstring& key) const {
    win32::RegistryKey opened;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, PathOfKey(folder).c_str(), 0, KEY_ALL_ACCESS | mView, opened.Out()) ==
        ERROR_SUCCESS)
      RegDeleteTreeW(opened.Get(), key.c_str());
  }

 private:
  static std::wstring PathOfKey(const std::wstring& key) { return L"Software\\Classes\\" + key; }

  REGSAM mView;
};

constexpr bool kIs64Bit = sizeof(void*) == 8;
constexpr wchar_t kLibrary[] = L"TypeLib\\{47EAA099-2CB6-416D-86DC-283CF0480FF9}";
constexpr wchar_t kLayer[] = L"Interface\\{C0290103-855D-4F55-99EC-8712E8E3574F}";
constexpr wchar_t kProgId[] = L"OrvexMapDialogs2.CCommonMapDialogs";
constexpr wchar_t kOtherPath[] = L"C:\\other\\orxMDlg.dll";

/// The component of the other bitness, as far as it shares keys with this one.
class OtherBitness {
 public:
  OtherBitness() {
    mView.Write(Class(), nullptr, kOtherPath);
    mView.Write(kProgId + std::wstring(L"\\CLSID"), nullptr, std::wstring(kClass).substr(6));
    mView.Write(Library(), nullptr, kOtherPath);
  }
  ~OtherBitness() { Remove(); }
  void Remove() const {
    mView.Remove(L"CLSID", std::wstring(kClass).substr(6));
    mView.Remove(kLibrary, kIs64Bit ? L"2.0\\0\\win32" : L"2.0\\0\\win64");
  }
  void ExpectWhole() const {
    EXPECT_EQ(mView.Text(Class()), kOtherPath);
    EXPECT_EQ(mView.Text(kProgId + std::wstring(L"\\CLSID")), std::wstring(kClass).substr(6));
    EXPECT_EQ(mView.Text(Library()), kOtherPath);
  }

 private:
  static std::wstring Class() { return kClass + std::wstring(L"\\InprocServer32"); }
  static std::wstring Library() { return kLibrary + std::wstring(kIs64Bit ? L"\\2.0\\0\\win32" : L"\\2.0\\0\\win64"); }

  const AllClasses mView{kIs64Bit ? KEY_WOW64_32KEY : KEY_WOW64_64KEY};
};

TEST_F(Registration, TakenBackLeavesTheOtherBitnessWhateverTheOrder) {
  const std::wstring own = kLibrary + std::wstring(kIs64Bit ? L"\\2.0\\0\\win64" : L"\\2.0\\0\\win32");
  const AllClasses classes;
  BOOL isBeside64Bit = FALSE;
  IsWow64Process(GetCurrentProcess(), &isBeside64Bit);
  for (const bool isFirst : {true, false}) {
    // On a system with one bitness the keys of classes are shared too, and the last one has them.
    if (isFirst && !kIs64Bit && !isBeside64Bit) continue;
    std::optional<OtherBitness> other;
    if (isFirst) other.emplace();
    ASSERT_EQ(server.RegisterServer(), S_OK);
    if (!isFirst) other.emplace();
    ASSERT_EQ(server.UnregisterServer(), S_OK);
    other->ExpectWhole();
    EXPECT_EQ(classes.Text(own), L"missing");
    EXPECT_EQ(classes.Text(kLayer), L"ILayer") << "Programs of both kinds pass it to each other.";
    other->Remove();
    // The last of them takes the rest.
    ASSERT_EQ(server.UnregisterServer(), S_OK);
    EXPECT_EQ(ClassKeys(HKEY_LOCAL_MACHINE), allUsers);
  }
}

TEST_F(Registration, TakenBackLeavesAnotherFileThatHasBeenRegisteredSince) {
  const Copy copy;
  const Server copied(copy.Path());
  ASSERT_EQ(server.RegisterServer(), S_OK);
  ASSERT_EQ(copied.RegisterServer(), S_OK);
  const RegistryImage whole = Written(HKEY_LOCAL_MACHINE);
  ASSERT_EQ(server.UnregisterServer(), S_OK);
  EXPECT_EQ(Written(HKEY_LOCAL_MACHINE), whole);
  ASSERT_EQ(copied.UnregisterServer(), S_OK);
  EXPECT_EQ(ClassKeys(HKEY_LOCAL_MACHINE), allUsers);
}

TEST_F(Registration, TakenBackLeavesOtherVersions) {
  const AllClasses classes;
  const std::wstring later = kLibrary + std::wstring(L"\\3.0\\0\\win64");
  ASSERT_EQ(server.RegisterServer(), S_OK);
  classes.Write(later, nullptr, kOtherPath);
  classes.Write(kLayer + std::wstring(L"\\TypeLib"), L"Version", L"3.0");
  classes.Write(kProgId + std::wstring(L"\\CLSID"), nullptr, L"{00000000-0000-0000-0000-000000000003}");
  ASSERT_EQ(server.UnregisterServer(), S_OK);
  EXPECT_EQ(classes.Text(later), kOtherPath);
  EXPECT_EQ(classes.Text(kLayer), L"ILayer");
  EXPECT_EQ(classes.Text(kProgId), L"Dialogs for maps, layers and data");
  EXPECT_EQ(classes.Text(kLibrary + std::wstring(L"\\2.0")), L"missing");
  classes.Remove(L"TypeLib", std::wstring(kLibrary).substr(8));
  classes.Remove(L"Interface", std::wstring(kLayer).substr(10));
  classes.Remove(L"", kProgId);
}

}  // namespace
}  // namespace orx::com::test
