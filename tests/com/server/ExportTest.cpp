// The DLL from outside: what it exports, imports and says of itself.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tests/com/support/Server.h"
#include "tests/com/support/Signatures.h"

namespace orx::com::test {
namespace {

/// Tables of a module that is loaded.
class Image {
 public:
  explicit Image(HMODULE module) : mBase(reinterpret_cast<const BYTE*>(module)) {
    const auto* const start = At<IMAGE_DOS_HEADER>(0);
    mHeaders = At<IMAGE_NT_HEADERS>(static_cast<DWORD>(start->e_lfanew));
  }

  std::vector<std::string> Exports() const {
    const auto* const table = At<IMAGE_EXPORT_DIRECTORY>(Directory(IMAGE_DIRECTORY_ENTRY_EXPORT));
    const auto* const names = At<DWORD>(table->AddressOfNames);
    std::vector<std::string> found;
    for (DWORD i = 0; i < table->NumberOfNames; ++i) found.emplace_back(At<char>(names[i]));
    EXPECT_EQ(table->NumberOfFunctions, table->NumberOfNames);
    return found;
  }

  std::set<std::string> Imports() const {
    std::set<std::string> found;
    for (const auto* one = At<IMAGE_IMPORT_DESCRIPTOR>(Directory(IMAGE_DIRECTORY_ENTRY_IMPORT)); one->Name; ++one) {
      std::string name = At<char>(one->Name);
      std::ranges::transform(name, name.begin(), [](unsigned char letter) { return std::tolower(letter); });
      found.insert(name);
    }
    return found;
  }

 private:
  template <class Part>
  const Part* At(DWORD offset) const {
    return reinterpret_cast<const Part*>(mBase + offset);
  }
  DWORD Directory(int index) const { return mHeaders->OptionalHeader.DataDirectory[index].VirtualAddress; }

  const BYTE* mBase;
  const IMAGE_NT_HEADERS* mHeaders;
};

TEST(Exports, AreTheEntryPointsAndNothingElse) {
  const Server server;
  EXPECT_EQ(Image(server.Module()).Exports(),
            (std::vector<std::string>{"DllCanUnloadNow", "DllGetClassObject", "DllInstall", "DllRegisterServer",
                                      "DllUnregisterServer"}));
}

TEST(Exports, TheDllNeedsNothingThatDoesNotComeWithTheSystem) {
  const Server server;
  for (const std::string& name : Image(server.Module()).Imports()) {
    const bool isOfCompiler = name.starts_with("libstdc++") || name.starts_with("libgcc") || name.starts_with("libwin");
    EXPECT_FALSE(isOfCompiler) << name;
  }
}

TEST(Exports, TheDllCarriesTheTypeLibrary) {
  ComPtr<ITypeLib> library;
  ASSERT_EQ(LoadTypeLibEx(ServerPath().c_str(), REGKIND_NONE, library.Out()), S_OK);
  EXPECT_TRUE(FindType(*library.Get(), "CCommonMapDialogs"));
}

TEST(Exports, TheDllTellsItsVersion) {
  std::vector<BYTE> data(GetFileVersionInfoSizeW(ServerPath().c_str(), nullptr));
  ASSERT_TRUE(GetFileVersionInfoW(ServerPath().c_str(), 0, static_cast<DWORD>(data.size()), data.data()));
  VS_FIXEDFILEINFO* fixed = nullptr;
  UINT size = 0;
  ASSERT_TRUE(VerQueryValueW(data.data(), L"\\", reinterpret_cast<void**>(&fixed), &size));
  EXPECT_EQ(fixed->dwFileVersionMS, 0x20000u);
  wchar_t* text = nullptr;
  ASSERT_TRUE(VerQueryValueW(data.data(), L"\\StringFileInfo\\040904b0\\FileDescription",
                             reinterpret_cast<void**>(&text), &size));
  EXPECT_EQ(Narrowed(text), "Orvex Map Dialogs 2");
}

TEST(Exports, TheDllCarriesTheManifestOfTheCommonControls) {
  const Server server;
  const HRSRC found = FindResourceW(server.Module(), MAKEINTRESOURCEW(2), MAKEINTRESOURCEW(24));
  ASSERT_TRUE(found);
  const std::string text(static_cast<const char*>(LockResource(LoadResource(server.Module(), found))),
                         SizeofResource(server.Module(), found));
  EXPECT_NE(text.find("Microsoft.Windows.Common-Controls"), std::string::npos);
}

}  // namespace
}  // namespace orx::com::test
