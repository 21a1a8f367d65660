// The dialog that hosts one or more property pages of a single object. The pages do the editing; the form hands them
// what they need, relays the buttons and notifies the host's call-back.
#pragma once

#include <string>

#include "propertydialogs/PropertyDialog.h"

namespace orx {

class PageHostForm : public PropertyDialog {
 public:
  using PropertyDialog::PropertyDialog;

  /// Loads the form.
  void RegisterClient(HostObject* client, const std::string& registryKey) override;
  void RefreshContents() override { Pages().RefreshContents(); }

 protected:
  void Form_Resize() override { CloseUpButtons(); }
};

}  // namespace orx
