// The dialog that hosts one property page on a tab. The page does the editing; the form hands it what it needs, relays
// the buttons, and tells the host's call-back.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "hostobjects/PropertyPage.h"
#include "propertydialogs/PropertyDialog.h"

namespace orx {

/// The page that a page-host dialog shows.
struct HostedPageDesign {
  PageKind Kind;
  const char* Name;
};

class PageHostForm : public PropertyDialog {
 public:
  PageHostForm(Desktop& desktop, IPageFactory& pages, const PropertyDesign& design, const HostedPageDesign& page);

  /// Hands over the object to edit (used, not owned) and the host's registry key. Loads the form.
  void RegisterClient(HostObject* client, const std::string& registryKey);
  /// Whether the object was changed; false when the form is not loaded, since its page is gone then.
  bool IsDirty() const { return mPage && mPage->IsDirty(); }
  void IsDirty(bool value) { Page().IsDirty(value); }
  /// Has the page load the object's values.
  void RefreshContents() { Page().RefreshContents(); }

 protected:
  void Form_Load() override;
  void Form_Unload() override;
  /// Puts the form where it is to open.
  virtual void Position() { Center(); }
  /// Answers what the page asks for.
  virtual void AnswerRequests(PropertyPage&) {}
  /// The hosted page. Loads the form.
  PropertyPage& Page();

 private:
  void cmdApply_Click() override;
  void cmdOK_Click() override;
  void cmdCancel_Click() override;

  IPageFactory& mPages;
  HostedPageDesign mPageDesign;
  // Below the controls: the page's own controls stand on the tab and go first.
  std::unique_ptr<PropertyPage> mPage;
};

}  // namespace orx
