// The layer manager over a model map, with pages that record.
#pragma once

#include <utility>

#include "propertydialogs/frmMapSettings.h"
#include "tests/support/ModelMap.h"
#include "tests/support/PageHostTest.h"

namespace orx::test {

class LayerManager : public PageHostTest {
 protected:
  LayerManager() {
    map.IsMap = true;
    pages.NamesPages = true;
    pages.NameOf = [this](HostObject* object) { return NameOf(object); };
  }
  ~LayerManager() override { desktop().Settings().Forget(key); }

  std::string NameOf(HostObject* object) {
    if (object == &map) return "map";
    if (object == &layers) return "layers";
    auto* const layer = dynamic_cast<ModelMap*>(object);
    return layer ? layer->Name : "object";
  }

  void Fill(const std::vector<std::string>& names) {
    for (const std::string& name : names) map.Add(name);
  }

  using Action = std::function<void(frmMapSettings&)>;
  /// Shows the dialog through the service; the user acts, with an empty list of calls, and then cancels.
  std::int32_t Show(HostObject& object, const Action& act) {
    script.ExpectForm("frmMapSettings", [this, act](Form& form) {
      log.Calls.clear();
      script.Pointers.clear();
      act(dynamic_cast<frmMapSettings&>(form));
      if (form.Visible()) Press(form, "cmdCancel");
    });
    return service.Show(&object, mFlags);
  }
  std::int32_t Show(const Action& act) { return Show(map, act); }
  /// The same with a root row.
  std::int32_t ShowLayers(const Action& act) { return Show(layers, act); }

  /// The names of the objects that the four pages show; one name when it is the same for all.
  std::string Shown() {
    std::vector<std::string> names;
    for (const auto& [kind, page] : pages.Made) {
      const std::string name = page->Client() ? NameOf(page->Client()) : "none";
      if (names.empty() || names.back() != name) names.push_back(name);
    }
    std::string all;
    for (const std::string& name : names) all += (all.empty() ? "" : " | ") + name;
    return all;
  }
  /// Selects a row and tells which object the pages show.
  std::string AfterClick(frmMapSettings& form, int row) {
    user.Click(form.sftLayers, row);
    return Shown();
  }
  std::vector<std::string> Rows(frmMapSettings& form) { return user.SeeRows(form.sftLayers); }
  int Selected(frmMapSettings& form) { return user.See(form.sftLayers).Value; }
  std::vector<bool> Moving(frmMapSettings& form) {
    return {user.See(form.cmdUp).Enabled, user.See(form.cmdDown).Enabled, user.See(form.cmdRemove).Enabled};
  }
  RecordingPage& Page(PageKind kind) { return *pages.Made.at(kind); }
  /// Has the user edit the field of a page.
  void EditPage(frmMapSettings& form, PageKind kind, const std::string& text) {
    const std::map<PageKind, int> tabs = {{PageKind::Properties, 0},
                                          {PageKind::LabelProperties, 1},
                                          {PageKind::DataProperties, 2},
                                          {PageKind::Coordinates, 3}};
    user.SelectTab(form.ssTab, tabs.at(kind));
    user.Type(Page(kind).Field(), text);
  }

  // The store may be one for all programs of a user, and tests run side by side.
  const std::string key =
      std::string("Orvex Layer Manager ") + testing::UnitTest::GetInstance()->current_test_info()->name();
  ModelMap map{"whole map"};
  ModelLayers layers{map, "All layers"};
  std::int32_t mFlags = 0;
};

inline const std::vector<bool> kMayMove{true, true, true};
inline const std::vector<bool> kMayNotMove{false, false, false};
using Texts = std::vector<std::string>;

}  // namespace orx::test
