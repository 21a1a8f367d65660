// Makes a host's automation object a host object of the library, which can be asked for the interfaces it supports.
#pragma once

#include <map>
#include <memory>
#include <typeindex>
#include <utility>

#include "com/Handles.h"
#include "com/Members.h"
#include "hostobjects/HostObject.h"

namespace orx::com {

/// Holds a reference to the host's object, and keeps the interfaces that were asked for and the objects that these
/// returned.
class AutomationObject final : public HostObject, public std::enable_shared_from_this<AutomationObject> {
 public:
  explicit AutomationObject(IDispatch* object) : mObject(object) {}

  IDispatch* Automation() const { return mObject.Get(); }
  HostInterface* ViewFor(const std::type_info& wanted) override;
  std::shared_ptr<const void> Lifetime() const override { return shared_from_this(); }

  /// Returns the same host object for the same automation object, and keeps it. Null for null.
  AutomationObject* Adopt(const ComPtr<IDispatch>& object);

 private:
  /// Null for an interface that the object does not have.
  std::shared_ptr<HostInterface> MakeView(const std::type_info& wanted);

  ComPtr<IDispatch> mObject;
  std::map<std::type_index, std::shared_ptr<HostInterface>> mViews;
  std::map<IUnknown*, std::shared_ptr<AutomationObject>> mAdopted;
};

/// The base of an adapter: an interface of the library over the members of an automation object.
template <class Interface>
class AdapterOf : public Interface {
 public:
  /// `owner` keeps the objects that the members give, and must outlive the adapter.
  AdapterOf(AutomationObject& owner, Members object) : mOwner(owner), mObject(std::move(object)) {}

 protected:
  AutomationObject& mOwner;
  Members mObject;
};

/// The adapters of the parts that an object gives, one for each part. They stay, because host code can have the same
/// part asked for again while one of its members is called.
template <class Adapter>
class AdaptedParts {
 public:
  Adapter& Of(AutomationObject& owner, Members part) {
    // The identity of an object is its IUnknown; the adapter's reference keeps the address from being used again.
    std::unique_ptr<Adapter>& known = mAdapters[part.Identity().Get()];
    if (!known) known = std::make_unique<Adapter>(owner, std::move(part));
    return *known;
  }

 private:
  std::map<IUnknown*, std::unique_ptr<Adapter>> mAdapters;
};

}  // namespace orx::com
