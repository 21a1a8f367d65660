// A host's automation object as a host object of the library: it answers for interfaces.
#pragma once

#include <map>
#include <memory>
#include <typeindex>

#include "com/Handles.h"
#include "hostobjects/HostObject.h"

namespace orx::com {

/// Keeps a counted reference to the host's object, the interfaces that it was asked for, and the objects that those
/// have given.
class AutomationObject final : public HostObject, public std::enable_shared_from_this<AutomationObject> {
 public:
  explicit AutomationObject(IDispatch* object) : mObject(object) {}

  IDispatch* Automation() const { return mObject.Get(); }
  HostInterface* ViewFor(const std::type_info& wanted) override;
  std::shared_ptr<const void> Lifetime() const override { return shared_from_this(); }

  /// The same host object for the same automation object, kept here; null for null.
  AutomationObject* Adopt(const ComPtr<IDispatch>& object);

 private:
  /// Null for an interface that the object does not have.
  std::shared_ptr<HostInterface> MakeView(const std::type_info& wanted);

  ComPtr<IDispatch> mObject;
  std::map<std::type_index, std::shared_ptr<HostInterface>> mViews;
  std::map<IUnknown*, std::shared_ptr<AutomationObject>> mAdopted;
};

}  // namespace orx::com
