// What a settings store may hold: the dialogs that keep their placement open and close over any texts, and the store in
// a file gives back under any name what was kept there.
#include <QSettings>
#include <memory>

#include "desktops/headless/HeadlessDesktop.h"
#include "desktops/qt/FileSettings.h"
#include "forms/Form.h"
#include "maplibrary/model/Map.h"
#include "pages/PageFactory.h"
#include "service/CCommonMapDialogs.h"
#include "tests/fuzz/Fuzz.h"

using orx::fuzz::Require;

namespace {

std::string TextFrom(FuzzedDataProvider& data) {
  if (data.ConsumeBool()) return data.ConsumeRandomLengthString(30);
  return data.PickValueInArray(
      {"-1", "0", "300", "2147483647", "-2147483648", "1E300", "nan", "inf", "&H10", "12,5", "1e5"});
}

void OpenDialogs(FuzzedDataProvider& data) {
  orx::headless::HeadlessDesktop desktop;
  orx::pages::PageFactory pages;
  orx::maplibrary::Map map;
  orx::CCommonMapDialogs service(desktop, pages);
  service.RegistryKey("Host");
  for (const char* const section : {"DataDialog", "MapSettings"})
    for (const char* const name : {"Left", "Top", "Height"})
      desktop.Settings().Write({"Host", section, name}, TextFrom(data));
  service.ShowDataProperties(&map, "", orx::ShowMode::Modeless);
  service.Show(&map, 0, "", orx::ShowMode::Modeless);
  Require(desktop.OpenForms().size() == 2);
  for (const auto& form : desktop.OpenForms()) Require(form->Width() > 0 && form->Height() > 0);
}

/// A name of letters that have a meaning in the file, none of which may make another name or level of it.
std::string NameFrom(FuzzedDataProvider& data) {
  std::string name;
  do
    name += data.PickValueInArray(
        {"a", "B", "/", "%", "=", "[", "]", ";", "\xC3\xA4", " ", ".", ",", "\"", "%2F", "@", "#"});
  while (name.size() < 12 && data.ConsumeBool());
  return name;
}

void KeepAndRead(FuzzedDataProvider& data) {
  orx::qt::FileSettings store;
  const orx::SettingName one{NameFrom(data), NameFrom(data), NameFrom(data)};
  const orx::SettingName other{NameFrom(data), NameFrom(data), NameFrom(data)};
  const std::string text = NameFrom(data);
  store.Write(one, text);
  if (!(one == other)) store.Write(other, "another");
  Require(store.Read(one) == text);
  store.Forget(one.Key);
  Require(!store.Read(one));
  store.Forget(other.Key);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static const orx::fuzz::Folder folder;
  static const bool isOurs = [] {
    const std::string path = folder.Write("settings", "");
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, QString::fromStdString(path + "-of-the-user"));
    return true;
  }();
  FuzzedDataProvider data(bytes, size);
  if (data.ConsumeIntegralInRange(0, 3) == 0 && isOurs) {
    KeepAndRead(data);
  } else {
    OpenDialogs(data);
  }
  return 0;
}
