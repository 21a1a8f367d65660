#include "com/MapDialogs.h"

#include "com/OwnerArgument.h"

namespace orx::com {
namespace {

constexpr char kDialogsSource[] = "CCommonMapDialogs";

HRESULT GiveReference(IDispatch* object, IDispatch** value) {
  if (!value) return E_POINTER;
  *value = ComPtr<IDispatch>(object).Detach();
  return S_OK;
}

}  // namespace

struct MapDialogs::DialogCall {
  HostObject* Client;
  std::string Caption;
  ShowMode Mode;
  OwnerWindow Owner;
};

MapDialogs::MapDialogs()
    : mSurroundings(Surroundings::OfThread()), mService(mSurroundings->Screen(), mSurroundings->Pages()) {
}

HRESULT MapDialogs::get_RegistryKey(BSTR* value) noexcept {
  if (!value) return E_POINTER;
  return Guarded(kDialogsSource, [&] { *value = Bstr(mService.RegistryKey()).Detach(); });
}

HRESULT MapDialogs::put_RegistryKey(BSTR* value) noexcept {
  if (!value) return E_POINTER;
  return Guarded(kDialogsSource, [&] { mService.RegistryKey(TextOf(*value)); });
}

HRESULT MapDialogs::get_CallBack(IDispatch** value) noexcept {
  return GiveReference(mCallBack, value);
}

HRESULT MapDialogs::putref_CallBack(IDispatch** value) noexcept {
  return Guarded(kDialogsSource, [&] {
    IDispatch* const callBack = value ? *value : nullptr;
    auto adapter = AdaptCallBack(callBack);
    mService.CallBack(adapter.get());
    mCallBackAdapter = std::move(adapter);
    mCallBack = callBack;
  });
}

HRESULT MapDialogs::get_Language(IDispatch** value) noexcept {
  return GiveReference(mLanguage, value);
}

HRESULT MapDialogs::putref_Language(IDispatch** value) noexcept {
  return Guarded(kDialogsSource, [&] {
    IDispatch* const language = value ? *value : nullptr;
    // The old adapter lives until the service has the new one, whatever the new language throws when it is asked.
    const auto before = std::exchange(mLanguageAdapter, AdaptLanguage(language));
    mLanguage = language;
    mService.Language(mLanguageAdapter.get());
  });
}

template <class Dialog>
HRESULT MapDialogs::ShowDialog(IDispatch** mObj, const BSTR* mCaption, const ::FormShowMode* mModal,
                               const VARIANT* OwnerForm, long* result, Dialog&& dialog) noexcept {
  if (!mObj || !result) return E_POINTER;
  *result = 0;
  // A host may let go of the service from within a call.
  const ComPtr<IUnknown> keep(static_cast<::_CCommonMapDialogs*>(this));
  return Guarded(kDialogsSource, [&] {
    const std::shared_ptr<HostObject> client = AdaptHostObject(*mObj);
    const bool isModeless = mModal && *mModal == ::ShowModeless;
    *result = dialog(DialogCall{client.get(), mCaption ? TextOf(*mCaption) : std::string(),
                                isModeless ? ShowMode::Modeless : ShowMode::Modal, OwnerOf(OwnerForm)});
  });
}

HRESULT MapDialogs::ShowLegends(IDispatch** mObj, long* Index, BSTR* mCaption, ::FormShowMode* mModal,
                                VARIANT* OwnerForm, long* result) noexcept {
  return ShowDialog(mObj, mCaption, mModal, OwnerForm, result, [&](const DialogCall& call) {
    return mService.ShowLegends(call.Client, Index ? *Index : 0, call.Caption, call.Mode, call.Owner);
  });
}

HRESULT MapDialogs::ShowProperties(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                                   long* result) noexcept {
  return ShowDialog(mObj, mCaption, mModal, OwnerForm, result, [&](const DialogCall& call) {
    return mService.ShowProperties(call.Client, call.Caption, call.Mode, call.Owner);
  });
}

HRESULT MapDialogs::ShowLabels(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                               long* result) noexcept {
  return ShowDialog(mObj, mCaption, mModal, OwnerForm, result, [&](const DialogCall& call) {
    return mService.ShowLabels(call.Client, call.Caption, call.Mode, call.Owner);
  });
}

HRESULT MapDialogs::ShowCoordinates(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                                    long* result) noexcept {
  return ShowDialog(mObj, mCaption, mModal, OwnerForm, result, [&](const DialogCall& call) {
    return mService.ShowCoordinates(call.Client, call.Caption, call.Mode, call.Owner);
  });
}

// The members below have no dialog yet.

HRESULT MapDialogs::Show(IDispatch**, long*, BSTR*, ::FormShowMode*, VARIANT*, long*) noexcept {
  return E_NOTIMPL;
}

HRESULT MapDialogs::ShowDataProperties(IDispatch**, BSTR*, ::FormShowMode*, VARIANT*, long*) noexcept {
  return E_NOTIMPL;
}

HRESULT MapDialogs::ShowDataClassify(IDispatch**, double*, double*, ::ClassifyFlags, VARIANT_BOOL*, BSTR*,
                                     ::FormShowMode*, VARIANT*, long*) noexcept {
  return E_NOTIMPL;
}

HRESULT MapDialogs::ShowDataOptions(IDispatch**, BSTR*, ::FormShowMode*, VARIANT*, long*) noexcept {
  return E_NOTIMPL;
}

HRESULT MapDialogs::ShowGeoReference(IDispatch**, ::CheckState*, BSTR*, BSTR*, VARIANT*, long*) noexcept {
  return E_NOTIMPL;
}

HRESULT MapDialogs::ShowCharacterSelection(BSTR*, long*, double*, VARIANT_BOOL*, BSTR*, VARIANT*, long*) noexcept {
  return E_NOTIMPL;
}

HRESULT MapDialogs::ShowListSelection(SAFEARRAY**, VARIANT_BOOL*, long*, BSTR*, VARIANT_BOOL*, BSTR*, SAFEARRAY**,
                                      long*) noexcept {
  return E_NOTIMPL;
}

HRESULT MapDialogs::ShowAddLayer(long, VARIANT_BOOL, SAFEARRAY**, VARIANT_BOOL*) noexcept {
  return E_NOTIMPL;
}

HRESULT MapDialogs::ShowAddData(long, VARIANT_BOOL, SAFEARRAY**, VARIANT_BOOL*) noexcept {
  return E_NOTIMPL;
}

HRESULT MapDialogs::ShowFileNotFound(BSTR, BSTR*, VARIANT_BOOL*, VARIANT_BOOL*) noexcept {
  return E_NOTIMPL;
}

HRESULT MapDialogs::ShowDataFileNotFound(BSTR, BSTR*, VARIANT_BOOL*, VARIANT_BOOL*) noexcept {
  return E_NOTIMPL;
}

}  // namespace orx::com
