// Programs that the tests start as a user does, and what they show.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <thread>

namespace orx::com::test {

/// A program on the desktop of the tests. What it prints is collected; it is ended when it outlives its Program.
class Program {
 public:
  /// Starts a command line.
  explicit Program(const std::wstring& commandLine);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Waits for a visible window of the program with that title and gives it; null when the program ends before or does
  /// not show one in time.
  HWND WaitForWindow(const std::wstring& title) const;
  /// Waits until something has come about; false when it does not in time, or the program ends before.
  bool WaitFor(const std::function<bool()>& isSo) const;
  /// Waits for the end; the exit code, or -1 when it takes too long.
  int Wait();
  /// What was printed; complete after Wait.
  const std::string& Output() const { return mOutput; }

 private:
  bool HasEnded() const { return WaitForSingleObject(mProcess.hProcess, 0) == WAIT_OBJECT_0; }
  void Collect(HANDLE from);

  PROCESS_INFORMATION mProcess = {};
  std::string mOutput;
  std::thread mReader;
};

/// The control of a dialog, which may be another program's, that carries the name in the property ControlName.
HWND ControlNamed(HWND dialog, const std::wstring& name);
/// Types into the name field of the platform's file dialog and presses its Open.
void EnterFileName(HWND dialog, const std::wstring& name);
/// Clicks a button, as automation tools do.
void Click(HWND button);

}  // namespace orx::com::test
