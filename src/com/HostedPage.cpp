#include "com/HostedPage.h"

#include <OrvexMapDialogs2.h>

#include "com/Errors.h"
#include "com/HostAdapters.h"
#include "forms/Form.h"
#include "hostobjects/RunTimeError.h"

namespace orx::com {
namespace {

Members MembersOf(const HostedControl& control) {
  const auto object = ComPtr<IDispatch>::From(&control.Object());
  if (!object) throw RunTimeError(E_NOINTERFACE, "The control has no automation members.");
  return Members::Of<::IMapPropertyPage>(object.Get());
}

/// Shows the reason where the page would be.
void ShowReason(HWND area, const std::string& reason) {
  RECT place;
  GetClientRect(area, &place);
  const HWND text = CreateWindowExW(0, L"STATIC", Widened(reason).c_str(), WS_CHILD | WS_VISIBLE | SS_NOPREFIX, 0, 0,
                                    place.right, place.bottom, area, nullptr, nullptr, nullptr);
  SendMessageW(text, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
}

}  // namespace

HostedPage::HostedPage(const PageSite& site, const std::string& progId, const CLSID& control)
    : mProgId(progId),
      mControl(control),
      mMembers(MembersOf(mControl)),
      mArea(site.Parent, site.Name, {.Place = site.Place}) {
  HandleArea();
  // Last, because nobody would disconnect the events of a page whose constructor throws.
  mEvents = PageEvents::Connect(mControl.Object(), *this, mArea.OwnerForm());
}

HostedPage::~HostedPage() {
  if (mEvents) mEvents->Disconnect();
}

void HostedPage::HandleArea() {
  mArea.Opened = [this](std::uintptr_t window) { Open(reinterpret_cast<HWND>(window)); };
  mArea.Closing = [this] { mControl.Close(); };
  mArea.Sized = [this](Size) { mControl.Fit(); };
  mArea.FocusEnters = [this] { mControl.EnterFocus(); };
  mArea.LostFocus = [this] { mControl.LeaveFocus(); };
  mArea.FilterKey = [this](void* message) { return mControl.FilterKey(*static_cast<MSG*>(message)); };
  mControl.FocusCameByItself = [this] { mArea.OwnerForm().UserFocus(mArea); };
}

void HostedPage::Open(HWND area) {
  try {
    mControl.Open(area);
  } catch (const RunTimeError& error) {
    // The dialog is about to be shown with its buttons, and the page's members still work.
    ShowReason(area, "The page control " + mProgId + " does not show itself. " + error.what());
  }
}

void HostedPage::Client(HostObject* value) {
  IDispatch* const object = AutomationOf(value);
  if (value && !object)
    throw RunTimeError(E_NOINTERFACE,
                       "The page control " + mProgId + " cannot edit this object: it is no automation object.");
  mMembers.Put("Client", object);
  mClient = value;
}

void HostedPage::Language(ILanguage* value) {
  mMembers.Put("Language", AutomationOf(value));
  mLanguage = value;
}

void HostedPage::Selected(bool value) {
  if (mMembers.Has("Selected")) mMembers.Put("Selected", value);
  PropertyPage::Selected(value);
}

}  // namespace orx::com
