#include "forms/RowMeasures.h"

#include <utility>

namespace orx {

void ShownSelection::Show(std::set<int> selected, const std::function<void(int row, bool isSelected)>& tell) {
  for (const int row : mShown)
    if (!selected.contains(row)) tell(row, false);
  for (const int row : selected)
    if (!mShown.contains(row)) tell(row, true);
  mShown = std::move(selected);
}

}  // namespace orx
