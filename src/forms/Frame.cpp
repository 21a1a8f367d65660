#include "forms/Frame.h"

#include "forms/ControlVisitor.h"

namespace orx {

void Frame::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

}  // namespace orx
