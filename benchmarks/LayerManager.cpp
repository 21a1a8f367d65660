// The layer manager over a map of 100,000 layers with 1,000 tiles: opening it, selecting, moving and removing a layer,
// against a bare native tree with the same rows and against what the host's own calls cost.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <QTreeWidget>

#include "desktops/headless/HeadlessDesktop.h"
#include "desktops/qt/QtDesktop.h"
#include "hostobjects/IMap.h"
#include "pages/PageFactory.h"
#include "propertydialogs/frmMapSettings.h"
#include "service/CCommonMapDialogs.h"

namespace orx::bench {
namespace {

constexpr int kLayers = 100000;
constexpr int kTiledLayers = 500;
/// The row in the middle that the acts are done on.
constexpr int kMiddle = kLayers / 2;

/// A layer as plain as a host can make it.
class PlainLayer : public HostObject {
 public:
  explicit PlainLayer(std::string name) : mName(std::move(name)) {}

  const std::string& Name() const { return mName; }

 private:
  std::string mName;
};

/// A map, or a layer with tiles.
class PlainMap final : public PlainLayer, public IMap {
 public:
  using PlainLayer::PlainLayer;

  std::int32_t LayerCount() override { return static_cast<std::int32_t>(mLayers.size()); }
  std::string LayerName(std::int32_t index) override { return At(index)->Name(); }
  HostObject* Layer(std::int32_t index) override { return At(index).get(); }
  HostObject* AddLayer(const std::string& path, const std::string&) override { return &Add<PlainLayer>(path); }
  bool RemoveLayer(std::int32_t index) override {
    // Put back at the end, so that the map stays as large as it is.
    std::rotate(mLayers.begin() + (index - 1), mLayers.begin() + index, mLayers.end());
    return true;
  }
  bool MoveLayerUp(std::int32_t index) override {
    std::swap(At(index), At(index - 1));
    return true;
  }
  bool MoveLayerDown(std::int32_t index) override { return MoveLayerUp(index + 1); }
  IExtent* Extent() override { return nullptr; }

  template <class Layer>
  Layer& Add(std::string name) {
    auto layer = std::make_unique<Layer>(std::move(name));
    Layer& added = *layer;
    mLayers.push_back(std::move(layer));
    return added;
  }

 private:
  std::unique_ptr<PlainLayer>& At(std::int32_t index) { return mLayers.at(static_cast<std::size_t>(index) - 1); }

  std::vector<std::unique_ptr<PlainLayer>> mLayers;
};

std::unique_ptr<PlainMap> MakeLargeMap() {
  auto map = std::make_unique<PlainMap>("Large map");
  for (int i = 1; i <= kLayers; ++i) {
    const std::string name = "Layer of the large map " + std::to_string(i);
    if (i % (kLayers / kTiledLayers) != 0) {
      map->Add<PlainLayer>(name);
      continue;
    }
    auto& tiled = map->Add<PlainMap>(name);
    tiled.Add<PlainLayer>("First tile");
    tiled.Add<PlainLayer>("Second tile");
  }
  return map;
}

/// What the dialog asks a map to list it.
std::size_t AskAll(IMap& map) {
  std::size_t length = 0;
  const std::int32_t count = map.LayerCount();
  for (std::int32_t i = 1; i <= count; ++i) {
    length += map.LayerName(i).size();
    IMap* const tiles = QueryKind<IMap>(map.Layer(i));
    if (!tiles || tiles->LayerCount() < 2) continue;
    for (std::int32_t j = 1; j <= tiles->LayerCount(); ++j) length += tiles->LayerName(j).size();
  }
  return length;
}

void FillTree(QTreeWidget& tree, IMap& map) {
  tree.clear();
  QList<QTreeWidgetItem*> layers;
  for (std::int32_t i = 1; i <= map.LayerCount(); ++i) {
    layers.push_back(new QTreeWidgetItem(QStringList(QString::fromStdString(map.LayerName(i)))));
    IMap* const tiles = QueryKind<IMap>(map.Layer(i));
    for (std::int32_t j = 1; tiles && j <= tiles->LayerCount(); ++j)
      layers.back()->addChild(new QTreeWidgetItem(QStringList(QString::fromStdString(tiles->LayerName(j)))));
  }
  tree.addTopLevelItems(layers);
}

struct BareTree {
  BareTree() {
    Tree.setHeaderHidden(true);
    Tree.setUniformRowHeights(true);
    Tree.resize(160, 333);
    Dialog.resize(628, 378);
  }
  QDialog Dialog;
  QTreeWidget Tree{&Dialog};
};

/// An act on the open dialog, a layer in the middle of which is selected.
using Act = void (*)(frmMapSettings&);

/// Opens the dialog through the service and does what `inside` says while it is open.
class Opener final : public DesktopHook {
 public:
  explicit Opener(Desktop& desktop) : mDesktop(desktop), mDialogs(desktop, mPages) { desktop.Hook(this); }
  ~Opener() override { mDesktop.Hook(nullptr); }
  Opener(const Opener&) = delete;
  Opener& operator=(const Opener&) = delete;

  void Open(HostObject& map, std::function<void(frmMapSettings&)> inside) {
    mInside = std::move(inside);
    mDialogs.Show(&map, 0);
  }

 private:
  void ModalRunning(const Modal& modal) override {
    auto& form = dynamic_cast<frmMapSettings&>(*modal.ShownForm);
    if (mInside) mInside(form);
    form.UserClose();
  }

  Desktop& mDesktop;
  pages::PageFactory mPages;
  CCommonMapDialogs mDialogs;
  std::function<void(frmMapSettings&)> mInside;
};

template <class AnyDesktop>
void OpenOurs(benchmark::State& state) {
  const auto map = MakeLargeMap();
  AnyDesktop desktop;
  Opener opener(desktop);
  while (state.KeepRunning()) opener.Open(*map, nullptr);
}

void OpenTree(benchmark::State& state) {
  qt::QtDesktop desktop;
  const auto map = MakeLargeMap();
  while (state.KeepRunning()) {
    BareTree bare;
    FillTree(bare.Tree, *map);
    QTimer::singleShot(0, &bare.Dialog, &QDialog::reject);
    bare.Dialog.exec();
  }
}

void OpenHost(benchmark::State& state) {
  const auto map = MakeLargeMap();
  while (state.KeepRunning()) benchmark::DoNotOptimize(AskAll(*map));
}

void Select(frmMapSettings& form) {
  form.sftLayers.UserClick(form.sftLayers.ListIndex() == kMiddle ? kMiddle + 1 : kMiddle);
}
void Move(frmMapSettings& form) {
  // There and back again.
  (form.SelectedLayer() % 2 == 0 ? form.cmdUp : form.cmdDown).UserPress();
}
void Remove(frmMapSettings& form) {
  form.cmdRemove.UserPress();
  form.sftLayers.UserClick(kMiddle);
}

template <class AnyDesktop>
void ActOurs(benchmark::State& state, Act act) {
  const auto map = MakeLargeMap();
  AnyDesktop desktop;
  Opener opener(desktop);
  opener.Open(*map, [&](frmMapSettings& form) {
    form.sftLayers.UserClick(kMiddle);
    while (state.KeepRunning()) {
      act(form);
      desktop.ProcessPendingEvents();
    }
  });
}

void SelectTree(benchmark::State& state) {
  qt::QtDesktop desktop;
  const auto map = MakeLargeMap();
  BareTree bare;
  FillTree(bare.Tree, *map);
  bare.Dialog.show();
  int row = kMiddle;
  while (state.KeepRunning()) {
    bare.Tree.setCurrentItem(bare.Tree.topLevelItem(row = row == kMiddle ? kMiddle + 1 : kMiddle));
    QApplication::processEvents();
  }
}

/// The tree is filled anew after the map has changed.
void RefillTree(benchmark::State& state, void (*change)(PlainMap&)) {
  qt::QtDesktop desktop;
  const auto map = MakeLargeMap();
  BareTree bare;
  FillTree(bare.Tree, *map);
  bare.Dialog.show();
  while (state.KeepRunning()) {
    change(*map);
    FillTree(bare.Tree, *map);
    bare.Tree.setCurrentItem(bare.Tree.topLevelItem(kMiddle));
    QApplication::processEvents();
  }
}

void RefillHost(benchmark::State& state, void (*change)(PlainMap&)) {
  const auto map = MakeLargeMap();
  while (state.KeepRunning()) {
    change(*map);
    benchmark::DoNotOptimize(AskAll(*map));
  }
}

void MoveInMap(PlainMap& map) {
  map.MoveLayerUp(kMiddle);
}
void RemoveFromMap(PlainMap& map) {
  map.RemoveLayer(kMiddle);
}

template <class Run>
void Row(const std::string& name, Run run) {
  benchmark::RegisterBenchmark(name.c_str(), run)->Unit(benchmark::kNanosecond);
}

const bool kLayerManagerRegistered = [] {
  Row("open 100,000 layers/ours", OpenOurs<qt::QtDesktop>);
  Row("open 100,000 layers/headless", OpenOurs<headless::HeadlessDesktop>);
  Row("open 100,000 layers/bare", OpenTree);
  Row("open 100,000 layers/host", OpenHost);
  const std::pair<const char*, Act> acts[] = {
      {"select one of them", Select}, {"move one", Move}, {"remove one", Remove}};
  for (const auto& [name, act] : acts) {
    const Act doing = act;
    Row(std::string(name) + "/ours", [doing](benchmark::State& state) { ActOurs<qt::QtDesktop>(state, doing); });
    Row(std::string(name) + "/headless",
        [doing](benchmark::State& state) { ActOurs<headless::HeadlessDesktop>(state, doing); });
  }
  Row("select one of them/bare", SelectTree);
  Row("move one/bare", [](benchmark::State& state) { RefillTree(state, MoveInMap); });
  Row("move one/host", [](benchmark::State& state) { RefillHost(state, MoveInMap); });
  Row("remove one/bare", [](benchmark::State& state) { RefillTree(state, RemoveFromMap); });
  Row("remove one/host", [](benchmark::State& state) { RefillHost(state, RemoveFromMap); });
  return true;
}();

}  // namespace
}  // namespace orx::bench
