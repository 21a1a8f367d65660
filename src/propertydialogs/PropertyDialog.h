// What all dialogs with property pages share: the pages on a tab control, Help, OK, Cancel and Apply along the bottom,
// the host's call-back and registry key, and everything that the service relies on.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "dialogframe/OkCancelForm.h"
#include "forms/Button.h"
#include "forms/TabControl.h"
#include "hostobjects/ErrorTrap.h"
#include "hostobjects/IDialogCallBack.h"
#include "propertydialogs/PropertyPages.h"

namespace orx {

/// The layout of a dialog with property pages, in twips of the client area.
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

/// What distinguishes one dialog with property pages from another.
struct PropertyDesign {
  const char* Name;
  const char* Caption;
  /// The key under which the language has the help context number.
  const char* HelpKey;
  /// In the order of their tabs.
  std::vector<PageDesign> Pages;
  PropertyLayout Layout = kLayerLayout;
  BorderStyle Border = BorderStyle::Fixed;
};

/// What the service hands to a dialog before showing it.
struct PropertyTask {
  /// The object to edit, null for none.
  HostObject* Client;
  std::string RegistryKey;
  /// Null for none.
  IDialogCallBack* CallBack;
  /// The index of a legend, or the flags of the layer manager.
  std::int32_t Number = 0;
};

class PropertyDialog : public OkCancelForm {
 public:
  PropertyDialog(Desktop& desktop, IPageFactory& factory, const PropertyDesign& design);

  /// Registers everything in the task, each item in a step of its own.
  virtual void Take(const PropertyTask& task, ErrorTrap& trap);
  /// Sets the host's call-back, null for none, and calls its RegisterNotify. A plain pointer: the host keeps the object
  /// alive while the form is open, and unloading clears the pointer.
  void RegisterCallBack(IDialogCallBack* callBack);
  /// Sets the object to edit (used, not owned) and the host's registry key.
  virtual void RegisterClient(HostObject* client, const std::string& registryKey) = 0;
  /// Whether the object was changed, which is the result of the dialog. False while the form is not loaded, since it
  /// has no pages then. Setting it loads the form.
  virtual bool IsDirty() const { return IsLoaded() && mPages && mPages->IsResultDirty(); }
  virtual void IsDirty(bool value) { Pages().IsDirty(value); }
  /// Makes the pages load the object's values. Loads the form.
  virtual void RefreshContents() = 0;
  /// What the call-back was last told: whether anything had changed.
  bool LastChange() const { return mLastChange; }

 protected:
  using Act = void (PropertyPage::*)();
  using Notification = void (IDialogCallBack::*)(bool);

  void Form_Load() override;
  void TakeLanguage() override;
  void Fill() override;
  void Form_Unload() override;
  void Form_Release() override;

  virtual void cmdApply_Click();
  void Accept() override;
  void Discard() override;
  /// What happens under the hourglass of Apply.
  virtual void Apply();
  /// Calls a member of all pages, and then tells the call-back, if any, whether anything has changed.
  virtual void Relay(Act act, Notification notify);
  /// The two halves of that. Neither goes on once the form is retired.
  void Do(Act act);
  void Tell(Notification notify);
  /// Shows the hourglass while `work` runs. Unlike WithHourglass, an error of a page or of the call-back leaves it.
  void UnderHourglass(const std::function<void()>& work);
  /// Runs one step of these. An error ends the button's work, unless the dialog overrides this to go on with the next
  /// step.
  virtual void ButtonStep(const std::function<void()>& step) { step(); }
  /// Whether anything has changed, whether it counts in the result or not.
  virtual bool IsAnyDirty() const { return mPages && mPages->IsAnyDirty(); }

  /// The pages. Loads the form; throws RunTimeError if they could not be made.
  PropertyPages& Pages();
  bool HasPages() const { return mPages.has_value(); }
  IDialogCallBack* CallBack() const { return mCallBack; }
  const std::string& RegistryKey() const { return mRegistryKey; }
  void RegistryKey(const std::string& value) { mRegistryKey = value; }
  /// Without a call-back, hides Apply and moves OK and Cancel one place to the right.
  void CloseUpButtons();

 private:
  IPageFactory& mFactory;
  std::vector<PageDesign> mPageDesigns;
  IDialogCallBack* mCallBack = nullptr;
  std::string mRegistryKey;
  bool mLastChange = false;

 public:
  TabControl ssTab;
  Button cmdHelp;
  OKButton cmdOK;
  CancelButton cmdCancel;
  Button cmdApply;

 private:
  // Declared after the controls: the pages' own controls are on the tabs and have to go first.
  std::optional<PropertyPages> mPages;
};

}  // namespace orx
