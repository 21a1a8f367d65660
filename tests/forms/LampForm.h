// A host's object with properties of each kind, and a form with a setting for each.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "forms/SettingOf.h"
#include "tests/forms/SampleForm.h"

namespace orx::test {

/// The shade of a lamp, which it gives when it has one.
class LampShade {
 public:
  explicit LampShade(std::vector<std::string>& log) : mLog(log) {}
  Color Paint() const {
    mLog.push_back("Paint");
    return HeldPaint;
  }
  void Paint(Color value) {
    mLog.push_back("Paint=");
    HeldPaint = value;
  }
  Color HeldPaint{1, 2, 3};

 private:
  std::vector<std::string>& mLog;
};

/// Writes down each read and write, and fails where a test wants.
class Lamp {
 public:
  std::string Name() const { return Get("Name", HeldName); }
  void Name(const std::string& value) { Set("Name", HeldName, value); }
  bool IsOn() const { return Get("IsOn", HeldIsOn); }
  void IsOn(bool value) { Set("IsOn", HeldIsOn, value); }
  double Power() const { return Get("Power", HeldPower); }
  void Power(double value) { Set("Power", HeldPower, value); }
  std::int32_t Bulbs() const { return Get("Bulbs", HeldBulbs); }
  void Bulbs(std::int32_t value) { Set("Bulbs", HeldBulbs, value); }
  std::int16_t Socket() const { return Get("Socket", HeldSocket); }
  void Socket(std::int16_t value) { Set("Socket", HeldSocket, value); }
  double Age() const { return Get("Age", 7.5); }
  LampShade& Shade() { return HeldShade; }

  /// What was called since the test looked last.
  std::vector<std::string> Calls() { return std::exchange(Log, {}); }

  std::string HeldName = "Reading lamp";
  bool HeldIsOn = true;
  double HeldPower = 1.0 / 3;
  std::int32_t HeldBulbs = 3;
  std::int16_t HeldSocket = 27;
  std::string Failing;
  mutable std::vector<std::string> Log;
  LampShade HeldShade{Log};

 private:
  template <class Value>
  Value Get(const std::string& member, const Value& value) const {
    Log.push_back(member);
    if (member == Failing) throw std::runtime_error(member + " failed");
    return value;
  }
  template <class Value>
  void Set(const std::string& member, Value& held, const Value& value) {
    Log.push_back(member + "=");
    if (member + "=" == Failing) throw std::runtime_error(member + "= failed");
    held = value;
  }
};

struct LampForm final : Form {
  LampForm(Desktop& desktop, WriteRule write, StepRule step)
      : Form(desktop, "frmLamp", {.Caption = "Lamp", .Client = {6000, 4000}}), List(write, std::move(step)) {
    for (const int socket : {14, 27}) cboSocket.AddItem("E" + std::to_string(socket), socket);
  }

  TextBox txtName{*this, "txtName", {.Place = {120, 120, 1500, 330}, .AccessibleName = "Name:"}};
  CheckBox chkOn{*this, "chkOn", {.Caption = "&On", .Place = {120, 540, 1500, 330}}};
  PictureBox pctPaint{*this, "pctPaint", {.Place = {120, 960, 1500, 330}, .AccessibleName = "Paint"}};
  TextBox txtPower{*this, "txtPower", {.Place = {120, 1380, 1500, 330}, .AccessibleName = "Power"}};
  ComboBox cboBulbs{
      *this, "cboBulbs", {.Place = {120, 1800, 1500, 330}, .AccessibleName = "Bulbs"}, ComboStyle::Editable};
  ComboBox cboSocket{*this, "cboSocket", {.Place = {120, 2220, 1500, 330}, .AccessibleName = "Socket"}};
  TextBox txtAge{*this, "txtAge", {.Place = {120, 2640, 1500, 330}, .AccessibleName = "Age"}};

  static std::string Rounded(double value) { return numbers::FormatNumber(value, "0.00"); }

  Lamp* Client = nullptr;
  bool Remembered = false;
  Settings List;
  Part<Lamp> OfLamp{List, Client};
  Part<LampShade> OfShade{OfLamp, &Lamp::Shade};
  TextSetting Name{txtName, OfLamp(&Lamp::Name, &Lamp::Name)};
  FlagSetting IsOn{chkOn, OfLamp(&Lamp::IsOn, &Lamp::IsOn)};
  ColorSetting Paint{pctPaint, OfShade(&LampShade::Paint, &LampShade::Paint)};
  NumberSetting Power{txtPower, OfLamp(&Lamp::Power, &Lamp::Power), {.Format = Rounded}};
  NumberSetting Bulbs{cboBulbs, OfLamp(&Lamp::Bulbs, &Lamp::Bulbs), {1, 9, 5}};
  ChoiceSetting Socket{cboSocket, OfLamp(&Lamp::Socket, &Lamp::Socket), {.Otherwise = 0}};
};

}  // namespace orx::test
