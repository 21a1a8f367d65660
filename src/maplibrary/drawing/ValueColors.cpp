#include "maplibrary/drawing/ValueColors.h"

#include <algorithm>
#include <cmath>

#include "maplibrary/model/ColorRamp.h"

namespace orx::maplibrary {
namespace {

constexpr std::int32_t kRampSteps = 2048;

/// True when cells may hold values of the kind.
bool MeetsData(const SpecialValue& kind, const LayerData& data) {
  const std::optional<ValueRange>& range = data.Range();
  return range && kind.Enabled() && kind.LowerBound() <= range->High && kind.UpperBound() >= range->Low;
}

}  // namespace

Color ClassColor(std::int32_t classIndex, std::int32_t count) {
  return ColorAt((classIndex + 0.5) / count);
}

ValueColors::ValueColors(const LayerData* data, const ValueRange& range)
    : mData(data),
      mLimits(range),
      mHasSpecialRanges(data && (MeetsData(data->Missing(), *data) || MeetsData(data->Zero(), *data) ||
                                 MeetsData(data->NoData(), *data))),
      mOutsideIsMissing(false) {
  if (data && data->HasClasses()) {
    mLimits = {data->MinValue(), data->MaxValue()};
    mOutsideIsMissing = data->OutsideAsMissing();
    for (std::int32_t i = 0; i < data->NumberOfClasses(); ++i)
      mColors.push_back(ClassColor(i, data->NumberOfClasses()));
  } else {
    for (std::int32_t i = 0; i <= kRampSteps; ++i) mColors.push_back(ColorAt(static_cast<double>(i) / kRampSteps));
  }
}

const SpecialValue* ValueColors::SpecialOf(double value) const {
  for (const SpecialValue* const kind : {&mData->NoData(), &mData->Missing(), &mData->Zero()})
    if (kind->Holds(value)) return kind;
  return nullptr;
}

const Color* ValueColors::For(double value) const {
  if (std::isnan(value)) return mData ? mData->NoData().Fill() : nullptr;
  if (const SpecialValue* const special = mHasSpecialRanges ? SpecialOf(value) : nullptr) return special->Fill();
  if (mOutsideIsMissing && (value < mLimits.Low || value > mLimits.High)) return mData->Missing().Fill();
  return &ForShare(ShareOf(value, mLimits));
}

const Color& ValueColors::ForShare(double share) const {
  const auto last = static_cast<double>(mColors.size() - 1);
  // A class reaches up to its upper limit, which begins the next one; the ramp is rounded to its nearest step.
  const double place = mData && mData->HasClasses() ? std::floor(share * (last + 1)) : std::round(share * last);
  return mColors[static_cast<std::size_t>(std::min(place, last))];
}

}  // namespace orx::maplibrary
