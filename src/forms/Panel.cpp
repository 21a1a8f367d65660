#include "forms/Panel.h"

#include "forms/ControlVisitor.h"

namespace orx {

void Panel::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

}  // namespace orx
