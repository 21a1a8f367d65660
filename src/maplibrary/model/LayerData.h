// The data of a grid layer: the grid, how its values are divided into classes, its special values, its shading and its
// contour lines.
#pragma once

#include <memory>
#include <string>

#include "hostobjects/IData.h"
#include "hostobjects/IFileCheck.h"
#include "maplibrary/files/GridData.h"
#include "maplibrary/model/GridIsolines.h"
#include "maplibrary/model/GridShade.h"
#include "maplibrary/model/SpecialValue.h"

namespace orx::maplibrary {

/// Classes are automatic at first: colours without steps over the range of all that the map shows. Setters throw
/// RunTimeError for values that make no sense: unknown methods and styles, no classes, ends that are not finite, sizes
/// beyond 1000 pixels.
class LayerData final : public HostObject,
                        public IData,
                        public IClassification,
                        public IDataOptions,
                        public IFileCheck {
 public:
  /// `grid` must not be null; `file` is where it came from, empty for none.
  LayerData(std::string file, std::shared_ptr<const GridData> grid);

  /// Answers for the shading, basic and extended, and the contour lines.
  HostInterface* ViewFor(const std::type_info& wanted) override;

  std::int32_t ClassCount() override { return mClasses; }
  std::string FileName() override { return mFile; }
  void FileName(const std::string& value) override;
  /// True when FileName takes the file. Throws what it would throw; the data stay as they are.
  bool CanOpen(const std::string& path) override;
  double MinimumOfData() override { return mRange ? mRange->Low : kUnknownRangeEnd; }
  double MaximumOfData() override { return mRange ? mRange->High : kUnknownRangeEnd; }

  std::string ValueFormat() const override { return mFormat; }
  void ValueFormat(const std::string& value) override { mFormat = value; }
  bool ShowParameterName() const override { return mShowName; }
  void ShowParameterName(bool value) override { mShowName = value; }
  std::int32_t ClassifyMethod() const override { return mMethod; }
  void ClassifyMethod(std::int32_t value) override;
  std::int32_t NumberOfClasses() const override { return mClasses; }
  void NumberOfClasses(std::int32_t value) override;
  double MinValue() const override { return mLimits.Low; }
  void MinValue(double value) override;
  double MaxValue() const override { return mLimits.High; }
  void MaxValue(double value) override;
  double StepSize() const override { return (mLimits.High - mLimits.Low) / mClasses; }
  bool OutsideAsMissing() const override { return mOutsideAsMissing; }
  void OutsideAsMissing(bool value) override { mOutsideAsMissing = value; }
  std::int32_t LegendStyle() const override { return mLegendStyle; }
  void LegendStyle(std::int32_t value) override;
  double FirstClassSize() const override { return mFirstSize; }
  void FirstClassSize(double value) override;
  double LastClassSize() const override { return mLastSize; }
  void LastClassSize(double value) override;

  SpecialValue& MissingValue() override { return mMissing; }
  SpecialValue& ZeroValue() override { return mZero; }
  SpecialValue& NoDataValue() override { return mNoData; }
  const SpecialValue& Missing() const { return mMissing; }
  const SpecialValue& Zero() const { return mZero; }
  const SpecialValue& NoData() const { return mNoData; }

  /// The range of the values; none when no cell has one.
  const std::optional<ValueRange>& Range() const { return mRange; }
  /// The relief shading and the contour lines.
  GridShade& Shade() { return mShade; }
  const GridShade& Shade() const { return mShade; }
  GridIsolines& Lines() { return mLines; }
  const GridIsolines& Lines() const { return mLines; }

  const std::string& File() const { return mFile; }
  const std::shared_ptr<const GridData>& Grid() const { return mGrid; }
  /// True when values are divided into classes, false for colours without steps.
  bool HasClasses() const { return mMethod != classifymethod::kAutomatic; }
  /// The limits of a class, counted from 0.
  ValueRange LimitsOf(std::int32_t classIndex) const;

 private:
  std::string mFile;
  std::shared_ptr<const GridData> mGrid;
  std::optional<ValueRange> mRange;
  std::string mFormat = "General";
  bool mShowName = false;
  std::int32_t mMethod = classifymethod::kAutomatic;
  std::int32_t mClasses = 10;
  ValueRange mLimits;
  bool mOutsideAsMissing = false;
  std::int32_t mLegendStyle = legendstyle::kByColor;
  double mFirstSize = 2;
  double mLastSize = 40;
  SpecialValue mMissing{"Missing value", false, -999.999, -999};
  SpecialValue mZero{"Zero", false, -0.0001, 0.0001};
  SpecialValue mNoData;
  GridShade mShade;
  GridIsolines mLines;
};

}  // namespace orx::maplibrary
