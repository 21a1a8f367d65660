// The creatable class CCommonProgressDialog. Its dialog is not there yet: the members say so.
#pragma once

#include <OrvexMapDialogs2.h>

#include "com/Dispatch.h"

namespace orx::com {

class ProgressDialog final : public ClassObject<::CCommonProgressDialog, ::_CCommonProgressDialog> {
 public:
  HRESULT STDMETHODCALLTYPE Init(long*, long*, long*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE get_CancelAction(VARIANT_BOOL*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE get_Value(long*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE put_Value(long) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE get_Caption(BSTR*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE put_Caption(BSTR) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE get_Message(BSTR*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE put_Message(BSTR) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Show(VARIANT*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Hide() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Refresh() noexcept override { return E_NOTIMPL; }
};

}  // namespace orx::com
