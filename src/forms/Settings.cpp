#include "forms/Settings.h"

#include <algorithm>

#include "forms/CheckedField.h"

namespace orx {

Setting::Setting(Settings& list) {
  list.Add(*this);
}

std::string Setting::Name() const {
  return Field() ? FieldName(*Field()) : std::string();
}

void Settings::Run(Setting& setting, const std::function<void()>& step) const {
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
  for (Setting* const setting : mSettings) setting->Forget();
}

bool Settings::Check() {
  return std::ranges::all_of(mSettings, [](Setting* setting) { return setting->Check(); });
}

void Settings::Write() {
  for (Setting* const setting : mSettings) Write(*setting);
}

void Settings::Write(Setting& setting) {
  setting.RequireEntry();
  Run(setting, [&] {
    if (setting.Write(mWrite)) Written.Raise(setting);
  });
}

}  // namespace orx
