#include "com/PageEvents.h"

#include <OrvexMapDialogs2.h>

#include "com/Errors.h"
#include "com/EventArguments.h"
#include "com/HostAdapters.h"
#include "forms/Form.h"
#include "hostobjects/PropertyPage.h"

namespace orx::com {

/// An event of page controls: its number in the published interface, its name in any, and what it runs.
struct PageEvent {
  DISPID Id;
  const char* Name;
  UINT Arguments;
  void (*Raise)(PropertyPage& page, const EventArguments& arguments);
};

namespace {

void RaiseCharacterRequested(PropertyPage& page, const EventArguments& arguments) {
  CharacterRequest request{arguments.Text(0), arguments.Whole(1), arguments.Number(2), arguments.Flag(3)};
  page.CharacterRequested.Raise(request);
  arguments.Answer(0, Variant(request.FontName));
  arguments.Answer(1, Variant(request.Character));
  arguments.Answer(2, Variant(request.Rotation));
  arguments.Answer(3, Variant(request.Changed));
}

void RaiseNameChanged(PropertyPage& page, const EventArguments& arguments) {
  page.NameChanged.Raise(arguments.Text(0));
}

void RaiseBrowseRequested(PropertyPage& page, const EventArguments& arguments) {
  BrowseRequest request{arguments.Text(0), arguments.Flag(1)};
  page.BrowseRequested.Raise(request);
  arguments.Answer(0, Variant(request.FileName));
  arguments.Answer(1, Variant(request.Cancel));
}

void RaiseClassifyRequested(PropertyPage& page, const EventArguments& arguments) {
  const std::shared_ptr<HostObject> data = AdaptHostObject(arguments.Object(0).Get());
  ClassifyRequest request{data.get(), arguments.Number(1), arguments.Number(2), arguments.Whole(3), arguments.Flag(4)};
  page.ClassifyRequested.Raise(request);
  arguments.Answer(4, Variant(request.Changed));
}

template <auto Request>
void RaiseDataRequested(PropertyPage& page, const EventArguments& arguments) {
  const std::shared_ptr<HostObject> data = AdaptHostObject(arguments.Object(0).Get());
  DataRequest request{data.get(), arguments.Flag(1)};
  (page.*Request).Raise(request);
  arguments.Answer(1, Variant(request.Changed));
}

void RaiseDataStyleRequested(PropertyPage& page, const EventArguments&) {
  page.DataStyleRequested.Raise();
}

void RaiseColorsRequested(PropertyPage& page, const EventArguments& arguments) {
  const ComPtr<IDispatch> object = arguments.Object(0);
  page.ColorsRequested.Raise(AdaptLanguage(object.Get()).get());
}

void RaiseGeoreferenceRequested(PropertyPage& page, const EventArguments& arguments) {
  const std::shared_ptr<HostObject> map = AdaptHostObject(arguments.Object(0).Get());
  GeoreferenceRequest request{map.get(), arguments.Flag(1)};
  page.GeoreferenceRequested.Raise(request);
  arguments.Answer(1, Variant(request.Changed));
}

constexpr PageEvent kEvents[] = {
    {1, "CharacterRequested", 4, RaiseCharacterRequested},
    {2, "NameChanged", 1, RaiseNameChanged},
    {3, "BrowseRequested", 2, RaiseBrowseRequested},
    {4, "ClassifyRequested", 5, RaiseClassifyRequested},
    {5, "OptionsRequested", 2, RaiseDataRequested<&PropertyPage::OptionsRequested>},
    {6, "ShadeRequested", 2, RaiseDataRequested<&PropertyPage::ShadeRequested>},
    {7, "IsolineRequested", 2, RaiseDataRequested<&PropertyPage::IsolineRequested>},
    {8, "DataStyleRequested", 0, RaiseDataStyleRequested},
    {9, "ColorsRequested", 1, RaiseColorsRequested},
    {10, "GeoreferenceRequested", 2, RaiseGeoreferenceRequested},
};

ComPtr<IConnectionPoint> PointOf(IUnknown& control, REFIID source) {
  ComPtr<IConnectionPoint> point;
  const auto container = ComPtr<IConnectionPointContainer>::From(&control);
  if (container && FAILED(container->FindConnectionPoint(source, point.Out()))) point = {};
  return point;
}

/// Converts the error information that ReturnError has set into the EXCEPINFO that Invoke returns.
HRESULT AsException(HRESULT code, EXCEPINFO* exception) {
  ComPtr<IErrorInfo> info;
  if (!exception || GetErrorInfo(0, info.Out()) != S_OK) return code;
  *exception = {};
  exception->scode = code;
  info->GetDescription(&exception->bstrDescription);
  info->GetSource(&exception->bstrSource);
  // The control may read either.
  SetErrorInfo(0, info.Get());
  return DISP_E_EXCEPTION;
}

}  // namespace

ComPtr<PageEvents> PageEvents::Connect(IUnknown& control, PropertyPage& page, Form& form) {
  SourceInterface source{__uuidof(_IMapPropertyPageEvents), {}};
  ComPtr<IConnectionPoint> point = PointOf(control, source.Id);
  if (!point) {
    source = DefaultSource(control);
    if (!source.Names.empty()) point = PointOf(control, source.Id);
  }
  if (!point) return {};
  auto events = MakeCounted<PageEvents>(page, form, std::move(source));
  if (FAILED(point->Advise(static_cast<IDispatch*>(events.Get()), &events->mCookie))) return {};
  events->mPoint = std::move(point);
  return events;
}

void PageEvents::Disconnect() noexcept {
  mPage = nullptr;
  if (mPoint) mPoint->Unadvise(mCookie);
  mPoint.Reset();
}

void* PageEvents::Find(REFIID iid) noexcept {
  if (IsEqualIID(iid, mSource.Id)) return static_cast<IDispatch*>(this);
  return Counted::Find(iid);
}

const PageEvent* PageEvents::EventOf(DISPID id) const {
  const auto named = mSource.Names.find(id);
  for (const PageEvent& event : kEvents) {
    if (mSource.Names.empty() && event.Id == id) return &event;
    if (named != mSource.Names.end() && lstrcmpiA(named->second.c_str(), event.Name) == 0) return &event;
  }
  return nullptr;
}

HRESULT PageEvents::GetTypeInfoCount(UINT* count) noexcept {
  if (!count) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT PageEvents::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept {
  return DISP_E_UNKNOWNNAME;
}

HRESULT PageEvents::Invoke(DISPID id, REFIID reserved, LCID, WORD, DISPPARAMS* given, VARIANT*, EXCEPINFO* exception,
                           UINT*) noexcept {
  if (!IsEqualIID(reserved, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  const PageEvent* const event = EventOf(id);
  if (!event) return DISP_E_MEMBERNOTFOUND;
  if (!given) return E_POINTER;
  // A handler may close the dialog, which releases this object.
  const ComPtr<PageEvents> keep(this);
  if (!mPage) return S_OK;
  const HRESULT result = Guarded(
      "PageControl", [&] { mForm.RunAsHost([&] { event->Raise(*mPage, EventArguments(*given, event->Arguments)); }); });
  return FAILED(result) ? AsException(result, exception) : result;
}

}  // namespace orx::com
