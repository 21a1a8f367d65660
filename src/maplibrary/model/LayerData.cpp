#include "maplibrary/model/LayerData.h"

#include <initializer_list>

#include "maplibrary/files/GridFile.h"
#include "maplibrary/model/Errors.h"

namespace orx::maplibrary {
namespace {

/// More than a picture could show.
constexpr std::int32_t kMostClasses = 65535;

/// What stands for "no data" where a grid does not say.
constexpr double kUsualNoData = -9999;

void RequireOneOf(const char* name, std::int32_t value, std::initializer_list<std::int32_t> allowed) {
  std::string list;
  for (const std::int32_t one : allowed) {
    if (one == value) return;
    list += (list.empty() ? "" : ", ") + std::to_string(one);
  }
  throw RunTimeError(kErrorInvalidValue, std::string(name) + " must be one of " + list + ".");
}

}  // namespace

LayerData::LayerData(std::string file, std::shared_ptr<const GridData> grid)
    : mFile(std::move(file)),
      mGrid(std::move(grid)),
      mRange(RangeOf(*mGrid)),
      mLimits(mRange.value_or(ValueRange{kUnknownRangeEnd, kUnknownRangeEnd})),
      mNoData("No data", true, mGrid->NoData.value_or(kUsualNoData), mGrid->NoData.value_or(kUsualNoData)) {
  mShade.Grid(mGrid);
}

HostInterface* LayerData::ViewFor(const std::type_info& wanted) {
  if (wanted == typeid(IIsolines)) return &mLines;
  return &mShade;
}

void LayerData::FileName(const std::string& value) {
  auto grid = std::make_shared<const GridData>(ReadGridFile(value));
  mRange = RangeOf(*grid);
  mGrid = std::move(grid);
  mShade.Grid(mGrid);
  mFile = value;
}

bool LayerData::CanOpen(const std::string& path) {
  return !ReadGridFile(path).Values.empty();
}

void LayerData::ClassifyMethod(std::int32_t value) {
  RequireOneOf("ClassifyMethod", value,
               {classifymethod::kEqualIntervals, classifymethod::kAutomatic, classifymethod::kEqualSteps,
                classifymethod::kUserDefined});
  mMethod = value;
}

void LayerData::NumberOfClasses(std::int32_t value) {
  if (value < 1 || value > kMostClasses)
    throw RunTimeError(kErrorInvalidValue, "NumberOfClasses must be from 1 to " + std::to_string(kMostClasses) + ".");
  mClasses = value;
}

void LayerData::MinValue(double value) {
  RequireFinite("MinValue", value);
  mLimits.Low = value;
}

void LayerData::MaxValue(double value) {
  RequireFinite("MaxValue", value);
  mLimits.High = value;
}

void LayerData::LegendStyle(std::int32_t value) {
  RequireOneOf("LegendStyle", value, {legendstyle::kByColor, legendstyle::kByColorAndSize, legendstyle::kBySize});
  mLegendStyle = value;
}

void LayerData::FirstClassSize(double value) {
  RequireClassSize("FirstClassSize", value);
  mFirstSize = value;
}

void LayerData::LastClassSize(double value) {
  RequireClassSize("LastClassSize", value);
  mLastSize = value;
}

ValueRange LayerData::LimitsOf(std::int32_t classIndex) const {
  // The last limit is the end of the range itself, whatever the steps add up to.
  const auto limit = [this](std::int32_t index) {
    return index == mClasses ? mLimits.High : mLimits.Low + index * StepSize();
  };
  return {limit(classIndex), limit(classIndex + 1)};
}

void SpecialValue::UpperBound(double value) {
  RequireFinite("UpperBound", value);
  mUpper = value;
}

void SpecialValue::LowerBound(double value) {
  RequireFinite("LowerBound", value);
  mLower = value;
}

}  // namespace orx::maplibrary
