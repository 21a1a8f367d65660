// What all objects that a host hands over have in common: they are asked for the interfaces they support by kind.
#pragma once

#include "hostobjects/BorrowedObject.h"

namespace orx {

/// The kinds of host objects that dialogs ask for. Each interface names its own as `kKind`.
enum class Kind {
  Map,
  Layers,
  Layer,
  Labels,
  Extent,
  Legends,
  Data,
  Classification,
  DataOptions,
  Shade,
  ExtendedShade,
  Isolines
};

/// The base of every object that a host hands to a dialog. The library uses such objects and never owns them: the host
/// keeps them alive while a dialog that was given them is open.
class HostObject : public BorrowedObject {
 public:
  /// The interface of that kind, as a pointer to exactly the interface class of the kind, or null when the object does
  /// not support it. Called by QueryKind only.
  virtual void* Query(Kind kind) = 0;
};

/// The `Interface` of an object, null when there is no object or it does not support it.
template <class Interface>
Interface* QueryKind(HostObject* object) {
  return object ? static_cast<Interface*>(object->Query(Interface::kKind)) : nullptr;
}

}  // namespace orx
