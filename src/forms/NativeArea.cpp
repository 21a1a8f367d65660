#include "forms/NativeArea.h"

#include "forms/ControlVisitor.h"

namespace orx {

void NativeArea::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

}  // namespace orx
