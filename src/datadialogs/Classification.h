// The rules of the classification dialog, free of any form: the settings being edited, how step and range depend on
// each other, and what is read from and written to a data object.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "hostobjects/IData.h"

namespace orx {

/// The number formats that the dialog offers, in its order.
inline constexpr std::array<const char*, 12> kValueFormats = {"General",     "0",           "0.0",       "0.00",
                                                              "0.000",       "0.0000",      "0.00000",   "0.0000000",
                                                              "0.000000000", "0.0000E+000", "#,###,##0", "#,###,##0.0"};

/// The index in kValueFormats of a format, whatever its letter case and the blanks around it; 0 for any other.
int IndexOfFormat(const std::string& format);

/// The settings of a data object's classification.
struct Classification {
  std::string ValueFormat = "General";
  bool ShowParameterName = false;
  std::int32_t Method = classifymethod::kEqualIntervals;
  std::int32_t ClassCount = 0;
  double Minimum = 0;
  double Maximum = 0;
  double Step = 0;
  bool OutsideAsMissing = false;
  std::int32_t LegendStyle = legendstyle::kByColor;
  double FirstClassSize = 0;
  double LastClassSize = 0;
  bool operator==(const Classification&) const = default;

  /// True for classes that are made without the user.
  bool IsAutomatic() const { return Method == classifymethod::kAutomatic; }

  /// What gives the data's classification, for each property anew; null when it is gone.
  using Find = std::function<IClassification*()>;
  /// Reads all properties. One that cannot be read leaves its field as it was.
  void ReadFrom(const Find& data);
  /// Writes all properties but the step when one of them differs from what the data hold now. One that cannot be
  /// written is passed over. True when something differed and there were data to write to.
  bool SaveTo(const Find& data) const;

  /// Brings step and range in line: with equal steps the maximum follows from the step, with equal intervals and user
  /// defined classes the step from the range. Other methods leave both alone.
  void FitStep();
  /// Takes over a new end of the range. Where it passes the other end, the range moves and keeps its width.
  void MoveMinimum(double value);
  void MoveMaximum(double value);
  /// Takes over a new step; one that is not positive becomes 1.
  void ChangeStep(double value);
  /// Takes over a range with equal intervals and two decimals; number of classes and step stay.
  void TakeDefault(double minimum, double maximum);
};

/// What the dialog goes back to when "Auto classify" is unticked.
struct SavedClassification {
  std::int32_t Method = 0;
  std::int32_t ClassCount = 0;

  /// Remembers method and number of classes and goes over to automatic classes within a range.
  void GoAutomatic(Classification& model, double minimum, double maximum);
  /// Goes back; when nothing but automatic is remembered, to equal intervals.
  void GoBack(Classification& model) const;
};

}  // namespace orx
