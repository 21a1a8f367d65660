#include "forms/ListBox.h"

#include "forms/ControlVisitor.h"

namespace orx {

void ListBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

}  // namespace orx
