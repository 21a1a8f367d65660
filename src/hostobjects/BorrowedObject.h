// What the host lends to the library: used, never owned.
#pragma once

#include <memory>

namespace orx {

/// The base of everything that a host hands over. The host keeps such an object alive while a dialog that was given it
/// is open, unless the object says itself what keeps it usable.
class BorrowedObject {
 public:
  virtual ~BorrowedObject() = default;
  /// What a dialog holds on to while it is open, for objects that are adapters made for one call; null: nothing, the
  /// host sees to it.
  virtual std::shared_ptr<const void> Lifetime() const { return nullptr; }
};

}  // namespace orx
