// A map that lives in memory for tests of the layer manager: it counts what it is asked, and refuses or fails where a
// test wants it to.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "hostobjects/HostObject.h"
#include "hostobjects/IMap.h"
#include "hostobjects/RunTimeError.h"
#include "tests/support/Faults.h"

namespace orx::test {

/// A layer with a name; with layers of its own it is a map too. The whole map is one as well. Which it is may change,
/// so that it answers for the map as a view.
class ModelMap final : public HostObject, private IMap {
 public:
  explicit ModelMap(std::string name = {}) : Name(std::move(name)) {}

  HostInterface* ViewFor(const std::type_info&) override {
    const bool answers = Gives("ViewFor");
    return IsMap && answers ? static_cast<IMap*>(this) : nullptr;
  }

  std::int32_t LayerCount() override {
    Ask("LayerCount");
    return static_cast<std::int32_t>(Layers.size());
  }
  std::string LayerName(std::int32_t index) override {
    Ask("LayerName");
    return At(index)->Name;
  }
  HostObject* Layer(std::int32_t index) override {
    Ask("Layer");
    return Gives("Layer") ? At(index).get() : nullptr;
  }
  HostObject* AddLayer(const std::string& path, const std::string& options) override {
    Paths.push_back(path + "|" + options);
    if (!MayDo("AddLayer") || !Gives("AddLayer")) return nullptr;
    return &Add(path.substr(path.find_last_of("/\\") + 1));
  }
  bool RemoveLayer(std::int32_t index) override {
    if (!MayDo("RemoveLayer")) return false;
    // What was removed may still be held by an open dialog.
    Removed.push_back(std::move(At(index)));
    Layers.erase(Layers.begin() + (index - 1));
    return true;
  }
  bool MoveLayerUp(std::int32_t index) override {
    if (!MayDo("MoveLayerUp") || index <= 1) return false;
    std::swap(At(index), At(index - 1));
    return true;
  }
  bool MoveLayerDown(std::int32_t index) override {
    if (!MayDo("MoveLayerDown") || index >= static_cast<std::int32_t>(Layers.size())) return false;
    std::swap(At(index), At(index + 1));
    return true;
  }
  IExtent* Extent() override { return nullptr; }

  ModelMap& Add(const std::string& name) {
    Layers.push_back(std::make_unique<ModelMap>(name));
    Layers.back()->Faults = Faults;
    return *Layers.back();
  }
  /// Adds a layer with that many tiles, named after it.
  ModelMap& AddTiled(const std::string& name, int tiles) {
    ModelMap& layer = Add(name);
    layer.IsMap = true;
    for (int i = 1; i <= tiles; ++i) layer.Add(name + "/" + std::to_string(i));
    return layer;
  }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& layer : Layers) names.push_back(layer->Name);
    return names;
  }

  std::string Name;
  bool IsMap = false;
  std::vector<std::unique_ptr<ModelMap>> Layers;
  std::vector<std::unique_ptr<ModelMap>> Removed;
  std::vector<std::string> Paths;
  /// How often the map was asked for what it knows.
  int Questions = 0;
  /// What a member is to do: true, or false to refuse; what it throws is thrown. Empty: everything is done.
  std::function<bool(const std::string& member)> Answers;
  /// Of the layers that are added from now on, too.
  FaultPlan* Faults = nullptr;

 private:
  void Ask(const char* member) {
    ++Questions;
    Gives(member);
    if (Answers) Answers(member);
  }
  bool MayDo(const char* member) const {
    Gives(member);
    return !Answers || Answers(member);
  }
  /// False when the call is to give nothing.
  bool Gives(const char* member) const { return !Faults || Faults->Answers(member); }
  std::unique_ptr<ModelMap>& At(std::int32_t index) {
    if (index < 1 || index > static_cast<std::int32_t>(Layers.size()))
      throw RunTimeError(9, "There is no layer " + std::to_string(index));
    return Layers[static_cast<std::size_t>(index) - 1];
  }
};

/// The layers of a map under a name of their own.
class ModelLayers final : public HostObject, public ILayers {
 public:
  explicit ModelLayers(ModelMap& map, std::string name = {}) : Title(std::move(name)), mMap(map) {}

  std::string Name() override {
    if (mMap.Faults) mMap.Faults->Call("Name");
    return Title;
  }
  HostObject* Map() override { return !mMap.Faults || mMap.Faults->Answers("Map") ? &mMap : nullptr; }

  std::string Title;

 private:
  ModelMap& mMap;
};

}  // namespace orx::test
