// What all dialogs with property pages share: a tab control, Help, OK, Cancel and Apply along the bottom, the host's
// call-back and registry key, and whether the user has cancelled.
#pragma once

#include <string>
#include <vector>

#include "dialogframe/DialogForm.h"
#include "forms/Button.h"
#include "forms/TabControl.h"
#include "hostobjects/IDialogCallBack.h"

namespace orx {

/// Where everything stands in a dialog with property pages, in twips of the client area.
struct PropertyLayout {
  Size Client;
  Rect Tab;
  int ButtonTop;
  int HelpLeft;
  int OKLeft;
  int CancelLeft;
  int ApplyLeft;
};

/// The layout of the dialogs for a layer.
inline constexpr PropertyLayout kLayerLayout{.Client = {6465, 5670},
                                             .Tab = {120, 120, 6255, 4995},
                                             .ButtonTop = 5220,
                                             .HelpLeft = 120,
                                             .OKLeft = 2340,
                                             .CancelLeft = 3720,
                                             .ApplyLeft = 5100};

/// What distinguishes one dialog with property pages from the other.
struct PropertyDesign {
  const char* FormName;
  const char* Caption;
  /// Under which the language has the help context number.
  const char* HelpKey;
  std::vector<std::string> TabCaptions;
  PropertyLayout Layout = kLayerLayout;
  BorderStyle Border = BorderStyle::Fixed;
};

class PropertyDialog : public DialogForm {
 public:
  PropertyDialog(Desktop& desktop, const PropertyDesign& design);

  /// The host's call-back, null for none. A plain pointer: the host keeps the object alive while the form is open, and
  /// unloading clears the pointer. Taking one on calls its RegisterNotify.
  void RegisterCallBack(IDialogCallBack* callBack);
  /// True after Cancel; false at first and after OK.
  bool Canceled() const { return mCanceled; }

 protected:
  void Form_Unload() override;
  /// What the buttons do.
  virtual void cmdApply_Click() = 0;
  virtual void cmdOK_Click() = 0;
  virtual void cmdCancel_Click() = 0;

  /// Asks the language whether it has entries, and takes the help context number from one that has.
  void TakeLanguage();
  IDialogCallBack* CallBack() const { return mCallBack; }
  const std::string& RegistryKey() const { return mRegistryKey; }
  void RegistryKey(const std::string& value) { mRegistryKey = value; }
  /// Hides the form, so that the service can still read it.
  void Close(bool canceled);
  /// Without a call-back: hides Apply and moves OK and Cancel one place to the right.
  void CloseUpButtons();

 private:
  IDialogCallBack* mCallBack = nullptr;
  std::string mRegistryKey;
  bool mCanceled = false;
  const char* mHelpKey;

 public:
  TabControl ssTab;
  Button cmdHelp;
  Button cmdOK;
  Button cmdCancel;
  Button cmdApply;
};

}  // namespace orx
