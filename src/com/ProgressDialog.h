// The creatable class CCommonProgressDialog: the service class behind its dual interface.
#pragma once

// This header comes first: its interfaces are global, and the library has others of the same names.
#include <OrvexMapDialogs2.h>

#include <memory>

#include "com/Dispatch.h"
#include "com/ThreadContext.h"
#include "service/CCommonProgressDialog.h"

namespace orx::com {

class ProgressDialog final : public ClassObject<::CCommonProgressDialog, ::_CCommonProgressDialog> {
 public:
  ProgressDialog();

  HRESULT STDMETHODCALLTYPE Init(long* min, long* max, long* value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_CancelAction(VARIANT_BOOL* value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Value(long* value) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Value(long value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Caption(BSTR* value) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Caption(BSTR value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Message(BSTR* value) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Message(BSTR value) noexcept override;
  HRESULT STDMETHODCALLTYPE Show(VARIANT* ownerForm) noexcept override;
  HRESULT STDMETHODCALLTYPE Hide() noexcept override;
  HRESULT STDMETHODCALLTYPE Refresh() noexcept override;

 private:
  // Outlives the service, which uses it.
  std::shared_ptr<ThreadContext> mContext;
  std::shared_ptr<orx::CCommonProgressDialog> mService;
};

}  // namespace orx::com
