#include "forms/RowList.h"

#include "forms/RowNavigation.h"

namespace orx {

RowList::RowList() : mTyped(std::make_unique<TypeAhead>()) {
}

RowList::~RowList() = default;

}  // namespace orx
