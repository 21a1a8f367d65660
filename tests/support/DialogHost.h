// A host of all dialogs: everything that they can be given, each object of which asks a plan of faults.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "maplibrary/model/Map.h"
#include "pages/PageFactory.h"
#include "service/CCommonMapDialogs.h"
#include "tests/georeference/GroundMap.h"
#include "tests/maplibrary/SmallGrids.h"
#include "tests/maplibrary/pages/RecordedObjects.h"
#include "tests/support/ModelMap.h"
#include "tests/support/RecordedData.h"
#include "tests/support/RecordedGrid.h"
#include "tests/support/RecordingHost.h"

namespace orx::test {

/// A factory of the host around other pages, which tells the form that asked last.
class WatchedPages final : public IPageFactory {
 public:
  WatchedPages(IPageFactory& pages, FaultPlan& plan) : mPages(pages), mPlan(plan) {}

  std::unique_ptr<PropertyPage> CreatePage(PageKind kind, const PageSite& site) override {
    Loading = site.Parent.ContainingForm().weak_from_this();
    return mPlan.Answers("CreatePage") ? mPages.CreatePage(kind, site) : nullptr;
  }

  std::weak_ptr<Form> Loading;

 private:
  IPageFactory& mPages;
  FaultPlan& mPlan;
};

struct DialogHost {
  DialogHost(Desktop& desktop, bool hasEmbeddedPages, FaultPlan& plan)
      : Screen(desktop), Pages(hasEmbeddedPages ? static_cast<IPageFactory&>(Embedded) : Own, plan) {
    Map.IsMap = true;
    Map.Faults = &plan;
    for (const char* const name : {"Roads", "Terrain"}) Map.Add(name);
    Map.AddTiled("Hills", 2);
    Layer.Behind = &Grid;
    Grid.Faults = &plan;
    Legends.Legends.emplace_back(Legends.Log, "Elevation");
    Service->CallBack(&CallBack);
    Service->Language(&Language);
    Log.Faults = Data.Log.Faults = Layer.Log.Faults = Legends.Log.Faults = Ground.Log.Faults = &plan;
    Shade.Log.Faults = Isolines.Log.Faults = &plan;
  }

  /// Takes away what is edited. The objects stay, since a dialog may be in the middle of a call to them.
  void Remove() {
    Layer.Behind = nullptr;
    if (GoneLegends.empty()) GoneLegends = std::move(Legends.Legends);
    Ground.HasExtent = false;
    if (Map.Layers.empty()) return;
    Map.Removed.push_back(std::move(Map.Layers.back()));
    Map.Layers.pop_back();
  }
  /// The setters of the objects that were called.
  std::vector<std::string> Writes() const {
    std::vector<std::string> writes = Layer.Log.Calls;
    for (const std::vector<std::string>& more :
         {Data.Writes(), Legends.Log.Calls, Ground.Writes(), WritesIn(Shade.Log), WritesIn(Isolines.Log)})
      writes.insert(writes.end(), more.begin(), more.end());
    return writes;
  }

  /// All that the dialogs can change, each value on a line of its own to the last bit.
  std::string State() const;

  Desktop& Screen;
  CallLog Log;
  RecordingPages Own{Log};
  pages::PageFactory Embedded;
  WatchedPages Pages;
  RecordingCallBack CallBack{Log};
  RecordingLanguage Language{Log};
  ModelMap Map{"whole map"};
  ModelLayers Layers{Map, "All layers"};
  RecordedData Data;
  RecordedShade Shade;
  RecordedIsolines Isolines;
  /// The data of a grid, with shading and contour lines.
  FaultyObject Grid{[this](const std::type_info& wanted) { return GridView(wanted); }};
  RecordedLayer Layer;
  RecordedLegends Legends;
  std::vector<RecordedLegend> GoneLegends;
  GroundMap Ground;
  /// A map of the library, which never fails.
  std::unique_ptr<maplibrary::Map> Small = maplibrary::SmallMap();
  std::unique_ptr<CCommonMapDialogs> Service = std::make_unique<CCommonMapDialogs>(Screen, Pages);

 private:
  HostInterface* GridView(const std::type_info& wanted);
};

}  // namespace orx::test
