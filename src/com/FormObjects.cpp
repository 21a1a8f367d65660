#include "com/FormObjects.h"

#include <OrvexMapDialogs2.h>

#include <vector>

#include "com/Conversion.h"
#include "com/Dispatch.h"
#include "forms/Control.h"
#include "forms/Form.h"
#include "forms/TabControl.h"
#include "hostobjects/RunTimeError.h"

namespace orx::com {
namespace {

constexpr char kFormSource[] = "DialogForm";
const ErrorPlace kControlPlace{kFormSource, __uuidof(::IDialogControl)};
const ErrorPlace kControlsPlace{kFormSource, __uuidof(::IDialogControls)};
const ErrorPlace kFormPlace{kFormSource, __uuidof(::IDialogForm)};

}  // namespace

struct LentForm::Loan {
  Form* Lent;

  Form& Get() const {
    if (!Lent) throw RunTimeError(kErrorNotAvailable, "The dialog is only there while it is being translated.");
    return *Lent;
  }
};

class ControlObject final : public DispatchObject<::IDialogControl> {
 public:
  ControlObject(std::shared_ptr<LentForm::Loan> loan, Control& control) : mLoan(std::move(loan)), mControl(control) {}

  HRESULT STDMETHODCALLTYPE get_Name(BSTR* value) noexcept override {
    return Give(kControlPlace, value, [this] { return Get().Name(); });
  }
  HRESULT STDMETHODCALLTYPE get_Caption(BSTR* value) noexcept override {
    return Give(kControlPlace, value, [this] { return Get().Caption(); });
  }
  HRESULT STDMETHODCALLTYPE put_Caption(BSTR value) noexcept override {
    return Guarded(kControlPlace, [&] { Get().Caption(TextOf(value)); });
  }
  HRESULT STDMETHODCALLTYPE get_ToolTipText(BSTR* value) noexcept override {
    return Give(kControlPlace, value, [this] { return Get().ToolTipText(); });
  }
  HRESULT STDMETHODCALLTYPE put_ToolTipText(BSTR value) noexcept override {
    return Guarded(kControlPlace, [&] { Get().ToolTipText(TextOf(value)); });
  }
  HRESULT STDMETHODCALLTYPE get_TabCount(long* value) noexcept override {
    return Give(kControlPlace, value, [this] {
      const auto* const tabs = dynamic_cast<TabControl*>(&Get());
      return tabs ? tabs->TabCount() : 0;
    });
  }
  HRESULT STDMETHODCALLTYPE get_TabCaption(long index, BSTR* value) noexcept override {
    return Give(kControlPlace, value, [&] { return Tabs(index).TabCaption(index); });
  }
  HRESULT STDMETHODCALLTYPE put_TabCaption(long index, BSTR value) noexcept override {
    return Guarded(kControlPlace, [&] { Tabs(index).TabCaption(index, TextOf(value)); });
  }

 private:
  Control& Get() const {
    mLoan->Get();
    return mControl;
  }
  TabControl& Tabs(long index) const {
    auto* const tabs = dynamic_cast<TabControl*>(&Get());
    if (!tabs || index < 0 || index >= tabs->TabCount())
      throw RunTimeError(kErrorSubscript, "\"" + mControl.Name() + "\" has no tab " + std::to_string(index) + ".");
    return *tabs;
  }

  std::shared_ptr<LentForm::Loan> mLoan;
  Control& mControl;
};

class ControlsObject final : public DispatchObject<::IDialogControls> {
 public:
  explicit ControlsObject(std::shared_ptr<LentForm::Loan> loan) : mLoan(std::move(loan)) {}

  HRESULT STDMETHODCALLTYPE get_Count(long* value) noexcept override {
    return Give(kControlsPlace, value, [this] { return static_cast<int>(mLoan->Get().All().size()); });
  }

  HRESULT STDMETHODCALLTYPE get_Item(VARIANT index, IDispatch** value) noexcept override {
    return Give(kControlsPlace, value, [&] { return Item(index); });
  }

  HRESULT STDMETHODCALLTYPE get__NewEnum(IUnknown** value) noexcept override;

  ComPtr<IDispatch> Item(const VARIANT& index) const {
    const VARIANT& given = *ValueBehind(const_cast<VARIANT*>(&index));
    Variant value;
    Check(CopyBehind(given, value), "Item");
    if (value.vt == VT_BSTR) return ByName(TextOf(value.bstrVal));
    Variant number;
    Check(ConvertValue(value, VT_I4, LOCALE_USER_DEFAULT, number), "Item");
    return ByNumber(number.lVal);
  }

  ComPtr<IDispatch> ByNumber(long number) const {
    const std::vector<Control*> all = mLoan->Get().All();
    if (number < 0 || number >= static_cast<long>(all.size()))
      throw RunTimeError(kErrorSubscript, "There is no control " + std::to_string(number) + ".");
    return Made(*all[static_cast<std::size_t>(number)]);
  }

 private:
  ComPtr<IDispatch> ByName(const std::string& name) const {
    Control* const control = mLoan->Get().Find(name);
    if (!control) throw RunTimeError(kErrorSubscript, "There is no control \"" + name + "\".");
    return Made(*control);
  }
  ComPtr<IDispatch> Made(Control& control) const {
    return ComPtr<IDispatch>(MakeCounted<ControlObject>(mLoan, control).Get());
  }

  std::shared_ptr<LentForm::Loan> mLoan;
};

/// Serves For Each over the controls.
class ControlsEnumerator final : public Counted<IEnumVARIANT> {
 public:
  ControlsEnumerator(const ControlsObject& controls, ULONG count, ULONG next)
      : mControls(const_cast<ControlsObject*>(&controls)), mCount(count), mNext(next) {}

  HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* values, ULONG* fetched) noexcept override {
    if (fetched) *fetched = 0;
    std::vector<ComPtr<IDispatch>> found;
    const HRESULT result = Guarded(kControlsPlace, [&] {
      RequirePlaces({{"The elements", values}});
      while (found.size() < count && mNext + found.size() < mCount)
        found.push_back(mControls->ByNumber(static_cast<long>(mNext + found.size())));
    });
    // A caller does not release values that come with an error.
    if (FAILED(result)) return result;
    for (const ComPtr<IDispatch>& control : found) *values++ = Variant(control.Get()).Detach();
    mNext += static_cast<ULONG>(found.size());
    if (fetched) *fetched = static_cast<ULONG>(found.size());
    return found.size() == count ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override {
    const ULONG left = mCount - mNext;
    mNext += count < left ? count : left;
    return count <= left ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Reset() noexcept override {
    mNext = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) noexcept override {
    return Give(kControlsPlace, copy, [&] { return MakeCounted<ControlsEnumerator>(*mControls.Get(), mCount, mNext); });
  }

 private:
  ComPtr<ControlsObject> mControls;
  ULONG mCount;
  ULONG mNext;
};

HRESULT ControlsObject::get__NewEnum(IUnknown** value) noexcept {
  return Give(kControlsPlace, value, [&] {
    const auto count = static_cast<ULONG>(mLoan->Get().All().size());
    return MakeCounted<ControlsEnumerator>(*this, count, 0U);
  });
}

class FormObject final : public DispatchObject<::IDialogForm> {
 public:
  explicit FormObject(std::shared_ptr<LentForm::Loan> loan) : mLoan(std::move(loan)) {}

  HRESULT STDMETHODCALLTYPE get_Name(BSTR* value) noexcept override {
    return Give(kFormPlace, value, [this] { return mLoan->Get().Name(); });
  }
  HRESULT STDMETHODCALLTYPE get_Caption(BSTR* value) noexcept override {
    return Give(kFormPlace, value, [this] { return mLoan->Get().Caption(); });
  }
  HRESULT STDMETHODCALLTYPE put_Caption(BSTR value) noexcept override {
    return Guarded(kFormPlace, [&] { mLoan->Get().Caption(TextOf(value)); });
  }
  HRESULT STDMETHODCALLTYPE get_Controls(IDispatch** value) noexcept override {
    return Give(kFormPlace, value, [&] {
      mLoan->Get();
      return MakeCounted<ControlsObject>(mLoan);
    });
  }

 private:
  std::shared_ptr<LentForm::Loan> mLoan;
};

LentForm::LentForm(Form& form)
    : mLoan(std::make_shared<Loan>(Loan{&form})), mObject(MakeCounted<FormObject>(mLoan).Get()) {
}

LentForm::~LentForm() {
  mLoan->Lent = nullptr;
}

}  // namespace orx::com
