// The interfaces of a data object over the members of automation objects.
#pragma once

#include <string>

#include "com/AutomationObject.h"
#include "hostobjects/IData.h"
#include "hostobjects/IFileCheck.h"

namespace orx::com {

class DataAdapter final : public AdapterOf<IData> {
 public:
  using AdapterOf::AdapterOf;

  std::int32_t ClassCount() override { return mObject.GetLong("ClassCount"); }
  /// Unknown when the object lacks the member.
  std::string FileName() override { return mObject.Has("FileName") ? mObject.GetText("FileName") : std::string(); }
  void FileName(const std::string& value) override { mObject.Put("FileName", value); }
  double MinimumOfData() override { return RangeEnd("MinimumOfData"); }
  double MaximumOfData() override { return RangeEnd("MaximumOfData"); }

 private:
  double RangeEnd(const char* member) const {
    return mObject.Has(member) ? mObject.GetDouble(member) : kUnknownRangeEnd;
  }
};

class ClassificationAdapter final : public AdapterOf<IClassification> {
 public:
  using AdapterOf::AdapterOf;

  std::string ValueFormat() const override { return mObject.GetText("ValueFormat"); }
  void ValueFormat(const std::string& value) override { mObject.Put("ValueFormat", value); }
  bool ShowParameterName() const override { return mObject.GetBool("ShowParameterName"); }
  void ShowParameterName(bool value) override { mObject.Put("ShowParameterName", value); }
  std::int32_t ClassifyMethod() const override { return mObject.GetLong("ClassifyMethod"); }
  void ClassifyMethod(std::int32_t value) override { mObject.Put("ClassifyMethod", value); }
  std::int32_t NumberOfClasses() const override { return mObject.GetLong("NumberOfClasses"); }
  void NumberOfClasses(std::int32_t value) override { mObject.Put("NumberOfClasses", value); }
  double MinValue() const override { return mObject.GetDouble("MinValue"); }
  void MinValue(double value) override { mObject.Put("MinValue", value); }
  double MaxValue() const override { return mObject.GetDouble("MaxValue"); }
  void MaxValue(double value) override { mObject.Put("MaxValue", value); }
  double StepSize() const override { return mObject.GetDouble("StepSize"); }
  bool OutsideAsMissing() const override { return mObject.GetBool("OutsideAsMissing"); }
  void OutsideAsMissing(bool value) override { mObject.Put("OutsideAsMissing", value); }
  std::int32_t LegendStyle() const override { return mObject.GetLong("LegendStyle"); }
  void LegendStyle(std::int32_t value) override { mObject.Put("LegendStyle", value); }
  double FirstClassSize() const override { return mObject.GetDouble("FirstClassSize"); }
  void FirstClassSize(double value) override { mObject.Put("FirstClassSize", value); }
  double LastClassSize() const override { return mObject.GetDouble("LastClassSize"); }
  void LastClassSize(double value) override { mObject.Put("LastClassSize", value); }
};

class FileCheckAdapter final : public AdapterOf<IFileCheck> {
 public:
  using AdapterOf::AdapterOf;

  bool CanOpen(const std::string& path) override;
};

class SpecialValueAdapter final : public AdapterOf<ISpecialValue> {
 public:
  using AdapterOf::AdapterOf;

  orx::Color Color() const override;
  void Color(orx::Color value) override;
  bool Enabled() const override { return mObject.GetBool("Enabled"); }
  void Enabled(bool value) override { mObject.Put("Enabled", value); }
  bool InLegend() const override { return mObject.GetBool("InLegend"); }
  void InLegend(bool value) override { mObject.Put("InLegend", value); }
  double UpperBound() const override { return mObject.GetDouble("UpperBound"); }
  void UpperBound(double value) override { mObject.Put("UpperBound", value); }
  double LowerBound() const override { return mObject.GetDouble("LowerBound"); }
  void LowerBound(double value) override { mObject.Put("LowerBound", value); }
  std::string TextValue() const override { return mObject.GetText("TextValue"); }
  void TextValue(const std::string& value) override { mObject.Put("TextValue", value); }
  bool Transparent() const override { return mObject.GetBool("Transparent"); }
  void Transparent(bool value) override { mObject.Put("Transparent", value); }
};

class DataOptionsAdapter final : public AdapterOf<IDataOptions> {
 public:
  using AdapterOf::AdapterOf;

  ISpecialValue& MissingValue() override { return Special("MissingValue"); }
  ISpecialValue& ZeroValue() override { return Special("ZeroValue"); }
  ISpecialValue& NoDataValue() override { return Special("NoDataValue"); }

 private:
  ISpecialValue& Special(const char* member);

  AdaptedParts<SpecialValueAdapter> mSpecial;
};

}  // namespace orx::com
