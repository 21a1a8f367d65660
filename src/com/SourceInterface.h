// The interface through which a control raises its events: the published one of page controls, or the control's own.
#pragma once

#include <windows.h>

#include <map>
#include <string>

#include "com/Handles.h"

namespace orx::com {

/// An event interface, as far as its events have to be recognised.
struct SourceInterface {
  IID Id = {};
  /// The names of the events by dispatch identifier. Empty for the published interface, whose identifiers are known.
  std::map<DISPID, std::string> Names;
};

/// The default source interface according to the control's type information; the Id is empty when there is none.
SourceInterface DefaultSource(IUnknown& control);

}  // namespace orx::com
