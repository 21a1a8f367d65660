// Settings in the registry that somebody else has written there, and the call of the help engine.
#include "tests/win32/Win32Test.h"

namespace orx::test {
namespace {

class Win32Registry : public Win32FormsTest {
 protected:
  Win32Registry() {
    RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\OrxTest\\Dialog", 0, nullptr, 0,
                    KEY_ALL_ACCESS, nullptr, &key, nullptr);
  }
  ~Win32Registry() override {
    RegCloseKey(key);
    desktop().Settings().Forget("OrxTest");
  }

  void Store(DWORD type, const void* data, DWORD size) const {
    RegSetValueExW(key, L"Left", 0, type, static_cast<const BYTE*>(data), size);
  }
  std::optional<std::string> Read() { return desktop().Settings().Read({"OrxTest", "Dialog", "Left"}); }

  HKEY key = nullptr;
};

TEST_F(Win32Registry, SettingsStandWhereBasicProgramsKeepTheirs) {
  desktop().Settings().Write({"OrxTest", "Dialog", "Left"}, "1200");
  wchar_t text[10] = {};
  DWORD size = sizeof(text);
  ASSERT_EQ(ERROR_SUCCESS, RegGetValueW(key, nullptr, L"Left", RRF_RT_REG_SZ, nullptr, text, &size));
  EXPECT_STREQ(L"1200", text);
}

TEST_F(Win32Registry, NumbersAreGivenAsText) {
  const DWORD number = static_cast<DWORD>(-150);
  Store(REG_DWORD, &number, sizeof(number));
  EXPECT_EQ("-150", Read());
}

TEST_F(Win32Registry, WhatIsNeitherTextNorNumberIsNoSetting) {
  const BYTE bytes[] = {1, 2, 3};
  Store(REG_BINARY, bytes, sizeof(bytes));
  EXPECT_EQ(std::nullopt, Read());
  Store(REG_MULTI_SZ, L"a\0b\0", 10);
  EXPECT_EQ(std::nullopt, Read());
  Store(REG_DWORD, bytes, sizeof(bytes));
  EXPECT_EQ(std::nullopt, Read());
}

TEST_F(Win32Registry, TextsWithoutAnEndAndWithHalfACharacterAreRead) {
  Store(REG_SZ, L"12", 4);
  EXPECT_EQ("12", Read());
  Store(REG_SZ, L"12", 5);
  EXPECT_EQ("12", Read());
  Store(REG_SZ, L"", 0);
  EXPECT_EQ("", Read());
}

TEST_F(Win32Registry, LongTextsAreReadWhole) {
  const std::wstring text(100'000, L'x');
  Store(REG_SZ, text.c_str(), static_cast<DWORD>(text.size() * sizeof(wchar_t)));
  EXPECT_EQ(std::string(100'000, 'x'), Read());
}

/// Takes the place of the platform's help program, which is asked by a message.
class HelpProgram {
 public:
  HelpProgram() {
    theProgram = this;
    WNDCLASSW made = {};
    made.lpfnWndProc = &HelpProgram::Proc;
    made.lpszClassName = L"MS_WINHELP";
    RegisterClassW(&made);
    mWindow = CreateWindowW(L"MS_WINHELP", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
  }
  ~HelpProgram() {
    DestroyWindow(mWindow);
    UnregisterClassW(L"MS_WINHELP", nullptr);
  }
  HelpProgram(const HelpProgram&) = delete;
  HelpProgram& operator=(const HelpProgram&) = delete;

  HWND Asker = nullptr;
  std::string Request;

 private:
  static LRESULT CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_COPYDATA) return DefWindowProcW(window, message, wParam, lParam);
    const auto& data = *reinterpret_cast<const COPYDATASTRUCT*>(lParam);
    theProgram->Asker = reinterpret_cast<HWND>(wParam);
    theProgram->Request.assign(static_cast<const char*>(data.lpData), data.cbData);
    return TRUE;
  }

  static inline HelpProgram* theProgram = nullptr;
  HWND mWindow = nullptr;
};

TEST_F(Win32Registry, TheHelpEngineOfThePlatformIsAskedForTheFile) {
  const HelpProgram program;
  const HostWindow host;
  desktop().Hook(nullptr);
  desktop().ShowHelp({reinterpret_cast<std::uintptr_t>(host.Get()), "Maps.hlp", kHelpFinder, 0});
  EXPECT_EQ(host.Get(), program.Asker);
  EXPECT_NE(std::string::npos, program.Request.find("Maps.hlp"));
}

}  // namespace
}  // namespace orx::test
