// Makes a host's automation object a host object of the library, which can be asked for the interfaces it supports.
#pragma once

#include <map>
#include <memory>
#include <typeindex>

#include "com/Handles.h"
#include "com/LateBound.h"
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
  AdapterOf(AutomationObject& owner, const ComPtr<IDispatch>& object) : mOwner(owner), mObject(object.Get()) {}

 protected:
  AutomationObject& mOwner;
  LateBound mObject;
};

}  // namespace orx::com
