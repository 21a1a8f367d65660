// A property page that is somebody else's control, hosted in the form and reached by the names of its members.
#pragma once

#include <windows.h>

#include <string>

#include "com/HostedControl.h"
#include "com/LateBound.h"
#include "com/PageEvents.h"
#include "forms/NativeArea.h"
#include "hostobjects/PropertyPage.h"

namespace orx::com {

/// The control is made with the page and goes with it; it is shown while the form has a window. Every member calls the
/// control's member of the same name and throws RunTimeError when that one fails or is missing.
class HostedPage final : public PropertyPage {
 public:
  /// Throws RunTimeError when the control cannot be made.
  HostedPage(const PageSite& site, const std::string& progId, const CLSID& control);
  ~HostedPage() override;

  HostObject* Client() const override { return mClient; }
  /// Hands over the object's automation object. Throws for an object that has none: it is the program's own, and the
  /// control could not read it.
  void Client(HostObject* value) override;
  ILanguage* Language() const override { return mLanguage; }
  /// Hands over the language's automation object, or Nothing for a language of the program's own: the page stays in
  /// the control's own words then, which is no reason not to show it.
  void Language(ILanguage* value) override;
  bool IsDirty() const override { return mMembers.GetBool("IsDirty"); }
  void IsDirty(bool value) override { mMembers.Put("IsDirty", value); }
  std::int32_t StartUpIndex() const override { return mMembers.GetLong("StartUpIndex"); }
  void StartUpIndex(std::int32_t value) override { mMembers.Put("StartUpIndex", value); }
  void RefreshContents() override { mMembers.Call("RefreshContents"); }
  void SaveChanges() override { mMembers.Call("SaveChanges"); }
  void DiscardChanges() override { mMembers.Call("DiscardChanges"); }
  void ApplyChanges() override { mMembers.Call("ApplyChanges"); }
  /// Controls that stand alone in their dialogs need not have this member.
  void Selected(bool value) override;
  using PropertyPage::Selected;

 private:
  void HandleArea();
  void Open(HWND area);

  std::string mProgId;
  HostedControl mControl;
  LateBound mMembers;
  NativeArea mArea;
  ComPtr<PageEvents> mEvents;
  HostObject* mClient = nullptr;
  ILanguage* mLanguage = nullptr;
};

}  // namespace orx::com
