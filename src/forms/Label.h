// A line or paragraph of text. Its mnemonic leads to the control behind it in the tab order.
#pragma once

#include "forms/Control.h"

namespace orx {

/// Where a text stands in the width of its control.
enum class Alignment { Left, Right, Center };

/// Shows its caption and takes no focus.
class Label final : public Control {
 public:
  /// `wraps`: the text breaks into lines at the width of the label.
  Label(Container& parent, std::string name, Design design, Alignment align = Alignment::Left, bool wraps = false)
      : Control(parent, std::move(name), std::move(design)), mAlign(align), mWraps(wraps) {}

  /// As given when the label was made.
  Alignment Align() const { return mAlign; }
  bool Wraps() const { return mWraps; }
  bool TakesFocus() const override { return false; }
  void Accept(ControlVisitor& visitor) override;

 private:
  Alignment mAlign;
  bool mWraps;
};

}  // namespace orx
