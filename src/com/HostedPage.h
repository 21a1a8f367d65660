// A property page that is a host's ActiveX control, shown in the form and called by the names of its members.
#pragma once

#include <windows.h>

#include <string>

#include "com/HostedControl.h"
#include "com/Members.h"
#include "com/PageEvents.h"
#include "forms/NativeArea.h"
#include "hostobjects/PropertyPage.h"

namespace orx::com {

/// The control lives as long as the page, and is shown while the form has a window. Every member calls the control's
/// member of the same name, and throws RunTimeError when that fails or is missing.
class HostedPage final : public PropertyPage {
 public:
  /// Throws RunTimeError when the control cannot be made.
  HostedPage(const PageSite& site, const std::string& progId, const CLSID& control);
  ~HostedPage() override;

  HostObject* Client() const override { return mClient; }
  /// Passes on the automation object behind the host object. Throws RunTimeError for an object of the program's own,
  /// which has none: the control could not read it.
  void Client(HostObject* value) override;
  ILanguage* Language() const override { return mLanguage; }
  /// Passes on the automation object behind the language, or Nothing for a language of the program's own: the page then
  /// stays in the control's own language, which is no reason not to show it.
  void Language(ILanguage* value) override;
  bool IsDirty() const override { return mMembers.GetBool("IsDirty"); }
  void IsDirty(bool value) override { mMembers.Put("IsDirty", value); }
  std::int32_t StartUpIndex() const override { return mMembers.GetLong("StartUpIndex"); }
  void StartUpIndex(std::int32_t value) override { mMembers.Put("StartUpIndex", value); }
  void RefreshContents() override { mMembers.Call("RefreshContents"); }
  void SaveChanges() override { mMembers.Call("SaveChanges"); }
  void DiscardChanges() override { mMembers.Call("DiscardChanges"); }
  void ApplyChanges() override { mMembers.Call("ApplyChanges"); }
  /// Controls that are the only page of their dialog need not have this member.
  void Selected(bool value) override;
  using PropertyPage::Selected;

 private:
  void HandleArea();
  void Open(HWND area);

  std::string mProgId;
  HostedControl mControl;
  Members mMembers;
  NativeArea mArea;
  ComPtr<PageEvents> mEvents;
  HostObject* mClient = nullptr;
  ILanguage* mLanguage = nullptr;
};

}  // namespace orx::com
