// Type information for controls that raise events through an interface of their own, made in memory.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <string>

#include "com/Handles.h"

namespace orx::test {

/// One event of an interface: its name and its number.
struct DescribedEvent {
  std::string Name;
  DISPID Id;
};

/// The description of a class whose default source interface is `source` with that event.
com::ComPtr<ITypeInfo> DescribeClass(const IID& source, const DescribedEvent& event);

}  // namespace orx::test
