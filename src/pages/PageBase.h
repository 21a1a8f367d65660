// What the property pages of the map library have in common: the client, the language, when values are read and
// written, and what counts as changed.
#pragma once

#include <cmath>
#include <initializer_list>
#include <string>
#include <vector>

#include "forms/BusyScope.h"
#include "forms/CheckedField.h"
#include "forms/Panel.h"
#include "hostobjects/ILanguage.h"
#include "hostobjects/PropertyPage.h"

namespace orx {
class ComboBox;
}

namespace orx::pages {

/// A page reads its client in RefreshContents only, and keeps what it read. A save first checks all fields that are
/// still being typed in; when one is refused, nothing at all is written. Then it writes the values that differ from
/// those read, and no others, so that a page left as it was calls no setter. IsDirty tells whether such a value was
/// written; edits that wait for a save do not count. What the client throws travels to the caller.
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
  /// Keeps the client's values as those read. Fields are left alone until all could be read.
  virtual void ReadClient() = 0;
  /// Forgets the values read: the page shows nothing.
  virtual void ForgetClient() = 0;
  /// Shows the values read. The page is busy meanwhile.
  virtual void ShowValues() = 0;
  /// Writes the values that differ, each through Write.
  virtual void WriteClient() = 0;
  /// Checks rules across fields. False when an entry was refused.
  virtual bool CheckTogether() { return true; }
  /// Enables the controls that depend on others, after all were enabled.
  virtual void EnableDependent() {}

  /// True while the page fills its own controls; their handlers do nothing then.
  bool IsBusy() const { return mIsBusy; }
  /// Runs `fill` with the page busy, also when it throws.
  template <class Fill>
  void WhileBusy(Fill&& fill) {
    const BusyScope scope(mIsBusy);
    fill();
  }

  /// Writes one value when it differs from the one read, which it then becomes.
  template <class Value, class Setter>
  void Write(Value& read, const Value& now, Setter&& set) {
    if (IsSame(read, now)) return;
    set(now);
    read = now;
    mIsDirty = true;
    mHasWritten = true;
  }

  /// Has a save check the field, and its messages translated.
  void Watch(CheckedField& field);
  /// Fills a list with texts that the language translates; the entries are numbered from 0.
  void FillList(ComboBox& box, std::initializer_list<const char*> texts);

  Form& OwnerForm() { return Surface.OwnerForm(); }

 private:
  template <class Value>
  static bool IsSame(const Value& a, const Value& b) {
    return a == b;
  }
  /// A host's NaN that nobody edited is no change either.
  static bool IsSame(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

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
  std::vector<CheckedField*> mWatched;
  std::vector<TranslatedList> mLists;
};

}  // namespace orx::pages
