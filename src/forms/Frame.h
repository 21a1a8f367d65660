// A box with a caption around controls that belong together.
#pragma once

#include "forms/Container.h"
#include "forms/Control.h"

namespace orx {

/// How far below the upper edge of a frame with a caption its line is designed to run, in twips. Without a caption it
/// is the edge itself. Where a desktop draws it lower (Desktop::FrameLine), the contents move down and the frame grows.
inline constexpr int kFrameLine = 105;

/// Takes no focus itself; disabling it puts all its controls out of reach.
class Frame final : public Control, public Container {
 public:
  /// As Control.
  Frame(Container& parent, std::string name, Design design) : Control(parent, std::move(name), std::move(design)) {}

  bool TakesFocus() const override { return false; }
  Container* AsContainer() override { return this; }
  Form& ContainingForm() override { return OwnerForm(); }
  Control* ContainerControl() override { return this; }
  void Accept(ControlVisitor& visitor) override;
};

}  // namespace orx
