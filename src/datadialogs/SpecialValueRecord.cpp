#include "datadialogs/SpecialValueRecord.h"

#include <cmath>

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

}  // namespace

void SpecialValueRecord::ReadFrom(const ISpecialValue& value) {
  Color = value.Color();
  Enabled = value.Enabled();
  InLegend = value.InLegend();
  UpperBound = value.UpperBound();
  LowerBound = value.LowerBound();
  Text = value.TextValue();
  Transparent = value.Transparent();
}

void SpecialValueRecord::WriteTo(ISpecialValue& value) const {
  value.Color(Color);
  value.Enabled(Enabled);
  value.InLegend(InLegend);
  value.UpperBound(UpperBound);
  value.LowerBound(LowerBound);
  value.TextValue(Text);
  value.Transparent(Transparent);
}

void SpecialValues::ReadFrom(IDataOptions& options) {
  for (std::size_t i = 0; i < Records.size(); ++i) Records[i].ReadFrom(ValueOf(options, i));
}

void SpecialValues::WriteTo(IDataOptions& options) const {
  SpecialValues before;
  before.ReadFrom(options);
  std::size_t writing = 0;
  try {
    for (; writing < Records.size(); ++writing) Records[writing].WriteTo(ValueOf(options, writing));
  } catch (...) {
    ErrorTrap trap;
    for (std::size_t i = 0; i <= writing; ++i) trap.Step([&] { before.Records[i].WriteTo(ValueOf(options, i)); });
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
