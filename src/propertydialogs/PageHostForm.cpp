#include "propertydialogs/PageHostForm.h"

namespace orx {

void PageHostForm::RegisterClient(HostObject* client, const std::string& registryKey) {
  RegistryKey(registryKey);
  Hold(client);
  Pages().Client(client);
}

}  // namespace orx
