#include "tests/support/DialogCases.h"

#include "hostobjects/ErrorTrap.h"
#include "propertydialogs/frmMapSettings.h"
#include "service/modMain.h"

namespace orx::test {
namespace {

/// The layer manager without the service, so that an error that ends its loop comes out.
std::int32_t ShowManager(DialogHost& host) {
  const auto form = std::make_shared<frmMapSettings>(host.Screen, host.Pages);
  const Form::Act act(*form);
  ErrorTrap trap;
  trap.Step([&] { form->Language(&host.Language); });
  form->Take({&host.Layers, {}, &host.CallBack, 0}, trap);
  trap.Step([&] { form->Load(); });
  form->Show();
  std::int32_t result = 0;
  trap.Step([&] { result = form->IsDirty() ? -1 : 0; });
  form->UnloadQuietly();
  return result;
}

std::int32_t ShowList(DialogHost& host) {
  std::vector<std::int32_t> selected;
  return host.Service->ShowListSelection({{"one", "two"}, 0}, false, 1, "List", false, {}, selected) > 0 ? -1 : 0;
}

std::int32_t ShowCharacter(DialogHost& host) {
  std::string font = "Arial";
  std::int32_t character = 65;
  double rotation = 0;
  bool changed = false;
  return host.Service->ShowCharacterSelection(font, character, rotation, changed);
}

std::int32_t ShowClassify(DialogHost& host) {
  bool isDirty = false;
  return host.Service->ShowDataClassify(&host.Data, 0, 100, kMayChangeClassCount, isDirty);
}

template <bool (&Open)(Desktop&, HostObject*, bool&, ILanguage*) noexcept>
std::int32_t ShowGrid(DialogHost& host) {
  bool changed = false;
  return Open(host.Screen, &host.Grid, changed, &host.Language) ? -1 : 0;
}

std::int32_t ShowColors(DialogHost& host) {
  return modMain::ShowColorsDialog(host.Screen, &host.Language) ? -1 : 0;
}

template <bool (CCommonMapDialogs::*Member)(std::uintptr_t, bool, std::vector<std::string>&)>
std::int32_t ShowAdd(DialogHost& host) {
  std::vector<std::string> files;
  return ((*host.Service).*Member)(0, true, files) ? -1 : 0;
}

template <bool (CCommonMapDialogs::*Member)(const std::string&, std::string&, bool&)>
std::int32_t ShowMissing(DialogHost& host) {
  std::string found;
  bool cancelAll = false;
  return ((*host.Service).*Member)("/gone/a.shp", found, cancelAll) ? -1 : 0;
}

std::int32_t SetLanguage(DialogHost& host) {
  host.Service->Language(&host.Language);
  return 0;
}

}  // namespace

const std::vector<DialogCase>& DialogCases() {
  constexpr DialogRules kOwnPages{.MayLeaveHourglass = true};
  constexpr DialogRules kEmbeddedPages{.HasEmbeddedPages = true, .MayLeaveHourglass = true};
  constexpr DialogRules kThrows{.MayThrow = true};
  static const std::vector<DialogCase> kCases{
      {"Language", SetLanguage, kThrows},
      {"Show(map)", [](DialogHost& host) { return host.Service->Show(&host.Map, 0); }},
      {"layer manager", ShowManager},
      {"Show(layer)", [](DialogHost& host) { return host.Service->Show(&host.Layer, 0); }, kOwnPages},
      {"Show(layer), embedded pages", [](DialogHost& host) { return host.Service->Show(&host.Layer, 0); },
       kEmbeddedPages},
      {"ShowDataProperties", [](DialogHost& host) { return host.Service->ShowDataProperties(&host.Layer); }, kOwnPages},
      {"ShowDataProperties, embedded page",
       [](DialogHost& host) { return host.Service->ShowDataProperties(&host.Layer); }, kEmbeddedPages},
      {"ShowLegends", [](DialogHost& host) { return host.Service->ShowLegends(&host.Legends); }, kOwnPages},
      {"ShowLegends, embedded page", [](DialogHost& host) { return host.Service->ShowLegends(&host.Legends); },
       kEmbeddedPages},
      {"ShowProperties", [](DialogHost& host) { return host.Service->ShowProperties(&host.Layer); }, kOwnPages},
      {"ShowProperties, embedded page", [](DialogHost& host) { return host.Service->ShowProperties(&host.Layer); },
       kEmbeddedPages},
      {"ShowLabels, embedded page", [](DialogHost& host) { return host.Service->ShowLabels(&host.Layer); },
       kEmbeddedPages},
      {"ShowCoordinates, embedded page", [](DialogHost& host) { return host.Service->ShowCoordinates(&host.Ground); },
       kEmbeddedPages},
      {"ShowDataClassify", ShowClassify},
      {"ShowDataOptions", [](DialogHost& host) { return host.Service->ShowDataOptions(&host.Data); }},
      {"relief shading", ShowGrid<modMain::ShowShadeDialog>},
      {"contour lines", ShowGrid<modMain::ShowIsolineDialog>},
      {"colour schemes", ShowColors},
      {"ShowGeoReference", [](DialogHost& host) { return host.Service->ShowGeoReference(&host.Ground); }, kThrows},
      {"ShowCharacterSelection", ShowCharacter},
      {"ShowListSelection", ShowList, kThrows},
      {"ShowAddLayer", ShowAdd<&CCommonMapDialogs::ShowAddLayer>},
      {"ShowAddData", ShowAdd<&CCommonMapDialogs::ShowAddData>},
      {"Show(map), map library", [](DialogHost& host) { return host.Service->Show(host.Small.get(), 0); },
       kEmbeddedPages},
      {"Show(layer), map library", [](DialogHost& host) { return host.Service->Show(host.Small->Layer(1), 0); },
       kEmbeddedPages},
      {"ShowDataProperties, map library",
       [](DialogHost& host) { return host.Service->ShowDataProperties(host.Small->Layer(1)); }, kEmbeddedPages},
      {"ShowLegends, map library", [](DialogHost& host) { return host.Service->ShowLegends(host.Small.get()); },
       kEmbeddedPages},
      {"ShowCoordinates, map library", [](DialogHost& host) { return host.Service->ShowCoordinates(host.Small.get()); },
       kEmbeddedPages},
      {"ShowFileNotFound", ShowMissing<&CCommonMapDialogs::ShowFileNotFound>, kThrows},
      {"ShowDataFileNotFound", ShowMissing<&CCommonMapDialogs::ShowDataFileNotFound>, kThrows},
  };
  return kCases;
}

}  // namespace orx::test
