#include "com/ProgressDialog.h"

#include "com/OwnerArgument.h"

namespace orx::com {
namespace {

const ErrorPlace kProgressPlace{"CCommonProgressDialog", __uuidof(::_CCommonProgressDialog)};

}  // namespace

ProgressDialog::ProgressDialog()
    : mContext(ThreadContext::OfThread()), mService(std::make_shared<orx::CCommonProgressDialog>(mContext->Screen())) {
}

HRESULT ProgressDialog::Init(long* min, long* max, long* value) noexcept {
  return Guarded(kProgressPlace, [&] {
    RequirePlaces({{"Min", min}, {"Max", max}, {"Value", value}});
    mService->Init(*min, *max, *value);
  });
}

HRESULT ProgressDialog::get_CancelAction(VARIANT_BOOL* value) noexcept {
  return Give(kProgressPlace, value, [&] { return mService->CancelAction(); });
}

HRESULT ProgressDialog::get_Value(long* value) noexcept {
  return Give(kProgressPlace, value, [&] { return mService->Value(); });
}

HRESULT ProgressDialog::put_Value(long value) noexcept {
  return Guarded(kProgressPlace, [&] { mService->Value(value); });
}

HRESULT ProgressDialog::get_Caption(BSTR* value) noexcept {
  return Give(kProgressPlace, value, [&] { return mService->Caption(); });
}

HRESULT ProgressDialog::put_Caption(BSTR value) noexcept {
  return Guarded(kProgressPlace, [&] { mService->Caption(TextOf(value)); });
}

HRESULT ProgressDialog::get_Message(BSTR* value) noexcept {
  return Give(kProgressPlace, value, [&] { return mService->Message(); });
}

HRESULT ProgressDialog::put_Message(BSTR value) noexcept {
  return Guarded(kProgressPlace, [&] { mService->Message(TextOf(value)); });
}

HRESULT ProgressDialog::Show(VARIANT* ownerForm) noexcept {
  // The object does not keep itself: the window closes when the host lets go of it, also while the window is modal or
  // while the host is asked for the owner. What runs the window stays until then.
  const std::shared_ptr<ThreadContext> context = mContext;
  const ModuleUse use;
  return Guarded(kProgressPlace, [&] {
    const std::weak_ptr<orx::CCommonProgressDialog> service = mService;
    const OwnerWindow owner = OwnerOf(ownerForm);
    if (auto* const there = service.lock().get()) there->Show(owner);
  });
}

HRESULT ProgressDialog::Hide() noexcept {
  return Kept(kProgressPlace, [&] { mService->Hide(); });
}

HRESULT ProgressDialog::Refresh() noexcept {
  return Guarded(kProgressPlace, [&] { mService->Refresh(); });
}

}  // namespace orx::com
