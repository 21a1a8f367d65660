// The interfaces of maps, their layers and legends over the members of automation objects.
#pragma once

#include "com/AutomationObject.h"
#include "hostobjects/IMap.h"

namespace orx::com {

class ExtentAdapter final : public AdapterOf<IExtent> {
 public:
  using AdapterOf::AdapterOf;

  double Left() const override { return mObject.GetDouble("Left"); }
  void Left(double value) override { mObject.Put("Left", value); }
  double Right() const override { return mObject.GetDouble("Right"); }
  void Right(double value) override { mObject.Put("Right", value); }
  double Bottom() const override { return mObject.GetDouble("Bottom"); }
  void Bottom(double value) override { mObject.Put("Bottom", value); }
  double Top() const override { return mObject.GetDouble("Top"); }
  void Top(double value) override { mObject.Put("Top", value); }
};

class MapAdapter final : public AdapterOf<IMap> {
 public:
  using AdapterOf::AdapterOf;

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
};

class LayersAdapter final : public AdapterOf<ILayers> {
 public:
  using AdapterOf::AdapterOf;

  std::string Name() override { return mObject.Has("Name") ? mObject.GetText("Name") : std::string(); }
  HostObject* Map() override { return mOwner.Adopt(mObject.GetObject("Map")); }
};

class LayerAdapter final : public AdapterOf<ILayer> {
 public:
  using AdapterOf::AdapterOf;

  std::string Name() const override { return mObject.GetText("Name"); }
  void Name(const std::string& value) override { mObject.Put("Name", value); }
  bool Visible() const override { return mObject.GetBool("Visible"); }
  void Visible(bool value) override { mObject.Put("Visible", value); }
  std::string Source() const override { return mObject.GetText("Source"); }
  std::string SymbolFont() const override { return mObject.GetText("SymbolFont"); }
  void SymbolFont(const std::string& value) override { mObject.Put("SymbolFont", value); }
  std::int32_t SymbolCharacter() const override { return mObject.GetLong("SymbolCharacter"); }
  void SymbolCharacter(std::int32_t value) override { mObject.Put("SymbolCharacter", value); }
  double SymbolRotation() const override { return mObject.GetDouble("SymbolRotation"); }
  void SymbolRotation(double value) override { mObject.Put("SymbolRotation", value); }
  double SymbolSize() const override { return mObject.GetDouble("SymbolSize"); }
  void SymbolSize(double value) override { mObject.Put("SymbolSize", value); }
  HostObject* Data() override { return mObject.Has("Data") ? mOwner.Adopt(mObject.GetObject("Data")) : nullptr; }
};

class LabelsAdapter final : public AdapterOf<ILabels> {
 public:
  using AdapterOf::AdapterOf;

  bool ShowLabels() const override { return mObject.GetBool("ShowLabels"); }
  void ShowLabels(bool value) override { mObject.Put("ShowLabels", value); }
  LabelContent Content() const override;
  void Content(LabelContent value) override { mObject.Put("Content", static_cast<std::int32_t>(value)); }
  LabelPosition Position() const override;
  void Position(LabelPosition value) override { mObject.Put("Position", static_cast<std::int32_t>(value)); }
  /// The host's font object is edited in place: only attributes that differ are set.
  Font LabelFont() const override;
  void LabelFont(const Font& value) override;
  Color LabelColor() const override;
  void LabelColor(Color value) override;
  double LabelRotation() const override { return mObject.GetDouble("LabelRotation"); }
  void LabelRotation(double value) override { mObject.Put("LabelRotation", value); }

 private:
  Members Face() const;
};

class LegendAdapter final : public AdapterOf<ILegend> {
 public:
  using AdapterOf::AdapterOf;

  std::string Title() const override { return mObject.GetText("Title"); }
  void Title(const std::string& value) override { mObject.Put("Title", value); }
  bool Visible() const override { return mObject.GetBool("Visible"); }
  void Visible(bool value) override { mObject.Put("Visible", value); }
  LegendCorner Corner() const override;
  void Corner(LegendCorner value) override { mObject.Put("Corner", static_cast<std::int32_t>(value)); }
  bool Framed() const override { return mObject.GetBool("Framed"); }
  void Framed(bool value) override { mObject.Put("Framed", value); }
  double TextSize() const override { return mObject.GetDouble("TextSize"); }
  void TextSize(double value) override { mObject.Put("TextSize", value); }
};

class LegendsAdapter final : public AdapterOf<ILegends> {
 public:
  using AdapterOf::AdapterOf;

  std::int32_t LegendCount() override { return mObject.GetLong("LegendCount"); }
  ILegend& Legend(std::int32_t index) override;

 private:
  AdaptedParts<LegendAdapter> mLegends;
};

}  // namespace orx::com
