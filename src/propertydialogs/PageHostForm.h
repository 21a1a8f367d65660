// The dialog that hosts one property page on a tab, with Help, OK, Cancel and Apply along the bottom. The page does the
// editing; the form hands it what it needs, relays the buttons, and tells the host's call-back.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "forms/Button.h"
#include "forms/TabControl.h"
#include "hostobjects/IDialogCallBack.h"
#include "hostobjects/PropertyPage.h"
#include "service/DialogForm.h"

namespace orx {

/// Where everything stands in a page-host dialog, in twips of the client area.
struct PageHostLayout {
  Size Client;
  Rect Tab;
  int ButtonTop;
  int HelpLeft;
  int OKLeft;
  int CancelLeft;
  int ApplyLeft;
};

/// The layout of the dialogs for a layer.
inline constexpr PageHostLayout kLayerLayout{.Client = {6465, 5670},
                                             .Tab = {120, 120, 6255, 4995},
                                             .ButtonTop = 5220,
                                             .HelpLeft = 120,
                                             .OKLeft = 2340,
                                             .CancelLeft = 3720,
                                             .ApplyLeft = 5100};

/// What distinguishes one page-host dialog from the other.
struct PageHostDesign {
  const char* FormName;
  const char* Caption;
  const char* TabCaption;
  const char* HelpKey;
  PageKind Page;
  const char* PageName;
  PageHostLayout Layout = kLayerLayout;
};

class PageHostForm : public DialogForm {
 public:
  PageHostForm(Desktop& desktop, IPageFactory& pages, const PageHostDesign& design);

  /// The host's call-back, null for none. A plain pointer: the host keeps the object alive while the form is open, and
  /// unloading clears the pointer. Taking one on calls its RegisterNotify.
  void RegisterCallBack(IDialogCallBack* callBack);
  /// Hands over the object to edit (used, not owned) and the host's registry key. Loads the form.
  void RegisterClient(HostObject* client, const std::string& registryKey);
  /// Whether the object was changed; false when the form is not loaded, since its page is gone then.
  bool IsDirty() const { return mPage && mPage->IsDirty(); }
  void IsDirty(bool value) { Page().IsDirty(value); }
  /// True after Cancel; false at first and after OK.
  bool Canceled() const { return mCanceled; }
  /// Has the page load the object's values.
  void RefreshContents() { Page().RefreshContents(); }

 protected:
  void Form_Load() override;
  void Form_Unload() override;
  /// The hosted page. Loads the form.
  PropertyPage& Page();
  /// Without a call-back: hides Apply and moves OK and Cancel one place to the right.
  void CloseUpButtons();

 private:
  void cmdApply_Click();
  void cmdOK_Click();
  void cmdCancel_Click();

  const PageHostDesign& mHostDesign;
  IPageFactory& mPages;
  IDialogCallBack* mCallBack = nullptr;
  std::string mRegistryKey;
  bool mCanceled = false;

 public:
  TabControl ssTab;
  Button cmdHelp;
  Button cmdOK;
  Button cmdCancel;
  Button cmdApply;

 private:
  // Below the controls: the page's own controls stand on the tab and go first.
  std::unique_ptr<PropertyPage> mPage;
};

}  // namespace orx
