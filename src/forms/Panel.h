// A plain area that holds controls: the body of a property page, a page of a tab control.
#pragma once

#include "forms/Container.h"
#include "forms/Control.h"

namespace orx {

/// Shows nothing of its own. Hiding or disabling it does so to all its controls.
class Panel : public Control, public Container {
 public:
  /// As Control.
  Panel(Container& parent, std::string name, Design design) : Control(parent, std::move(name), std::move(design)) {}

  bool TakesFocus() const override { return false; }
  Container* AsContainer() override { return this; }
  Form& ContainingForm() override { return OwnerForm(); }
  Control* ContainerControl() override { return this; }
  void Accept(ControlVisitor& visitor) override;
};

}  // namespace orx
