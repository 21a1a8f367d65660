// A list that stands open.
#pragma once

#include "forms/ListControl.h"

namespace orx {

/// Scrolls when its entries need more room. A user picks an entry by mouse, arrow keys or its first letters.
class ListBox final : public ListControl {
 public:
  /// As Control; the list is empty at first.
  using ListControl::ListControl;

  void Accept(ControlVisitor& visitor) override;
};

}  // namespace orx
