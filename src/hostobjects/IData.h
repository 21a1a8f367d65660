// Interfaces of the host's data object: what a layer shows, how its values are divided into classes, and which of them
// are special.
#pragma once

#include <cstdint>
#include <string>

#include "forms/Appearance.h"
#include "hostobjects/HostObject.h"

namespace orx {

/// A range end of exactly this value is not known.
inline constexpr double kUnknownRangeEnd = -999;

/// The data of a layer. An object that supports this answers for the views below as well, as far as it has them.
class IData : public HostInterface {
 public:
  /// The number of classes in use.
  virtual std::int32_t ClassCount() = 0;
  /// The file that the data were read from, UTF-8; empty when there is none. Setting it reads another file; throws
  /// RunTimeError with file and reason when that cannot be read, and the data stay as they were.
  virtual std::string FileName() { return {}; }
  virtual void FileName(const std::string& value) = 0;
  /// The smallest and the largest value; kUnknownRangeEnd when not known.
  virtual double MinimumOfData() { return kUnknownRangeEnd; }
  virtual double MaximumOfData() { return kUnknownRangeEnd; }
};

/// How classes are made. The numbers are those of the host's own enumeration; it may have more.
namespace classifymethod {
/// Classes of one width that fill the range.
inline constexpr std::int32_t kEqualIntervals = 0;
/// Made by the host without the user.
inline constexpr std::int32_t kAutomatic = 1;
/// Classes of a given width; the end of the range follows.
inline constexpr std::int32_t kEqualSteps = 6;
/// Made by the user, as far as the host lets him.
inline constexpr std::int32_t kUserDefined = 7;
}  // namespace classifymethod

/// What tells the classes apart.
namespace legendstyle {
/// Their colours.
inline constexpr std::int32_t kByColor = 0;
/// Their colours and the sizes of their symbols.
inline constexpr std::int32_t kByColorAndSize = 1;
/// The sizes of their symbols.
inline constexpr std::int32_t kBySize = 2;
}  // namespace legendstyle

/// The flag of the classification dialog that lets the user change the number of classes.
inline constexpr std::int32_t kMayChangeClassCount = 0x20;

/// How values are divided into classes for display and legend. Any member may throw; the dialog goes on without it.
class IClassification : public HostInterface {
 public:
  /// Number format of the class limits: "General" or a pattern such as "0.00".
  virtual std::string ValueFormat() const = 0;
  virtual void ValueFormat(const std::string& value) = 0;
  /// Whether the legend shows the name of the parameter (series).
  virtual bool ShowParameterName() const = 0;
  virtual void ShowParameterName(bool value) = 0;
  /// A number of classifymethod.
  virtual std::int32_t ClassifyMethod() const = 0;
  virtual void ClassifyMethod(std::int32_t value) = 0;
  /// The number of classes, 1 or more.
  virtual std::int32_t NumberOfClasses() const = 0;
  virtual void NumberOfClasses(std::int32_t value) = 0;
  /// The ends of the classified range, in the unit of the data; kUnknownRangeEnd when not known.
  virtual double MinValue() const = 0;
  virtual void MinValue(double value) = 0;
  virtual double MaxValue() const = 0;
  virtual void MaxValue(double value) = 0;
  /// The class width. It follows from range and number of classes and is never set.
  virtual double StepSize() const = 0;
  /// Whether values outside the range count as missing.
  virtual bool OutsideAsMissing() const = 0;
  virtual void OutsideAsMissing(bool value) = 0;
  /// A number of legendstyle.
  virtual std::int32_t LegendStyle() const = 0;
  virtual void LegendStyle(std::int32_t value) = 0;
  /// Symbol sizes of the first and the last class in pixels.
  virtual double FirstClassSize() const = 0;
  virtual void FirstClassSize(double value) = 0;
  virtual double LastClassSize() const = 0;
  virtual void LastClassSize(double value) = 0;
};

/// How one kind of special values is treated and drawn.
class ISpecialValue {
 public:
  virtual ~ISpecialValue() = default;
  /// Fill colour of values of the kind.
  virtual orx::Color Color() const = 0;
  virtual void Color(orx::Color value) = 0;
  /// Whether the kind is treated specially at all.
  virtual bool Enabled() const = 0;
  virtual void Enabled(bool value) = 0;
  /// Whether the kind has a legend entry.
  virtual bool InLegend() const = 0;
  virtual void InLegend(bool value) = 0;
  /// The range of the values of the kind, both ends included, in the unit of the data.
  virtual double UpperBound() const = 0;
  virtual void UpperBound(double value) = 0;
  virtual double LowerBound() const = 0;
  virtual void LowerBound(double value) = 0;
  /// A text of the host's own, UTF-8; it is written back unchanged.
  virtual std::string TextValue() const = 0;
  virtual void TextValue(const std::string& value) = 0;
  /// Whether values of the kind are not drawn.
  virtual bool Transparent() const = 0;
  virtual void Transparent(bool value) = 0;
};

/// The special values of a data object, which owns them.
class IDataOptions : public HostInterface {
 public:
  /// Values that were not measured, values that count as zero, and places without data.
  virtual ISpecialValue& MissingValue() = 0;
  virtual ISpecialValue& ZeroValue() = 0;
  virtual ISpecialValue& NoDataValue() = 0;
};

}  // namespace orx
