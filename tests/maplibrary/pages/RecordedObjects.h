// Objects of a host for the property pages. They write down every setter that is called, and fail where a test wants.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "hostobjects/IMap.h"
#include "hostobjects/RunTimeError.h"
#include "numbers/Numbers.h"
#include "tests/support/Faults.h"

namespace orx::test {

/// The setters that were called, as "Name(value)", and the members that fail, as "Name" for a getter and "Name=" for a
/// setter.
struct Record {
  template <class Value>
  const Value& Get(const std::string& member, const Value& value) const {
    FailIf(member);
    return value;
  }
  template <class Value>
  void Set(const std::string& member, Value& held, const Value& value) {
    FailIf(member + "=");
    held = value;
    Calls.push_back(member + "(" + Text(value) + ")");
  }

  std::vector<std::string> Calls;
  std::set<std::string> Failing;
  FaultPlan* Faults = nullptr;

 private:
  void FailIf(const std::string& member) const {
    if (Faults) Faults->Call(member);
    if (Failing.contains(member)) throw RunTimeError(1001, member + " failed");
  }
  static std::string Text(bool value) { return value ? "True" : "False"; }
  static std::string Text(double value) { return numbers::ShortestText(value); }
  static std::string Text(std::int32_t value) { return std::to_string(value); }
  static std::string Text(const std::string& value) { return value; }
  static std::string Text(LabelContent value) { return std::to_string(static_cast<int>(value)); }
  static std::string Text(LabelPosition value) { return std::to_string(static_cast<int>(value)); }
  static std::string Text(LegendCorner value) { return std::to_string(static_cast<int>(value)); }
  static std::string Text(Color value) {
    return std::to_string(value.Red) + "," + std::to_string(value.Green) + "," + std::to_string(value.Blue);
  }
  static std::string Text(const Font& value) {
    return value.Name + "," + Text(value.Size) + (value.Bold ? ",bold" : "") + (value.Italic ? ",italic" : "") +
           (value.Underline ? ",underline" : "") + (value.Strikethrough ? ",strikethrough" : "");
  }
};

/// Declares a member of an interface: the value, its getter and its recorded setter.
#define ORX_RECORDED(Type, Argument, Member, ...) \
  Type Held##Member = __VA_ARGS__;                \
  Type Member() const override {                  \
    return Log.Get(#Member, Held##Member);        \
  }                                               \
  void Member(Argument value) override {          \
    Log.Set<Type>(#Member, Held##Member, value);  \
  }

class RecordedExtent : public IExtent {
 public:
  explicit RecordedExtent(Record& log) : Log(log) {}
  ORX_RECORDED(double, double, Left, -84.5)
  ORX_RECORDED(double, double, Right, 0.1 + 0.2)
  ORX_RECORDED(double, double, Bottom, 36.0)
  ORX_RECORDED(double, double, Top, 36.25)

  Record& Log;
};

/// A layer with labels and an extent.
class RecordedLayer final : public HostObject, public ILayer, public ILabels {
 public:
  /// What Data gives; not owned.
  HostObject* Behind = nullptr;
  HostObject* Data() override { return !Log.Faults || Log.Faults->Answers("Data") ? Behind : nullptr; }
  HostInterface* ViewFor(const std::type_info&) override { return &Extent; }

  ORX_RECORDED(std::string, const std::string&, Name, "Elevation")
  ORX_RECORDED(bool, bool, Visible, true)
  std::string Source() const override { return Log.Get("Source", HeldSource); }
  ORX_RECORDED(std::string, const std::string&, SymbolFont, "Map Signs")
  ORX_RECORDED(std::int32_t, std::int32_t, SymbolCharacter, 'A')
  ORX_RECORDED(double, double, SymbolRotation, 30.0)
  ORX_RECORDED(double, double, SymbolSize, 12.0)

  ORX_RECORDED(bool, bool, ShowLabels, true)
  ORX_RECORDED(LabelContent, LabelContent, Content, LabelContent::Name)
  ORX_RECORDED(LabelPosition, LabelPosition, Position, LabelPosition::Above)
  ORX_RECORDED(Font, const Font&, LabelFont, Font{.Name = "Arial", .Size = 9, .Strikethrough = true})
  ORX_RECORDED(Color, Color, LabelColor, Color{255, 0, 0})
  ORX_RECORDED(double, double, LabelRotation, 0.0)

  std::string HeldSource = "/data/jacksboro.bil";
  Record Log;
  RecordedExtent Extent{Log};
};

/// A map without layers: only its extent counts here.
class RecordedMap final : public HostObject, public IMap {
 public:
  std::int32_t LayerCount() override { return 0; }
  std::string LayerName(std::int32_t) override { return {}; }
  HostObject* Layer(std::int32_t) override { return nullptr; }
  HostObject* AddLayer(const std::string&, const std::string&) override { return nullptr; }
  bool RemoveLayer(std::int32_t) override { return false; }
  bool MoveLayerUp(std::int32_t) override { return false; }
  bool MoveLayerDown(std::int32_t) override { return false; }
  IExtent* Extent() override { return &HeldExtent; }

  Record Log;
  RecordedExtent HeldExtent{Log};
};

class RecordedLegend final : public ILegend {
 public:
  RecordedLegend(Record& log, std::string title) : HeldTitle(std::move(title)), Log(log) {}
  ORX_RECORDED(std::string, const std::string&, Title, {})
  ORX_RECORDED(bool, bool, Visible, true)
  ORX_RECORDED(LegendCorner, LegendCorner, Corner, LegendCorner::BottomRight)
  ORX_RECORDED(bool, bool, Framed, false)
  ORX_RECORDED(double, double, TextSize, 8.25)

  Record& Log;
};

class RecordedLegends final : public HostObject, public ILegends {
 public:
  std::int32_t LegendCount() override { return Log.Get("LegendCount", static_cast<std::int32_t>(Legends.size())); }
  ILegend& Legend(std::int32_t index) override { return Legends.at(static_cast<std::size_t>(index)); }

  Record Log;
  std::vector<RecordedLegend> Legends;
};

}  // namespace orx::test
