// Dialog for all settings of a layer: its four property pages at once.
#pragma once

#include <optional>
#include <string>

#include "propertydialogs/LayerPages.h"
#include "propertydialogs/PropertyDialog.h"

namespace orx {

class frmSettings final : public PropertyDialog {
 public:
  frmSettings(Desktop& desktop, IPageFactory& pages);

  /// Hands over the layer to edit (used, not owned) and the host's registry key. Loads the form.
  void RegisterClient(HostObject* client, const std::string& registryKey);
  /// Whether the layer was changed, its labels left out; false when the form is not loaded.
  bool IsDirty() const { return mPages && mPages->IsDirtyBesideLabels(); }
  void IsDirty(bool value) { Pages().IsDirty(value); }
  /// Has the pages load the layer's values.
  void RefreshContents() { Pages().Do(&PropertyPage::RefreshContents); }
  /// Whether any page had changed something when the call-back was last told.
  bool LastChange() const { return mLastChange; }

 protected:
  void Form_Load() override;
  void Form_Resize() override { RefreshContents(); }
  void Form_Unload() override;

 private:
  void cmdApply_Click() override;
  void cmdOK_Click() override;
  void cmdCancel_Click() override;
  void TranslateTabs();
  /// Loads the form.
  LayerPages& Pages();

  IPageFactory& mFactory;
  bool mLastChange = false;
  // Below the controls: the pages' own controls stand on the tabs and go first.
  std::optional<LayerPages> mPages;
};

}  // namespace orx
