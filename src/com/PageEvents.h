// Receives the events of a page control and raises them as the page's own.
#pragma once

#include <windows.h>

#include <ocidl.h>

#include "com/Counted.h"
#include "com/SourceInterface.h"

namespace orx {
class Form;
class PropertyPage;
}  // namespace orx

namespace orx::com {

struct PageEvent;

/// The event sink for _IMapPropertyPageEvents, or for a control's own event interface with events of the same names. An
/// exception of a handler goes back to the control as an error code with a description.
class PageEvents final : public Counted<IDispatch> {
 public:
  /// Connects the control's events to those of the page, which the form contains: they are raised in the surroundings
  /// of the form's host. Empty when the control raises none that the page knows.
  static ComPtr<PageEvents> Connect(IUnknown& control, PropertyPage& page, Form& form);
  /// Ends the connection. Must be called before the page is destroyed.
  void Disconnect() noexcept;

  PageEvents(PropertyPage& page, Form& form, SourceInterface source)
      : mPage(&page), mForm(form), mSource(std::move(source)) {}

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* given, VARIANT* result,
                                   EXCEPINFO* exception, UINT* wrong) noexcept override;

 private:
  void* Find(REFIID iid) noexcept override;
  const PageEvent* EventOf(DISPID id) const;

  PropertyPage* mPage;
  Form& mForm;
  SourceInterface mSource;
  ComPtr<IConnectionPoint> mPoint;
  DWORD mCookie = 0;
};

}  // namespace orx::com
