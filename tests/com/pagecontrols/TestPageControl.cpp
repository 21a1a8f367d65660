#include "tests/com/pagecontrols/TestPageControl.h"

#include <iterator>

#include "com/Errors.h"

namespace orx::test {
namespace {

constexpr const wchar_t* kMembers[] = {L"Client",         L"Language",        L"IsDirty",
                                       L"StartUpIndex",   L"RefreshContents", L"SaveChanges",
                                       L"DiscardChanges", L"ApplyChanges",    L"Selected"};
enum Member : DISPID {
  MemberClient,
  MemberLanguage,
  MemberIsDirty,
  MemberStartUpIndex,
  MemberRefresh,
  MemberSave,
  MemberDiscard,
  MemberApply,
  MemberSelected
};

std::wstring TextOfWindow(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

/// The name of an object that a test hands over.
DISPID NameOf(IDispatch& object) {
  OLECHAR name[] = L"Name";
  LPOLESTR names = name;
  DISPID id = DISPID_UNKNOWN;
  object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
  return id;
}

std::wstring ReadName(IDispatch& object) {
  DISPPARAMS none = {};
  com::Variant name;
  object.Invoke(NameOf(object), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &name, nullptr, nullptr);
  return name.vt == VT_BSTR ? com::Widened(com::TextOf(name.bstrVal)) : L"";
}

void WriteName(IDispatch& object, const std::wstring& name) {
  com::Variant value(com::Narrowed(name));
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS one = {&value, &put, 1, 1};
  com::Check(object.Invoke(NameOf(object), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &one, nullptr, nullptr,
                           nullptr),
             "Name");
}

}  // namespace

TestPageControl::TestPageControl(PageControlState& state)
    : mState(state), mPoint(com::MakeCounted<TestConnectionPoint>(state.Source)) {
  ++mState.Alive;
  mState.Last = this;
}

TestPageControl::~TestPageControl() {
  if (mWindow) DestroyWindow(mWindow);
  if (mState.Last == this) mState.Last = nullptr;
  --mState.Alive;
  mState.Log.Calls.push_back("Page.Gone");
}

void* TestPageControl::Find(REFIID iid) noexcept {
  if (IsEqualIID(iid, IID_IOleWindow)) return static_cast<IOleInPlaceObject*>(this);
  if (IsEqualIID(iid, IID_IPersist)) return static_cast<IPersistStreamInit*>(this);
  return Counted::Find(iid);
}

HRESULT TestPageControl::Raise(DISPID event, std::vector<VARIANTARG> arguments, EXCEPINFO* exception) {
  const com::ComPtr<IDispatch> listener = mPoint->Listener;
  if (!listener) return S_FALSE;
  std::vector<VARIANTARG> reversed(arguments.rbegin(), arguments.rend());
  DISPPARAMS given = {reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
  return listener->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &given, nullptr, exception, nullptr);
}

com::Variant TestPageControl::Ambient(DISPID id) const {
  com::Variant value;
  DISPPARAMS none = {};
  if (const auto ambients = mSite.As<IDispatch>())
    ambients->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr);
  return value;
}

HRESULT TestPageControl::GetTypeInfoCount(UINT* count) noexcept {
  *count = 0;
  return S_OK;
}

HRESULT TestPageControl::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept {
  for (std::size_t i = 0; count == 1 && i < std::size(kMembers); ++i) {
    if (lstrcmpiW(names[0], kMembers[i]) != 0) continue;
    ids[0] = static_cast<DISPID>(i);
    return S_OK;
  }
  return DISP_E_UNKNOWNNAME;
}

HRESULT TestPageControl::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* given, VARIANT* result,
                                EXCEPINFO* exception, UINT*) noexcept {
  const HRESULT code = com::Guarded("TestPageControl", [&] { Run(id, flags, *given, result); });
  if (SUCCEEDED(code) || !exception) return code;
  com::ComPtr<IErrorInfo> info;
  if (GetErrorInfo(0, info.Out()) == S_OK) info->GetDescription(&exception->bstrDescription);
  exception->scode = code;
  return DISP_E_EXCEPTION;
}

void TestPageControl::Run(DISPID member, WORD flags, const DISPPARAMS& given, VARIANT* result) {
  const bool puts = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  const std::string name = "Page." + com::Narrowed(kMembers[member]);
  const auto object = [&] { return given.rgvarg[0].vt == VT_DISPATCH ? given.rgvarg[0].pdispVal : nullptr; };
  switch (member) {
    case MemberClient:
      mState.Log.Call(name + (object() ? "(object)" : "(none)"));
      mClient = com::ComPtr<IDispatch>(object());
      return;
    case MemberLanguage:
      return mState.Log.Call(name + (object() ? "(object)" : "(none)"));
    case MemberIsDirty:
      if (puts) mDirty = given.rgvarg[0].boolVal != VARIANT_FALSE;
      mState.Log.Call(name + (!puts ? "" : mDirty ? "(True)" : "(False)"));
      if (!puts && result) *result = com::Variant(mDirty);
      return;
    case MemberStartUpIndex:
      mState.Log.Call(name + (puts ? "(" + std::to_string(given.rgvarg[0].lVal) + ")" : ""));
      if (puts) mStartUpIndex = given.rgvarg[0].lVal;
      if (!puts && result) *result = com::Variant(mStartUpIndex);
      return;
    case MemberRefresh:
      mState.Log.Call(name);
      if (mClient) mText = ReadName(*mClient.Get());
      return;
    case MemberSave:
    case MemberApply:
      return Write(name.c_str());
    default:
      return mState.Log.Call(name);
  }
}

void TestPageControl::Write(const char* call) {
  mState.Log.Call(call);
  const std::wstring typed = mWindow ? TextOfWindow(First()) : mText;
  if (!mClient || typed == mText) return;
  WriteName(*mClient.Get(), typed);
  mText = typed;
  mDirty = true;
}

HRESULT TestPageControl::FindConnectionPoint(REFIID iid, IConnectionPoint** point) noexcept {
  *point = nullptr;
  if (!IsEqualIID(iid, mState.Source)) return CONNECT_E_NOCONNECTION;
  *point = com::ComPtr<IConnectionPoint>(mPoint.Get()).Detach();
  return S_OK;
}

HRESULT TestPageControl::GetClassInfo(ITypeInfo** info) noexcept {
  *info = com::ComPtr<ITypeInfo>(mState.ClassInfo).Detach();
  return *info ? S_OK : E_NOTIMPL;
}

}  // namespace orx::test
