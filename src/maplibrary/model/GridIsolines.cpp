#include "maplibrary/model/GridIsolines.h"

#include <limits>

#include "maplibrary/model/Errors.h"

namespace orx::maplibrary {
namespace {

constexpr std::int32_t kLastStyle = 6;
constexpr std::int32_t kMostPixels = 100;

}  // namespace

void LineStyle::Style(std::int32_t value) {
  RequireRange("Style", value, 0, kLastStyle);
  mStyle = value;
}

void LineStyle::Width(std::int32_t value) {
  RequireRange("Width", value, 0, kMostPixels);
  mWidth = value;
}

void LabelFont::Size(float value) {
  RequireSize("Size", value);
  mSize = value;
}

Font LabelFont::Face() const {
  return {mName, mSize, mBold, mItalic, mUnderline, mStrikethrough};
}

void GridIsolines::MaxWidth(std::int32_t value) {
  RequireRange("MaxWidth", value, 0, kMostPixels);
  mMaxWidth = value;
}

void GridIsolines::LabelDistance(double value) {
  RequireNotNegative("LabelDistance", value);
  mDistance = value;
}

void GridIsolines::RangeStep(std::int32_t value) {
  RequireRange("RangeStep", value, 1, std::numeric_limits<std::int32_t>::max());
  mStep = value;
}

}  // namespace orx::maplibrary
