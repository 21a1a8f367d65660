// A data object that writes down every read and write, and fails where a test wants it to.
#pragma once

#include <string>
#include <vector>

#include "hostobjects/IData.h"
#include "tests/support/RecordingHost.h"

namespace orx::test {

/// Reads are logged as "MinValue", writes as "MinValue="; the same names make them fail.
class RecordedSpecialValue final : public ISpecialValue {
 public:
  RecordedSpecialValue(CallLog& log, std::string name) : mLog(log), mName(std::move(name)) {}

  orx::Color Fill{1, 2, 3};
  bool IsEnabled = true;
  bool IsInLegend = true;
  double Upper = 2;
  double Lower = 1;
  std::string Words = "host's own";
  bool IsTransparent = false;

  orx::Color Color() const override { return Read("Color", Fill); }
  void Color(orx::Color value) override { Write("Color", Fill, value); }
  bool Enabled() const override { return Read("Enabled", IsEnabled); }
  void Enabled(bool value) override { Write("Enabled", IsEnabled, value); }
  bool InLegend() const override { return Read("InLegend", IsInLegend); }
  void InLegend(bool value) override { Write("InLegend", IsInLegend, value); }
  double UpperBound() const override { return Read("UpperBound", Upper); }
  void UpperBound(double value) override { Write("UpperBound", Upper, value); }
  double LowerBound() const override { return Read("LowerBound", Lower); }
  void LowerBound(double value) override { Write("LowerBound", Lower, value); }
  std::string TextValue() const override { return Read("TextValue", Words); }
  void TextValue(const std::string& value) override { Write("TextValue", Words, value); }
  bool Transparent() const override { return Read("Transparent", IsTransparent); }
  void Transparent(bool value) override { Write("Transparent", IsTransparent, value); }

 private:
  template <class Value>
  Value Read(const char* member, const Value& value) const {
    mLog.Call(mName + "." + member);
    return value;
  }
  template <class Value>
  void Write(const char* member, Value& to, const Value& value) {
    mLog.Call(mName + "." + member + "=");
    to = value;
  }

  CallLog& mLog;
  std::string mName;
};

class RecordedData final : public HostObject, public IData, public IClassification, public IDataOptions {
 public:
  CallLog Log;
  std::string Format = "0.00";
  bool ShowsName = false;
  std::int32_t Method = classifymethod::kEqualIntervals;
  std::int32_t Classes = 4;
  double Minimum = 0;
  double Maximum = 100;
  double Step = 25;
  bool Outside = false;
  std::int32_t Style = legendstyle::kByColor;
  double FirstSize = 2;
  double LastSize = 40;
  /// What ClassCount tells; the number of classes unless set.
  std::int32_t Counted = -1;
  RecordedSpecialValue Missing{Log, "MissingValue"};
  RecordedSpecialValue Zero{Log, "ZeroValue"};
  RecordedSpecialValue NoData{Log, "NoDataValue"};

  /// The writes since the log was cleared.
  std::vector<std::string> Writes() const {
    std::vector<std::string> writes;
    for (const std::string& call : Log.Calls)
      if (call.ends_with('=')) writes.push_back(call);
    return writes;
  }

  std::int32_t ClassCount() override { return Read("ClassCount", Counted < 0 ? Classes : Counted); }
  void FileName(const std::string&) override { Log.Call("FileName="); }
  std::string ValueFormat() const override { return Read("ValueFormat", Format); }
  void ValueFormat(const std::string& value) override { Write("ValueFormat", Format, value); }
  bool ShowParameterName() const override { return Read("ShowParameterName", ShowsName); }
  void ShowParameterName(bool value) override { Write("ShowParameterName", ShowsName, value); }
  std::int32_t ClassifyMethod() const override { return Read("ClassifyMethod", Method); }
  void ClassifyMethod(std::int32_t value) override { Write("ClassifyMethod", Method, value); }
  std::int32_t NumberOfClasses() const override { return Read("NumberOfClasses", Classes); }
  void NumberOfClasses(std::int32_t value) override { Write("NumberOfClasses", Classes, value); }
  double MinValue() const override { return Read("MinValue", Minimum); }
  void MinValue(double value) override { Write("MinValue", Minimum, value); }
  double MaxValue() const override { return Read("MaxValue", Maximum); }
  void MaxValue(double value) override { Write("MaxValue", Maximum, value); }
  double StepSize() const override { return Read("StepSize", Step); }
  bool OutsideAsMissing() const override { return Read("OutsideAsMissing", Outside); }
  void OutsideAsMissing(bool value) override { Write("OutsideAsMissing", Outside, value); }
  std::int32_t LegendStyle() const override { return Read("LegendStyle", Style); }
  void LegendStyle(std::int32_t value) override { Write("LegendStyle", Style, value); }
  double FirstClassSize() const override { return Read("FirstClassSize", FirstSize); }
  void FirstClassSize(double value) override { Write("FirstClassSize", FirstSize, value); }
  double LastClassSize() const override { return Read("LastClassSize", LastSize); }
  void LastClassSize(double value) override { Write("LastClassSize", LastSize, value); }

  ISpecialValue& MissingValue() override { return Missing; }
  ISpecialValue& ZeroValue() override { return Zero; }
  ISpecialValue& NoDataValue() override { return NoData; }

 private:
  template <class Value>
  Value Read(const char* member, const Value& value) const {
    const_cast<CallLog&>(Log).Call(member);
    return value;
  }
  template <class Value>
  void Write(const char* member, Value& to, const Value& value) {
    Log.Call(std::string(member) + "=");
    to = value;
  }
};

}  // namespace orx::test
