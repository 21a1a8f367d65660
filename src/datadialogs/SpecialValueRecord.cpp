#include "datadialogs/SpecialValueRecord.h"

#include <cmath>

#include "forms/SettingOf.h"
#include "hostobjects/ErrorTrap.h"

namespace orx {
namespace {

constexpr Color kDefaultColor{255, 255, 192};

ISpecialValue& ValueOf(IDataOptions& options, std::size_t kind) {
  switch (static_cast<SpecialKind>(kind)) {
    case SpecialKind::Missing:
      return options.MissingValue();
    case SpecialKind::Zero:
      return options.ZeroValue();
    default:
      return options.NoDataValue();
  }
}

SpecialValueRecord::Find FindValue(const SpecialValues::Find& find, std::size_t kind) {
  return [&find, kind]() -> ISpecialValue* {
    IDataOptions* const options = find();
    return options ? &ValueOf(*options, kind) : nullptr;
  };
}

/// The properties of one kind, in the order in which they are read and written, and the settings that take them.
struct SpecialValueProperties {
  /// The record must live as long.
  SpecialValueProperties(SpecialValueRecord& record, const SpecialValueRecord::Find& value)
      : Record(record), Of(All, value) {}

  using V = ISpecialValue;
  SpecialValueRecord& Record;
  Settings All{WriteRule::Always};
  Part<V> Of;
  HeldSetting<orx::Color> Color{Record.Color, Of(&V::Color, &V::Color)};
  HeldSetting<bool> Enabled{Record.Enabled, Of(&V::Enabled, &V::Enabled)};
  HeldSetting<bool> InLegend{Record.InLegend, Of(&V::InLegend, &V::InLegend)};
  HeldSetting<double> UpperBound{Record.UpperBound, Of(&V::UpperBound, &V::UpperBound)};
  HeldSetting<double> LowerBound{Record.LowerBound, Of(&V::LowerBound, &V::LowerBound)};
  HeldSetting<std::string> Text{Record.Text, Of(&V::TextValue, &V::TextValue)};
  HeldSetting<bool> Transparent{Record.Transparent, Of(&V::Transparent, &V::Transparent)};
};

}  // namespace

void SpecialValueRecord::ReadFrom(const Find& value) {
  SpecialValueProperties(*this, value).All.Read();
}

void SpecialValueRecord::WriteTo(const Find& value) const {
  SpecialValueRecord written = *this;
  SpecialValueProperties(written, value).All.Write();
}

void SpecialValues::ReadFrom(const Find& options) {
  for (std::size_t i = 0; i < Records.size(); ++i) Records[i].ReadFrom(FindValue(options, i));
}

void SpecialValues::WriteTo(const Find& options) const {
  SpecialValues before;
  before.ReadFrom(options);
  std::size_t writing = 0;
  try {
    for (; writing < Records.size(); ++writing) Records[writing].WriteTo(FindValue(options, writing));
  } catch (...) {
    ErrorTrap trap;
    for (std::size_t i = 0; i <= writing; ++i) trap.Step([&] { before.Records[i].WriteTo(FindValue(options, i)); });
    throw;
  }
}

void SpecialValues::TakeDefaults() {
  for (SpecialValueRecord& record : Records) {
    record.Color = kDefaultColor;
    record.Enabled = false;
    record.InLegend = false;
    record.Transparent = true;
  }
  Of(SpecialKind::NoData).Enabled = true;
  SpecialValueRecord& missing = Of(SpecialKind::Missing);
  missing.LowerBound = -999.999;
  missing.UpperBound = -999;
  SpecialValueRecord& zero = Of(SpecialKind::Zero);
  zero.LowerBound = 0.0001;
  zero.UpperBound = 0;
}

void SpecialValues::ZeroRange(double halfWidth) {
  SpecialValueRecord& zero = Of(SpecialKind::Zero);
  zero.LowerBound = -std::abs(halfWidth);
  zero.UpperBound = -zero.LowerBound;
}

}  // namespace orx
