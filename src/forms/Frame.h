// A box with a caption around controls that belong together.
#pragma once

#include "forms/Container.h"
#include "forms/Control.h"

namespace orx {

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
