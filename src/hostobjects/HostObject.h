// What all objects that a host hands over have in common: they are asked for the interfaces they have by type.
#pragma once

#include <concepts>
#include <typeinfo>

#include "hostobjects/BorrowedObject.h"

namespace orx {

/// The base of the interfaces that dialogs ask host objects for.
class HostInterface {
 public:
  virtual ~HostInterface() = default;
};

/// The base of every object that a host hands to a dialog. A host's class derives from this and from the interfaces it
/// has, and is done. The library uses such objects and never owns them: the host keeps them alive while a dialog that
/// was given them is open.
class HostObject : public BorrowedObject {
 public:
  /// For objects that have an interface on a part of theirs, through an adapter, or at times only: who answers for the
  /// wanted one in their place. Asked for an interface that the object does not derive from; called by QueryKind only.
  /// Null, or something without the wanted interface: the object does not support it. The answer is used as long as
  /// the object.
  virtual HostInterface* ViewFor(const std::type_info& /*wanted*/) { return nullptr; }
};

/// The `Interface` of an object, its own or that of a view; null when there is no object or it does not support it.
template <std::derived_from<HostInterface> Interface>
Interface* QueryKind(HostObject* object) {
  if (!object) return nullptr;
  if (auto* const own = dynamic_cast<Interface*>(object)) return own;
  return dynamic_cast<Interface*>(object->ViewFor(typeid(Interface)));
}

}  // namespace orx
