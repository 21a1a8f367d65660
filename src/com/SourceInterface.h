// The interface by which a control raises its events: the published one of page controls, or the control's own.
#pragma once

#include <windows.h>

#include <map>
#include <string>

#include "com/Handles.h"

namespace orx::com {

/// What is to be known of an event interface in order to be called through it.
struct SourceInterface {
  IID Id = {};
  /// The names of the events by their numbers. Empty for the published interface, whose numbers are known.
  std::map<DISPID, std::string> Names;
};

/// The default source interface as the control's type information tells it; with an empty Id when it tells none.
SourceInterface DefaultSource(IUnknown& control);

}  // namespace orx::com
