// What the property pages of the map library have in common: the client, the language, when values are read and
// written, and what counts as changed.
#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include "forms/BusyScope.h"
#include "forms/Form.h"
#include "forms/Panel.h"
#include "forms/SettingOf.h"
#include "hostobjects/ILanguage.h"
#include "hostobjects/PropertyPage.h"
#include "hostobjects/RunTimeError.h"
#include "pages/PageTexts.h"

namespace orx {
class ComboBox;
}

namespace orx::pages {

/// A page declares its settings, which join its list. It reads its client in RefreshContents only, and keeps what it
/// read. A save first checks all fields that are still being typed in; when one is refused, nothing at all is written.
/// Then it writes the settings that differ from what was read, and no others, so that a page left as it was calls no
/// setter. IsDirty tells whether one was written; edits that wait for a save do not count.
///
/// Nothing that the client throws leaves the page, of whatever type. A setting that cannot be read is locked: its
/// controls are disabled, and their tool tips say why. What the client does not take is told to the user in one message
/// at the end of the save, stays in its field as an edit, and keeps no other setting from being written. A client that
/// does not even tell whether it has what the page edits leaves the page empty, with the reason as tool tip.
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

  /// Whether the client has what the page edits. What these two throw leaves the page empty.
  virtual bool IsSupported() const = 0;
  /// Reads the client, without showing it yet.
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
  /// Whether a control is of use now, as far as that depends on other controls.
  virtual bool Offers(const Control&) const { return true; }
  /// What the client has not taken in this save: a line for each setting, see Line.
  virtual std::vector<std::string> Refused() const;
  /// The list whose settings the controls show.
  virtual const Settings& Shown() const { return mSettings; }

  /// The settings of the page.
  Settings& List() { return mSettings; }
  /// Has a list that the page makes beside it count what it writes, and translate its messages.
  void Adopt(Settings& list);
  /// Where settings find what the page edits: an interface of the client.
  template <class Interface>
  Part<Interface> OfClient() {
    return {mSettings, Asked<Interface>([this] { return As<Interface>(Client()); })};
  }
  /// The interface of an object of the host; null when it has none. A host that has closed the form, be it in this very
  /// call, is not called any more: there is none either then.
  template <class Interface>
  Interface* As(HostObject* object) const {
    if (OwnerForm().IsRetired()) return nullptr;
    Interface* const found = QueryKind<Interface>(object);
    return OwnerForm().IsRetired() ? nullptr : found;
  }
  /// What finds an object of the client for a Part: one that does not answer is an error, unless the form is retired.
  template <class Interface>
  std::function<Interface*()> Asked(std::function<Interface*()> find) {
    return [this, find]() -> Interface* {
      Interface* const found = OwnerForm().IsRetired() ? nullptr : find();
      return OwnerForm().IsRetired() ? nullptr : &Required(found);
    };
  }
  /// Throws when the client has given no object where one is needed.
  template <class Interface>
  static Interface& Required(Interface* object) {
    if (object) return *object;
    throw RunTimeError(kErrorNotLoaded, pagetexts::kGone);
  }
  /// Runs what asks the client for something before a dialog opens. False when it throws, which the user is told, and
  /// when the form is retired since.
  bool Ask(const std::function<void()>& question);
  /// A control that shows settings or acts on them, without being their field: it is locked with each of them.
  void Follow(const Control& control, std::vector<const Setting*> settings) {
    mFollowers.push_back({&control, std::move(settings)});
  }
  /// Enables the controls that are of use, and explains those that are locked.
  void EnableControls();
  /// "Size: reason".
  std::string Line(const std::string& name, const Setting& refused) const;
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

  Form& OwnerForm() const { return Surface.OwnerForm(); }

 private:
  struct TranslatedList {
    ComboBox* Box;
    std::vector<std::string> Texts;
  };

  struct Follower {
    const Control* Box;
    std::vector<const Setting*> Followed;
  };

  std::string Text(const std::string& text) const;
  /// A reason for the user: those of the library are translated.
  std::string Reason(const std::string& words) const;
  /// The locked setting that a control shows or acts on; null for none.
  const Setting* LockOf(const Control& control) const;
  /// Why a control shows nothing that can be edited; empty for others.
  std::string WhyNot(const Control& control) const;
  void TakeBackReasons();
  /// False when an entry was refused.
  bool WriteChecked();
  /// Tells the user what was not written; true when something was not.
  bool TellRefused();
  void Tell(const std::string& text);

  HostObject* mClient = nullptr;
  ILanguage* mLanguage = nullptr;
  bool mIsDirty = false;
  bool mIsBusy = false;
  bool mHasRead = false;
  bool mHasWritten = false;
  /// Why the page shows nothing.
  std::string mNothing;
  Settings mSettings{WriteRule::WhenEdited, KeepFault};
  std::vector<TranslatedList> mLists;
  std::vector<Follower> mFollowers;
  /// The tool tips that reasons stand in for.
  std::map<Control*, std::string> mToolTips;
};

}  // namespace orx::pages
