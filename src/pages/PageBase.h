// What the property pages of the map library have in common: the client, the language, when values are read and
// written, and what counts as changed.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "forms/BusyScope.h"
#include "forms/Panel.h"
#include "forms/SettingOf.h"
#include "hostobjects/ILanguage.h"
#include "hostobjects/PropertyPage.h"

namespace orx {
class ComboBox;
}

namespace orx::pages {

/// A page declares its settings, which join its list. It reads its client in RefreshContents only, and keeps what it
/// read. A save first checks all fields that are still being typed in; when one is refused, nothing at all is written.
/// Then it writes the settings that differ from what was read, and no others, so that a page left as it was calls no
/// setter. IsDirty tells whether one was written; edits that wait for a save do not count. What the client throws
/// travels to the caller.
class PageBase : public PropertyPage {
 public:
  HostObject* Client() const override { return mClient; }
  void Client(HostObject* value) override;
  ILanguage* Language() const override { return mLanguage; }
  void Language(ILanguage* value) override;
  bool IsDirty() const override { return mIsDirty; }
  void IsDirty(bool value) override { mIsDirty = value; }
  void RefreshContents() override;
  void SaveChanges() override;
  /// Writes, then shows what the client made of the values.
  void ApplyChanges() override;
  void DiscardChanges() override { RefreshContents(); }

  /// The surface of the page.
  Panel Surface;

 protected:
  explicit PageBase(const PageSite& site);

  /// Whether the client has what the page edits.
  virtual bool IsSupported() const = 0;
  /// Reads the client. Fields are left alone until all could be read.
  virtual void ReadClient() { mSettings.Fetch(); }
  /// Forgets what was read: the page shows nothing.
  virtual void ForgetClient() { mSettings.Forget(); }
  /// Shows what was read, or that there is nothing. The page is busy meanwhile.
  virtual void ShowValues() { mSettings.Show(); }
  /// Writes the settings that differ.
  virtual void WriteClient() { mSettings.Write(); }
  /// Runs when a setting was written.
  virtual void WasWritten(const Setting&) {}
  /// Checks rules across fields. False when an entry was refused.
  virtual bool CheckTogether() { return true; }
  /// Enables the controls that depend on others, after all were enabled.
  virtual void EnableDependent() {}

  /// The settings of the page.
  Settings& List() { return mSettings; }
  /// Has a list that the page makes beside it count what it writes, and translate its messages.
  void Adopt(Settings& list);
  /// Where settings find what the page edits: an interface of the client.
  template <class Interface>
  Part<Interface> OfClient() {
    return {mSettings, [this] { return QueryKind<Interface>(Client()); }};
  }
  /// True while the page shows a client that it has read.
  bool HasRead() const { return mHasRead; }
  /// True while the page fills its own controls; their handlers do nothing then.
  bool IsBusy() const { return mIsBusy; }
  /// Runs `fill` with the page busy, also when it throws.
  template <class Fill>
  void WhileBusy(Fill&& fill) {
    const BusyScope scope(mIsBusy);
    fill();
  }

  /// Fills a list with texts that the language translates; the entries are numbered from 0.
  void FillList(ComboBox& box, std::initializer_list<const char*> texts);

  Form& OwnerForm() { return Surface.OwnerForm(); }

 private:
  struct TranslatedList {
    ComboBox* Box;
    std::vector<std::string> Texts;
  };

  void ShowNothing();
  void EnableAll(bool enabled);
  bool WriteChecked();

  HostObject* mClient = nullptr;
  ILanguage* mLanguage = nullptr;
  bool mIsDirty = false;
  bool mIsBusy = false;
  bool mHasRead = false;
  bool mHasWritten = false;
  Settings mSettings{WriteRule::WhenEdited};
  std::vector<TranslatedList> mLists;
};

}  // namespace orx::pages
