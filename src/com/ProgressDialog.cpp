#include "com/ProgressDialog.h"

#include "com/OwnerArgument.h"

namespace orx::com {
namespace {

constexpr char kProgressSource[] = "CCommonProgressDialog";

}  // namespace

ProgressDialog::ProgressDialog()
    : mContext(ThreadContext::OfThread()), mService(std::make_shared<orx::CCommonProgressDialog>(mContext->Screen())) {
}

HRESULT ProgressDialog::Init(long* min, long* max, long* value) noexcept {
  return Guarded(kProgressSource, [&] {
    RequirePlaces({{"Min", min}, {"Max", max}, {"Value", value}});
    mService->Init(*min, *max, *value);
  });
}

HRESULT ProgressDialog::get_CancelAction(VARIANT_BOOL* value) noexcept {
  return Give(kProgressSource, value, [&] { return mService->CancelAction(); });
}

HRESULT ProgressDialog::get_Value(long* value) noexcept {
  return Give(kProgressSource, value, [&] { return mService->Value(); });
}

HRESULT ProgressDialog::put_Value(long value) noexcept {
  return Guarded(kProgressSource, [&] { mService->Value(value); });
}

HRESULT ProgressDialog::get_Caption(BSTR* value) noexcept {
  return Give(kProgressSource, value, [&] { return mService->Caption(); });
}

HRESULT ProgressDialog::put_Caption(BSTR value) noexcept {
  return Guarded(kProgressSource, [&] { mService->Caption(TextOf(value)); });
}

HRESULT ProgressDialog::get_Message(BSTR* value) noexcept {
  return Give(kProgressSource, value, [&] { return mService->Message(); });
}

HRESULT ProgressDialog::put_Message(BSTR value) noexcept {
  return Guarded(kProgressSource, [&] { mService->Message(TextOf(value)); });
}

HRESULT ProgressDialog::Show(VARIANT* ownerForm) noexcept {
  // The object does not keep itself: the window closes when the host lets go of it, also while the window is modal or
  // while the host is asked for the owner. What runs the window stays until then.
  const std::shared_ptr<ThreadContext> context = mContext;
  const ModuleUse use;
  return Guarded(kProgressSource, [&] {
    const std::weak_ptr<orx::CCommonProgressDialog> service = mService;
    const OwnerWindow owner = OwnerOf(ownerForm);
    if (auto* const there = service.lock().get()) there->Show(owner);
  });
}

HRESULT ProgressDialog::Hide() noexcept {
  return Kept(kProgressSource, [&] { mService->Hide(); });
}

HRESULT ProgressDialog::Refresh() noexcept {
  return Guarded(kProgressSource, [&] { mService->Refresh(); });
}

}  // namespace orx::com
