#include "forms/Label.h"

#include "forms/ControlVisitor.h"

namespace orx {

void Label::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

}  // namespace orx
