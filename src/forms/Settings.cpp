#include "forms/Settings.h"

#include <algorithm>

#include "forms/CheckedField.h"
#include "forms/ErrorText.h"

namespace orx {

Setting::Setting(Settings& list) {
  list.Add(*this);
}

std::string Setting::Name() const {
  return Field() ? FieldName(*Field()) : std::string();
}

void Setting::Lock(std::optional<std::string> reason) {
  Forget();
  Show();
  mFault = std::move(reason);
}

void KeepFault(Setting& setting, const std::function<void()>& step) noexcept {
  try {
    step();
  } catch (...) {
    setting.Fault(ErrorText(std::current_exception()));
  }
}

void Settings::Run(Setting& setting, const std::function<void()>& step) const {
  setting.Fault(std::nullopt);
  if (mStep) return mStep(setting, step);
  step();
}

void Settings::Read() {
  Fetch();
  Show();
}

void Settings::Read(Setting& setting) {
  Run(setting, [&] { setting.Fetch(); });
  setting.Show();
}

void Settings::Fetch() {
  for (Setting* const setting : mReadOrder.empty() ? mSettings : mReadOrder) Run(*setting, [&] { setting->Fetch(); });
}

void Settings::Show() {
  for (Setting* const setting : mSettings) setting->Show();
}

void Settings::Forget() {
  for (Setting* const setting : mSettings) {
    setting->Forget();
    setting->Fault(std::nullopt);
  }
}

bool Settings::Check() {
  return std::ranges::all_of(mSettings, [](Setting* setting) { return setting->IsLocked() || setting->Check(); });
}

void Settings::Write() {
  for (Setting* const setting : mSettings) Write(*setting);
}

void Settings::Write(Setting& setting) {
  if (setting.IsLocked()) return;
  setting.RequireEntry();
  bool isWritten = false;
  Run(setting, [&] { isWritten = setting.Write(mWrite); });
  if (isWritten) Written.Raise(setting);
}

}  // namespace orx
