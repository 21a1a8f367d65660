// A list from which the user picks one of a host's codes.
#pragma once

#include <cstdint>
#include <optional>

#include "forms/ListControl.h"

namespace orx {

/// Stands for the code that it was given until the user picks another entry, even for a code that the list does not
/// have. The entries carry the codes. The list must outlive this.
class ShownChoice {
 public:
  /// Shows nothing yet.
  explicit ShownChoice(ListControl& list) : mList(list) {}
  ShownChoice(const ShownChoice&) = delete;
  ShownChoice& operator=(const ShownChoice&) = delete;

  /// Selects the first entry with that code, else the entry `otherwise`.
  void Show(std::int32_t code, int otherwise) {
    mCode = code;
    if (!mList.SelectData(code)) mList.ListIndex(otherwise);
    mShown = mList.ListIndex();
  }
  /// The code that the list stands for.
  std::int32_t Value() const { return mCode && mList.ListIndex() == mShown ? *mCode : mList.SelectedData(); }

 private:
  ListControl& mList;
  std::optional<std::int32_t> mCode;
  int mShown = -1;
};

}  // namespace orx
