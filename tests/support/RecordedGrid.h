// Objects with shading and contour lines that write down every read and write, and fail where a test wants them to.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "hostobjects/IGridSettings.h"
#include "tests/support/RecordingHost.h"

namespace orx::test {

/// What of a log is a write: "Altitude=".
inline std::vector<std::string> WritesIn(const CallLog& log) {
  std::vector<std::string> writes;
  for (const std::string& call : log.Calls)
    if (call.ends_with('=')) writes.push_back(call);
  return writes;
}

/// Declares a setting with its value, its logged getter and its logged setter.
#define ORX_LOGGED(Type, Argument, Member, ...) \
  Type Held##Member = __VA_ARGS__;              \
  Type Member() const override {                \
    Log.Call(Prefix + #Member);                 \
    return Held##Member;                        \
  }                                             \
  void Member(Argument value) override {        \
    Log.Call(Prefix + #Member "=");             \
    Held##Member = value;                       \
  }

/// An object of either generation, which answers for the one it is of.
class RecordedShade final : public HostObject, private ShadeSettings2 {
 public:
  mutable CallLog Log;
  std::string Prefix;
  /// False for an object of the first generation.
  bool IsExtended = true;
  std::int32_t Count = 0;
  std::optional<double> Suggestion;

  HostInterface* ViewFor(const std::type_info& wanted) override {
    return wanted == typeid(ShadeSettings) || IsExtended ? static_cast<ShadeSettings2*>(this) : nullptr;
  }
  ORX_LOGGED(bool, bool, ScaleAutomatic, false)
  ORX_LOGGED(std::int16_t, std::int16_t, CombineColors, 1)
  ORX_LOGGED(std::int32_t, std::int32_t, Altitude, 45)
  ORX_LOGGED(std::int32_t, std::int32_t, FirstShadeIndex, 1)
  ORX_LOGGED(std::int32_t, std::int32_t, Azimuth, 315)
  ORX_LOGGED(std::int32_t, std::int32_t, NrOfShades, 200)
  ORX_LOGGED(double, double, MinIntensity, 40.5)
  ORX_LOGGED(double, double, ScaleFactor, 1.0 / 3)
  ORX_LOGGED(double, double, ScaleMultiplier, 2)
  ORX_LOGGED(std::int32_t, std::int32_t, AltitudeDefault, 35)
  ORX_LOGGED(bool, bool, MidIndexAutomatic, true)
  ORX_LOGGED(double, double, MaxIntensity, 150)
  ORX_LOGGED(double, double, MidIntensity, 100)
  ORX_LOGGED(std::int32_t, std::int32_t, ShadeVersion, shadeversion::kSunAndShadow)
  void ShadeCount(std::int32_t value) override {
    Log.Call("ShadeCount=");
    Count = value;
  }
  bool SuggestScaleFactor(double& value) override {
    Log.Call("SuggestScaleFactor");
    if (Suggestion) value = *Suggestion;
    return Suggestion.has_value();
  }
};

class RecordedLine final : public ILineStyle {
 public:
  explicit RecordedLine(CallLog& log) : Log(log) {}
  CallLog& Log;
  std::string Prefix = "Line.";
  ORX_LOGGED(std::int32_t, std::int32_t, Style, 2)
  ORX_LOGGED(std::int32_t, std::int32_t, Width, 3)
  ORX_LOGGED(orx::Color, orx::Color, Color, {10, 20, 30})
};

class RecordedLabelFont final : public ILabelFont {
 public:
  explicit RecordedLabelFont(CallLog& log) : Log(log) {}
  CallLog& Log;
  std::string Prefix = "LabelFont.";
  ORX_LOGGED(std::string, const std::string&, Name, "Arial")
  ORX_LOGGED(float, float, Size, 8.25F)
  ORX_LOGGED(bool, bool, Bold, false)
  ORX_LOGGED(bool, bool, Italic, true)
  ORX_LOGGED(bool, bool, Underline, false)
  ORX_LOGGED(bool, bool, Strikethrough, false)
  ORX_LOGGED(orx::Color, orx::Color, Color, {0, 0, 255})
};

class RecordedIsolines final : public HostObject, public IIsolines {
 public:
  mutable CallLog Log;
  std::string Prefix;
  RecordedLine Pen{Log};
  RecordedLabelFont Face{Log};

  ORX_LOGGED(bool, bool, UseRangeColor, true)
  ORX_LOGGED(bool, bool, UseRangeWidth, false)
  ORX_LOGGED(std::int32_t, std::int32_t, MaxWidth, 5)
  ORX_LOGGED(double, double, LabelDistance, 1.0 / 3)
  ORX_LOGGED(bool, bool, LabelUseRangeColor, false)
  ORX_LOGGED(bool, bool, LabelVisible, true)
  ORX_LOGGED(std::int32_t, std::int32_t, RangeStep, 2)
  ORX_LOGGED(bool, bool, LabelAllIsolines, false)
  ILineStyle& Line() override { return Pen; }
  ILabelFont& LabelFont() override { return Face; }
};

}  // namespace orx::test
