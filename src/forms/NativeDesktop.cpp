#include "forms/NativeDesktop.h"

namespace orx {

ScreenMetrics NativeDesktop::Metrics(BorderStyle border) const {
  ScreenMetrics metrics = SystemMetrics(border);
  if (mWorkArea) metrics.WorkArea = *mWorkArea;
  return metrics;
}

std::vector<Rect> NativeDesktop::WorkAreas() const {
  std::vector<Rect> areas = Desktop::WorkAreas();
  if (mWorkArea) return areas;
  const std::vector<Rect> further = FurtherWorkAreas();
  areas.insert(areas.end(), further.begin(), further.end());
  return areas;
}

numbers::Separators NativeDesktop::Separators() const {
  return mSeparators ? *mSeparators : LocaleSeparators();
}

}  // namespace orx
