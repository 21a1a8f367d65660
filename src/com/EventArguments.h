// The arguments of an automation event, read and answered by position.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <string>

#include "com/Handles.h"

namespace orx::com {

/// A view of the arguments that a control passes, valid during the event. An argument may be a value, a reference to a
/// value or a reference to a variant. Values of other types are converted; members throw RunTimeError when that fails.
class EventArguments {
 public:
  /// Throws when there are fewer arguments than the event has.
  EventArguments(const DISPPARAMS& given, UINT needed);

  /// Positions count from 0 in the order of the declaration.
  std::string Text(UINT position) const;
  std::int32_t Whole(UINT position) const;
  double Number(UINT position) const;
  bool Flag(UINT position) const;
  /// Null for Nothing.
  ComPtr<IDispatch> Object(UINT position) const;

  /// Writes to an argument that is a reference, in the reference's own type. Does nothing for an argument that was
  /// passed by value.
  void Answer(UINT position, Variant value) const;

 private:
  VARIANTARG& At(UINT position) const { return mGiven.rgvarg[mGiven.cArgs - 1 - position]; }
  Variant Read(UINT position, VARTYPE type) const;

  const DISPPARAMS& mGiven;
};

}  // namespace orx::com
