#include "com/ProgressDialog.h"

#include "com/OwnerArgument.h"

namespace orx::com {
namespace {

constexpr char kProgressSource[] = "CCommonProgressDialog";

/// Gives a value of the service to the caller.
template <class Value, class Read>
HRESULT Give(Value* value, Read&& read) noexcept {
  if (!value) return E_POINTER;
  return Guarded(kProgressSource, [&] { *value = read(); });
}

}  // namespace

ProgressDialog::ProgressDialog() : mSurroundings(Surroundings::OfThread()), mService(mSurroundings->Screen()) {
}

HRESULT ProgressDialog::Init(long* min, long* max, long* value) noexcept {
  if (!min || !max || !value) return E_POINTER;
  return Guarded(kProgressSource, [&] { mService.Init(*min, *max, *value); });
}

HRESULT ProgressDialog::get_CancelAction(VARIANT_BOOL* value) noexcept {
  return Give(value, [&] { return mService.CancelAction() ? VARIANT_TRUE : VARIANT_FALSE; });
}

HRESULT ProgressDialog::get_Value(long* value) noexcept {
  return Give(value, [&] { return mService.Value(); });
}

HRESULT ProgressDialog::put_Value(long value) noexcept {
  return Guarded(kProgressSource, [&] { mService.Value(value); });
}

HRESULT ProgressDialog::get_Caption(BSTR* value) noexcept {
  return Give(value, [&] { return Bstr(mService.Caption()).Detach(); });
}

HRESULT ProgressDialog::put_Caption(BSTR value) noexcept {
  return Guarded(kProgressSource, [&] { mService.Caption(TextOf(value)); });
}

HRESULT ProgressDialog::get_Message(BSTR* value) noexcept {
  return Give(value, [&] { return Bstr(mService.Message()).Detach(); });
}

HRESULT ProgressDialog::put_Message(BSTR value) noexcept {
  return Guarded(kProgressSource, [&] { mService.Message(TextOf(value)); });
}

HRESULT ProgressDialog::Show(VARIANT* ownerForm) noexcept {
  // A host may let go of the object while events are handled.
  const ComPtr<IUnknown> keep(static_cast<::_CCommonProgressDialog*>(this));
  return Guarded(kProgressSource, [&] { mService.Show(OwnerOf(ownerForm)); });
}

HRESULT ProgressDialog::Hide() noexcept {
  const ComPtr<IUnknown> keep(static_cast<::_CCommonProgressDialog*>(this));
  return Guarded(kProgressSource, [&] { mService.Hide(); });
}

HRESULT ProgressDialog::Refresh() noexcept {
  return Guarded(kProgressSource, [&] { mService.Refresh(); });
}

}  // namespace orx::com
