#include "tests/com/hosts/Program.h"

#include <dlgs.h>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <vector>

namespace orx::com::test {
namespace {

constexpr std::chrono::seconds kPatience{30};

bool Await(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    Sleep(5);
  }
  return true;
}

std::wstring DesktopName() {
  wchar_t name[100] = {};
  GetUserObjectInformationW(GetThreadDesktop(GetCurrentThreadId()), UOI_NAME, name, sizeof(name), nullptr);
  return name;
}

struct WindowSearch {
  DWORD Process;
  std::wstring Title;
  HWND Found = nullptr;
};

BOOL CALLBACK SeeWindow(HWND window, LPARAM search) {
  auto& wanted = *reinterpret_cast<WindowSearch*>(search);
  DWORD process = 0;
  wchar_t title[200] = {};
  GetWindowThreadProcessId(window, &process);
  GetWindowTextW(window, title, 200);
  if (process == wanted.Process && IsWindowVisible(window) && title == wanted.Title) wanted.Found = window;
  return !wanted.Found;
}

struct ControlSearch {
  std::wstring Name;
  HWND Found = nullptr;
};

BOOL CALLBACK SeeControl(HWND window, LPARAM search) {
  auto& wanted = *reinterpret_cast<ControlSearch*>(search);
  wchar_t name[200] = {};
  const auto atom = static_cast<ATOM>(reinterpret_cast<UINT_PTR>(GetPropW(window, L"ControlName")));
  if (atom && GlobalGetAtomNameW(atom, name, 200) && name == wanted.Name) wanted.Found = window;
  return !wanted.Found;
}

BOOL CALLBACK SeeNameField(HWND window, LPARAM found) {
  const int id = GetDlgCtrlID(window);
  if (id != cmb13 && id != edt1) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

}  // namespace

Program::Program(const std::wstring& commandLine) {
  SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
  HANDLE from = nullptr;
  HANDLE into = nullptr;
  CreatePipe(&from, &into, &inherited, 0);
  SetHandleInformation(from, HANDLE_FLAG_INHERIT, 0);
  std::wstring desktop = DesktopName();
  STARTUPINFOW start = {};
  start.cb = sizeof(start);
  start.lpDesktop = desktop.data();
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = into;
  start.hStdError = into;
  std::wstring line = commandLine;
  EXPECT_TRUE(CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr, nullptr, &start,
                             &mProcess))
      << "error " << GetLastError();
  CloseHandle(into);
  mReader = std::thread([this, from] { Collect(from); });
}

Program::~Program() {
  if (!HasEnded()) TerminateProcess(mProcess.hProcess, 1);
  mReader.join();
  CloseHandle(mProcess.hThread);
  CloseHandle(mProcess.hProcess);
}

void Program::Collect(HANDLE from) {
  char part[1000];
  DWORD size = 0;
  while (ReadFile(from, part, sizeof(part), &size, nullptr) && size > 0) mOutput.append(part, size);
  CloseHandle(from);
}

HWND Program::WaitForWindow(const std::wstring& title) const {
  WindowSearch search = {mProcess.dwProcessId, title};
  Await([&] {
    EnumDesktopWindows(GetThreadDesktop(GetCurrentThreadId()), SeeWindow, reinterpret_cast<LPARAM>(&search));
    return search.Found || HasEnded();
  });
  return search.Found;
}

bool Program::WaitFor(const std::function<bool()>& isSo) const {
  bool came = false;
  Await([&] {
    came = isSo();
    return came || HasEnded();
  });
  return came;
}

int Program::Wait() {
  const auto patience = static_cast<DWORD>(std::chrono::milliseconds(kPatience).count());
  if (WaitForSingleObject(mProcess.hProcess, patience) != WAIT_OBJECT_0) return -1;
  if (mReader.joinable()) mReader.join();
  mReader = std::thread([] {});
  DWORD code = 0;
  GetExitCodeProcess(mProcess.hProcess, &code);
  return static_cast<int>(code);
}

HWND ControlNamed(HWND dialog, const std::wstring& name) {
  ControlSearch search = {name};
  EnumChildWindows(dialog, SeeControl, reinterpret_cast<LPARAM>(&search));
  return search.Found;
}

void EnterFileName(HWND dialog, const std::wstring& name) {
  HWND field = nullptr;
  EnumChildWindows(dialog, SeeNameField, reinterpret_cast<LPARAM>(&field));
  ASSERT_TRUE(field);
  SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
  SendMessageW(dialog, WM_COMMAND, IDOK, 0);
}

void Click(HWND button) {
  ASSERT_TRUE(button);
  PostMessageW(button, BM_CLICK, 0, 0);
}

}  // namespace orx::com::test
