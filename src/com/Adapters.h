// The host interfaces of the library over the members of automation objects. One for each kind of object.
#pragma once

#include <map>
#include <memory>

#include "com/AutomationObject.h"
#include "com/LateBound.h"
#include "hostobjects/IMap.h"

namespace orx::com {

class ExtentAdapter final : public IExtent {
 public:
  ExtentAdapter(AutomationObject&, const ComPtr<IDispatch>& object) : mObject(object.Get()) {}

  double Left() const override { return mObject.GetDouble("Left"); }
  void Left(double value) override { mObject.Put("Left", Variant(value)); }
  double Right() const override { return mObject.GetDouble("Right"); }
  void Right(double value) override { mObject.Put("Right", Variant(value)); }
  double Bottom() const override { return mObject.GetDouble("Bottom"); }
  void Bottom(double value) override { mObject.Put("Bottom", Variant(value)); }
  double Top() const override { return mObject.GetDouble("Top"); }
  void Top(double value) override { mObject.Put("Top", Variant(value)); }

 private:
  LateBound mObject;
};

class MapAdapter final : public IMap {
 public:
  MapAdapter(AutomationObject& owner, const ComPtr<IDispatch>& object) : mOwner(owner), mObject(object.Get()) {}

  std::int32_t LayerCount() override { return mObject.GetLong("LayerCount"); }
  std::string LayerName(std::int32_t index) override { return mObject.GetText("LayerName", {index}); }
  HostObject* Layer(std::int32_t index) override { return mOwner.Adopt(mObject.GetObject("Layer", {index})); }
  HostObject* AddLayer(const std::string& path, const std::string& options) override;
  bool RemoveLayer(std::int32_t index) override { return Succeeds("RemoveLayer", index); }
  bool MoveLayerUp(std::int32_t index) override { return Succeeds("MoveLayerUp", index); }
  bool MoveLayerDown(std::int32_t index) override { return Succeeds("MoveLayerDown", index); }
  IExtent* Extent() override { return QueryKind<IExtent>(mOwner.Adopt(mObject.GetObject("Extent"))); }

 private:
  bool Succeeds(const char* member, std::int32_t index) const;

  AutomationObject& mOwner;
  LateBound mObject;
};

class LayersAdapter final : public ILayers {
 public:
  LayersAdapter(AutomationObject& owner, const ComPtr<IDispatch>& object) : mOwner(owner), mObject(object.Get()) {}

  std::string Name() override { return mObject.Has("Name") ? mObject.GetText("Name") : std::string(); }
  HostObject* Map() override { return mOwner.Adopt(mObject.GetObject("Map")); }

 private:
  AutomationObject& mOwner;
  LateBound mObject;
};

class LayerAdapter final : public ILayer {
 public:
  LayerAdapter(AutomationObject& owner, const ComPtr<IDispatch>& object) : mOwner(owner), mObject(object.Get()) {}

  std::string Name() const override { return mObject.GetText("Name"); }
  void Name(const std::string& value) override { mObject.Put("Name", Variant(value)); }
  bool Visible() const override { return mObject.GetBool("Visible"); }
  void Visible(bool value) override { mObject.Put("Visible", Variant(value)); }
  std::string Source() const override { return mObject.GetText("Source"); }
  std::string SymbolFont() const override { return mObject.GetText("SymbolFont"); }
  void SymbolFont(const std::string& value) override { mObject.Put("SymbolFont", Variant(value)); }
  std::int32_t SymbolCharacter() const override { return mObject.GetLong("SymbolCharacter"); }
  void SymbolCharacter(std::int32_t value) override { mObject.Put("SymbolCharacter", Variant(value)); }
  double SymbolRotation() const override { return mObject.GetDouble("SymbolRotation"); }
  void SymbolRotation(double value) override { mObject.Put("SymbolRotation", Variant(value)); }
  double SymbolSize() const override { return mObject.GetDouble("SymbolSize"); }
  void SymbolSize(double value) override { mObject.Put("SymbolSize", Variant(value)); }
  HostObject* Data() override { return mObject.Has("Data") ? mOwner.Adopt(mObject.GetObject("Data")) : nullptr; }

 private:
  AutomationObject& mOwner;
  LateBound mObject;
};

class LabelsAdapter final : public ILabels {
 public:
  LabelsAdapter(AutomationObject&, const ComPtr<IDispatch>& object) : mObject(object.Get()) {}

  bool ShowLabels() const override { return mObject.GetBool("ShowLabels"); }
  void ShowLabels(bool value) override { mObject.Put("ShowLabels", Variant(value)); }
  LabelContent Content() const override;
  void Content(LabelContent value) override { mObject.Put("Content", Variant(static_cast<std::int32_t>(value))); }
  LabelPosition Position() const override;
  void Position(LabelPosition value) override { mObject.Put("Position", Variant(static_cast<std::int32_t>(value))); }
  /// The host's font object is edited in place: only attributes that differ are set.
  Font LabelFont() const override;
  void LabelFont(const Font& value) override;
  Color LabelColor() const override;
  void LabelColor(Color value) override;
  double LabelRotation() const override { return mObject.GetDouble("LabelRotation"); }
  void LabelRotation(double value) override { mObject.Put("LabelRotation", Variant(value)); }

 private:
  LateBound Face() const { return LateBound(mObject.GetObject("LabelFont").Get()); }

  LateBound mObject;
};

class LegendAdapter final : public ILegend {
 public:
  explicit LegendAdapter(const ComPtr<IDispatch>& object) : mObject(object.Get()) {}

  std::string Title() const override { return mObject.GetText("Title"); }
  void Title(const std::string& value) override { mObject.Put("Title", Variant(value)); }
  bool Visible() const override { return mObject.GetBool("Visible"); }
  void Visible(bool value) override { mObject.Put("Visible", Variant(value)); }
  LegendCorner Corner() const override;
  void Corner(LegendCorner value) override { mObject.Put("Corner", Variant(static_cast<std::int32_t>(value))); }
  bool Framed() const override { return mObject.GetBool("Framed"); }
  void Framed(bool value) override { mObject.Put("Framed", Variant(value)); }
  double TextSize() const override { return mObject.GetDouble("TextSize"); }
  void TextSize(double value) override { mObject.Put("TextSize", Variant(value)); }

 private:
  LateBound mObject;
};

class LegendsAdapter final : public ILegends {
 public:
  LegendsAdapter(AutomationObject&, const ComPtr<IDispatch>& object) : mObject(object.Get()) {}

  std::int32_t LegendCount() override { return mObject.GetLong("LegendCount"); }
  ILegend& Legend(std::int32_t index) override;

 private:
  LateBound mObject;
  /// One for each legend object, so that a legend keeps its address while it is edited.
  std::map<IUnknown*, std::unique_ptr<LegendAdapter>> mLegends;
};

}  // namespace orx::com
