// A host's automation object as the dialogs get it.
#pragma once

#include <memory>
#include <string>

#include "com/HostAdapters.h"
#include "tests/com/pagecontrols/TestObject.h"

namespace orx::test {

class AdaptedObject {
 public:
  explicit AdaptedObject(const std::string& name) : mObject(com::MakeCounted<TestObject>(name)) {}

  const std::string& Name() const { return mObject->Name; }
  HostObject& Adapter() { return *mAdapter; }

 private:
  com::ComPtr<TestObject> mObject;
  std::shared_ptr<HostObject> mAdapter = com::AdaptHostObject(mObject.Get());
};

}  // namespace orx::test
