// A host that writes down every call that reaches it, in one list, and fails where a test wants it to: pages with their
// factory, the language and the call-back.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "forms/Container.h"
#include "forms/Panel.h"
#include "forms/TextBox.h"
#include "hostobjects/IDialogCallBack.h"
#include "hostobjects/ILanguage.h"
#include "hostobjects/PropertyPage.h"
#include "hostobjects/RunTimeError.h"
#include "tests/support/Faults.h"

namespace orx::test {

class CallLog {
 public:
  /// Writes the call down, and throws when the test wants it to fail.
  void Call(const std::string& text) {
    Calls.push_back(text);
    if (WhenCalled) WhenCalled();
    const std::string name = text.substr(0, text.find('('));
    if (Faults) Faults->Call(name);
    if (Failing.contains(name)) throw RunTimeError(1001, name + " failed");
  }

  std::vector<std::string> Calls;
  /// What else happens in each call.
  std::function<void()> WhenCalled;
  /// Names of the calls that fail, such as "Page.ApplyChanges".
  std::set<std::string> Failing;
  FaultPlan* Faults = nullptr;
};

/// An object without any interface.
class PlainObject final : public HostObject {};

/// One text field; what is typed there is dirty once it was saved or applied.
class RecordingPage final : public PropertyPage {
 public:
  /// `name` stands before its calls; `nameOf` tells what to write for a client.
  RecordingPage(CallLog& log, const PageSite& site, std::string name,
                std::function<std::string(HostObject*)> nameOf = nullptr);
  ~RecordingPage() override { mLog.Calls.push_back(mName + ".Gone"); }

  HostObject* Client() const override { return mClient; }
  void Client(HostObject* value) override;
  ILanguage* Language() const override { return mLanguage; }
  void Language(ILanguage* value) override;
  bool IsDirty() const override;
  void IsDirty(bool value) override;
  std::int32_t StartUpIndex() const override;
  void StartUpIndex(std::int32_t value) override;
  void RefreshContents() override { Call("RefreshContents"); }
  void SaveChanges() override { Write("SaveChanges"); }
  void DiscardChanges() override { Call("DiscardChanges"); }
  void ApplyChanges() override { Write("ApplyChanges"); }
  /// The field that the user edits.
  TextBox& Field() { return txtValue; }

 private:
  void Call(const std::string& call) const { mLog.Call(mName + "." + call); }
  void Write(const std::string& call);

  CallLog& mLog;
  std::string mName;
  std::function<std::string(HostObject*)> mNameOf;
  HostObject* mClient = nullptr;
  ILanguage* mLanguage = nullptr;
  bool mDirty = false;
  std::string mWritten;
  Panel mPanel;
  TextBox txtValue;
};

class RecordingPages final : public IPageFactory {
 public:
  explicit RecordingPages(CallLog& log) : mLog(log) {}
  std::unique_ptr<PropertyPage> CreatePage(PageKind kind, const PageSite& site) override;

  /// Told of each page's parent.
  std::function<void(Container&)> Created;
  /// Pages write their kind before their calls, in place of "Page".
  bool NamesPages = false;
  std::function<std::string(HostObject*)> NameOf;
  /// The pages that were made last, by their kind.
  std::map<PageKind, RecordingPage*> Made;

 private:
  CallLog& mLog;
};

class RecordingCallBack final : public IDialogCallBack {
 public:
  explicit RecordingCallBack(CallLog& log) : mLog(log) {}
  void ApplyNotify(bool changed) override { Notify("ApplyNotify", changed); }
  void CancelNotify(bool changed) override { Notify("CancelNotify", changed); }
  void OKNotify(bool changed) override { Notify("OKNotify", changed); }
  std::int32_t RegisterNotify() override {
    mLog.Call("CallBack.RegisterNotify");
    return 7;
  }

 private:
  void Notify(const std::string& name, bool changed) {
    mLog.Call("CallBack." + name + (changed ? "(True)" : "(False)"));
  }

  CallLog& mLog;
};

class RecordingLanguage final : public ILanguage {
 public:
  explicit RecordingLanguage(CallLog& log) : mLog(log) {}
  std::int32_t EntryCount() override {
    mLog.Call("Language.EntryCount");
    return Entries;
  }
  /// The text given for the key, else the key between angle brackets; nothing for keys with an underscore in front.
  std::string TranslateText(const std::string& key) override;
  void TranslateForm(Form& form) override;
  bool IsRightToLeft() override { return IsMirrored; }

  std::int32_t Entries = 10;
  bool IsMirrored = false;
  std::map<std::string, std::string> Texts;

 private:
  CallLog& mLog;
};

}  // namespace orx::test
