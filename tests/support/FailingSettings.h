// A settings store on a disk that is full, in a folder that is not there, or gone altogether.
#pragma once

#include <stdexcept>

#include "forms/SettingsStore.h"

namespace orx::test {

/// Throws in every call, and counts them.
class FailingSettings final : public SettingsStore {
 public:
  explicit FailingSettings(int& calls) : mCalls(calls) {}

  std::optional<std::string> Read(const SettingName&) const override { Fail(); }
  void Write(const SettingName&, const std::string&) override { Fail(); }
  void Forget(const std::string&) override { Fail(); }

 private:
  [[noreturn]] void Fail() const {
    ++mCalls;
    throw std::runtime_error("no settings");
  }

  int& mCalls;
};

}  // namespace orx::test
