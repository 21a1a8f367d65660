// The rules of the data options dialog, free of any form: what it edits of each kind of special values.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "hostobjects/IData.h"

namespace orx {

/// The kinds of special values, in the order of the dialog.
enum class SpecialKind { Missing = 0, Zero = 1, NoData = 2 };
inline constexpr int kSpecialKinds = 3;

/// The settings of one kind.
struct SpecialValueRecord {
  orx::Color Color = {};
  bool Enabled = false;
  bool InLegend = false;
  double UpperBound = 0;
  double LowerBound = 0;
  std::string Text = {};
  bool Transparent = false;
  bool operator==(const SpecialValueRecord&) const = default;

  /// What gives the host's special value, for each property anew; null when nothing is to be read or written any more.
  using Find = std::function<ISpecialValue*()>;
  /// Reads or writes all properties; what the host throws travels.
  void ReadFrom(const Find& value);
  void WriteTo(const Find& value) const;
};

/// The records of all kinds.
struct SpecialValues {
  std::array<SpecialValueRecord, kSpecialKinds> Records = {};
  bool operator==(const SpecialValues&) const = default;

  SpecialValueRecord& Of(SpecialKind kind) { return Records[static_cast<std::size_t>(kind)]; }

  /// What gives the host's special values; as SpecialValueRecord::Find.
  using Find = std::function<IDataOptions*()>;
  /// Reads all three; what the host throws travels.
  void ReadFrom(const Find& options);
  /// Writes all three. When the host refuses one, what was written before it is taken back as far as the host lets it,
  /// and the host's error travels.
  void WriteTo(const Find& options) const;
  /// Sets the colours, switches and ranges that the dialog starts from; the range of places without data stays.
  void TakeDefaults();
  /// Gives the range of values that count as zero: as far from zero on both sides.
  void ZeroRange(double halfWidth);
};

}  // namespace orx
