#include "com/HostAdapters.h"

#include <OrvexMapDialogs2.h>

#include "com/AutomationObject.h"
#include "com/Conversion.h"
#include "com/Errors.h"
#include "com/FormObjects.h"
#include "com/Members.h"
#include "forms/Desktop.h"

namespace orx::com {
namespace {

/// An object to which no reference is held between calls; each call holds one while it runs.
template <class Published>
class RawObject {
 public:
  explicit RawObject(IDispatch* object) : mObject(object) {}

  IDispatch* Automation() const { return mObject; }
  Members Held() const { return Members::Of<Published>(mObject); }

 private:
  IDispatch* mObject;
};

class LanguageAdapter final : public orx::ILanguage, public std::enable_shared_from_this<LanguageAdapter> {
 public:
  explicit LanguageAdapter(IDispatch* language) : mLanguage(language) {}

  IDispatch* Automation() const { return mLanguage.Automation(); }
  std::int32_t EntryCount() override { return mLanguage.Held().GetLong("EntryCount"); }

  std::string TranslateText(const std::string& key) override {
    Variant text;
    Check(ConvertValue(mLanguage.Held().Call("TranslateText", Variant(key)), VT_BSTR, LOCALE_USER_DEFAULT, text),
          "TranslateText");
    return TextOf(text.bstrVal);
  }

  void TranslateForm(Form& form) override {
    const LentForm lent(form);
    mLanguage.Held().Call("TranslateForm", Variant(lent.Automation()));
  }

  bool IsRightToLeft() override { return TranslateText(kDirectionKey) == kRightToLeft; }

  std::shared_ptr<const void> Lifetime() const override { return shared_from_this(); }

 private:
  RawObject<::ILanguage> mLanguage;
};

class CallBackAdapter final : public orx::IDialogCallBack, public std::enable_shared_from_this<CallBackAdapter> {
 public:
  explicit CallBackAdapter(IDispatch* callBack) : mCallBack(callBack) {}

  void ApplyNotify(bool changed) override { mCallBack.Held().Call("ApplyNotify", Variant(changed)); }
  void CancelNotify(bool changed) override { mCallBack.Held().Call("CancelNotify", Variant(changed)); }
  void OKNotify(bool changed) override { mCallBack.Held().Call("OKNotify", Variant(changed)); }

  std::int32_t RegisterNotify() override {
    // The dialogs ignore the result, so it need not be a number.
    mCallBack.Held().Call("RegisterNotify");
    return 0;
  }

  std::shared_ptr<const void> Lifetime() const override { return shared_from_this(); }

 private:
  RawObject<::IDialogCallBack> mCallBack;
};

class FileCheckOfThread final : public orx::IFileCheck, public std::enable_shared_from_this<FileCheckOfThread> {
 public:
  FileCheckOfThread(std::shared_ptr<HostObject> object, orx::IFileCheck& check)
      : mObject(std::move(object)), mCheck(check) {}

  IDispatch* Automation() const {
    if (GetCurrentThreadId() != mThread) throw WrongThread();
    return AutomationOf(mObject.get());
  }
  bool CanOpen(const std::string& path) override {
    if (GetCurrentThreadId() != mThread) throw WrongThread();
    // The host may set another check in the call.
    const auto keep = shared_from_this();
    return mCheck.CanOpen(path);
  }

 private:
  const DWORD mThread = GetCurrentThreadId();
  std::shared_ptr<HostObject> mObject;
  orx::IFileCheck& mCheck;
};

}  // namespace

std::shared_ptr<orx::IFileCheck> AdaptFileCheck(IDispatch* check) {
  std::shared_ptr<HostObject> object = AdaptHostObject(check);
  if (!object) return nullptr;
  auto* const adapter = QueryKind<orx::IFileCheck>(object.get());
  if (!adapter) throw RunTimeError(kErrorTypeMismatch, "FileCheck is no object with a member CanOpen.");
  return std::make_shared<FileCheckOfThread>(std::move(object), *adapter);
}

std::shared_ptr<HostObject> AdaptHostObject(IDispatch* object) {
  return object ? std::make_shared<AutomationObject>(object) : nullptr;
}

std::shared_ptr<orx::ILanguage> AdaptLanguage(IDispatch* language) {
  return language ? std::make_shared<LanguageAdapter>(language) : nullptr;
}

std::shared_ptr<orx::IDialogCallBack> AdaptCallBack(IDispatch* callBack) {
  return Members::Of<::IDialogCallBack>(callBack).Has("ApplyNotify") ? std::make_shared<CallBackAdapter>(callBack)
                                                                     : nullptr;
}

IDispatch* AutomationOf(HostObject* object) {
  const auto* const adapter = dynamic_cast<AutomationObject*>(object);
  return adapter ? adapter->Automation() : nullptr;
}

IDispatch* AutomationOf(orx::ILanguage* language) {
  const auto* const adapter = dynamic_cast<LanguageAdapter*>(language);
  return adapter ? adapter->Automation() : nullptr;
}

IDispatch* AutomationOf(orx::IFileCheck* check) {
  const auto* const adapter = dynamic_cast<FileCheckOfThread*>(check);
  return adapter ? adapter->Automation() : nullptr;
}

}  // namespace orx::com
