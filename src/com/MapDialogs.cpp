#include "com/MapDialogs.h"

#include <vector>

#include "com/HostArrays.h"
#include "com/OwnerArgument.h"
#include "hostobjects/IMap.h"

namespace orx::com {
namespace {

const ErrorPlace kDialogsPlace{"CCommonMapDialogs", __uuidof(::_CCommonMapDialogs)};
const ErrorPlace kNewerPlace{"CCommonMapDialogs", __uuidof(::ICommonMapDialogs2)};

}  // namespace

struct MapDialogs::DialogCall {
  HostObject* Client;
  std::string Caption;
  ShowMode Mode;
  const VARIANT* OwnerForm;

  /// Asks the host for the window, which only the members that show a dialog above it may do.
  OwnerWindow Owner() const { return OwnerOf(OwnerForm); }
};

MapDialogs::MapDialogs() : mContext(ThreadContext::OfThread()), mService(mContext->Screen(), mContext->Pages()) {
}

MapDialogs::~MapDialogs() {
  if (mFileCheck && orx::CCommonMapDialogs::FileCheck() == mFileCheck.get()) orx::CCommonMapDialogs::FileCheck(nullptr);
}

HRESULT MapDialogs::get_RegistryKey(BSTR* value) noexcept {
  return Give(kDialogsPlace, value, [&] { return mService.RegistryKey(); });
}

HRESULT MapDialogs::put_RegistryKey(BSTR* value) noexcept {
  return Guarded(kDialogsPlace, [&] {
    RequirePlaces({{"RegistryKey", value}});
    mService.RegistryKey(TextOf(*value));
  });
}

HRESULT MapDialogs::get_CallBack(IDispatch** value) noexcept {
  return Give(kDialogsPlace, value, [&] { return ComPtr<IDispatch>(mCallBack); });
}

HRESULT MapDialogs::putref_CallBack(IDispatch** value) noexcept {
  return Kept(kDialogsPlace, [&] {
    IDispatch* const callBack = value ? *value : nullptr;
    auto adapter = AdaptCallBack(callBack);
    mService.CallBack(adapter.get());
    mCallBackAdapter = std::move(adapter);
    mCallBack = callBack;
  });
}

HRESULT MapDialogs::get_Language(IDispatch** value) noexcept {
  return Give(kDialogsPlace, value, [&] { return ComPtr<IDispatch>(mLanguage); });
}

HRESULT MapDialogs::putref_Language(IDispatch** value) noexcept {
  return Kept(kDialogsPlace, [&] {
    IDispatch* const language = value ? *value : nullptr;
    // Both adapters live until the service has the new one: the new language may throw when it is set, or set another
    // one itself.
    const auto adapter = AdaptLanguage(language);
    const auto before = std::exchange(mLanguageAdapter, adapter);
    mLanguage = language;
    mService.Language(adapter.get());
  });
}

HRESULT MapDialogs::get_FileCheck(IDispatch** value) noexcept {
  return Give(kNewerPlace, value, [] { return ComPtr<IDispatch>(AutomationOf(orx::CCommonMapDialogs::FileCheck())); });
}

HRESULT MapDialogs::putref_FileCheck(IDispatch* value) noexcept {
  return Kept(kNewerPlace, [&] {
    auto check = AdaptFileCheck(value);
    orx::CCommonMapDialogs::FileCheck(check.get());
    mFileCheck = std::move(check);
  });
}

template <class Dialog>
HRESULT MapDialogs::ShowDialog(IDispatch** mObj, const BSTR* mCaption, const ::FormShowMode* mModal,
                               const VARIANT* OwnerForm, long* result, Dialog&& dialog) noexcept {
  return Kept(kDialogsPlace, [&] {
    RequirePlaces({{"mObj", mObj}, {"The result", result}});
    *result = 0;
    const std::shared_ptr<HostObject> client = AdaptHostObject(*mObj);
    const bool isModeless = mModal && *mModal == ::ShowModeless;
    *result = dialog(DialogCall{client.get(), mCaption ? TextOf(*mCaption) : std::string(),
                                isModeless ? ShowMode::Modeless : ShowMode::Modal, OwnerForm});
  });
}

auto MapDialogs::Plain(DialogMember member) {
  return [this, member](const DialogCall& call) {
    return (mService.*member)(call.Client, call.Caption, call.Mode, call.Owner());
  };
}

HRESULT MapDialogs::Show(IDispatch** mObj, long* mFlags, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                         long* result) noexcept {
  return ShowDialog(mObj, mCaption, mModal, OwnerForm, result, [&](const DialogCall& call) {
    RequirePlaces({{"mFlags", mFlags}});
    return mService.Show(call.Client, *mFlags, call.Caption, call.Mode, call.Owner());
  });
}

HRESULT MapDialogs::ShowDataProperties(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                                       long* result) noexcept {
  return ShowDialog(mObj, mCaption, mModal, OwnerForm, result, Plain(&orx::CCommonMapDialogs::ShowDataProperties));
}

HRESULT MapDialogs::ShowLegends(IDispatch** mObj, long* Index, BSTR* mCaption, ::FormShowMode* mModal,
                                VARIANT* OwnerForm, long* result) noexcept {
  return ShowDialog(mObj, mCaption, mModal, OwnerForm, result, [&](const DialogCall& call) {
    return mService.ShowLegends(call.Client, Index ? *Index : 0, call.Caption, call.Mode, call.Owner());
  });
}

HRESULT MapDialogs::ShowProperties(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                                   long* result) noexcept {
  return ShowDialog(mObj, mCaption, mModal, OwnerForm, result, Plain(&orx::CCommonMapDialogs::ShowProperties));
}

HRESULT MapDialogs::ShowLabels(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                               long* result) noexcept {
  return ShowDialog(mObj, mCaption, mModal, OwnerForm, result, Plain(&orx::CCommonMapDialogs::ShowLabels));
}

HRESULT MapDialogs::ShowCoordinates(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                                    long* result) noexcept {
  return ShowDialog(mObj, mCaption, mModal, OwnerForm, result, Plain(&orx::CCommonMapDialogs::ShowCoordinates));
}

HRESULT MapDialogs::ShowDataClassify(IDispatch** mObj, double* mMinValue, double* mMaxValue, ::ClassifyFlags flags,
                                     VARIANT_BOOL* isDirty, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                                     long* result) noexcept {
  return ShowDialog(mObj, mCaption, mModal, OwnerForm, result, [&](const DialogCall& call) {
    RequirePlaces({{"mMinValue", mMinValue}, {"mMaxValue", mMaxValue}, {"IsDirty", isDirty}});
    bool changed = *isDirty != VARIANT_FALSE;
    const std::int32_t answer =
        mService.ShowDataClassify(call.Client, *mMinValue, *mMaxValue, flags, changed, call.Caption, call.Mode, {});
    *isDirty = Given(changed);
    return answer;
  });
}

HRESULT MapDialogs::ShowDataOptions(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                                    long* result) noexcept {
  return ShowDialog(mObj, mCaption, mModal, OwnerForm, result, [&](const DialogCall& call) {
    return mService.ShowDataOptions(call.Client, call.Caption, call.Mode, {});
  });
}

HRESULT MapDialogs::ShowGeoReference(IDispatch** mObj, ::CheckState* mKeepRatio, BSTR* mFormat, BSTR* mCaption,
                                     VARIANT* OwnerForm, long* result) noexcept {
  return ShowDialog(mObj, mCaption, nullptr, OwnerForm, result, [&](const DialogCall& call) {
    // Without a map nothing is shown, so there is nothing to own.
    const OwnerWindow owner = QueryKind<orx::IMap>(call.Client) ? call.Owner() : OwnerWindow();
    const auto keepRatio = mKeepRatio ? static_cast<orx::CheckState>(*mKeepRatio) : orx::CheckState::Grayed;
    return mService.ShowGeoReference(call.Client, keepRatio, mFormat ? TextOf(*mFormat) : "0.0000", call.Caption,
                                     owner);
  });
}

HRESULT MapDialogs::ShowAddLayer(long hWnd, VARIANT_BOOL multiselect, SAFEARRAY** files,
                                 VARIANT_BOOL* result) noexcept {
  return ChooseFiles(&orx::CCommonMapDialogs::ShowAddLayer, hWnd, multiselect, files, result);
}

HRESULT MapDialogs::ShowAddData(long hWnd, VARIANT_BOOL multiselect, SAFEARRAY** files, VARIANT_BOOL* result) noexcept {
  return ChooseFiles(&orx::CCommonMapDialogs::ShowAddData, hWnd, multiselect, files, result);
}

HRESULT MapDialogs::ChooseFiles(FilesMember member, long hWnd, VARIANT_BOOL multiselect, SAFEARRAY** files,
                                VARIANT_BOOL* result) noexcept {
  return Kept(kDialogsPlace, [&] {
    RequirePlaces({{"Files", files}, {"The result", result}});
    // Fail before the user has chosen, not afterwards.
    RequireTexts(*files, "Files");
    std::vector<std::string> chosen = InitialNameIn(*files);
    // Window handles of 64-bit programs fit 32 bits and are sign-extended.
    const auto owner = static_cast<std::uintptr_t>(static_cast<std::intptr_t>(hWnd));
    const bool isChosen = (mService.*member)(owner, multiselect != VARIANT_FALSE, chosen);
    if (isChosen) PutTexts(chosen, *files, "Files");
    *result = Given(isChosen);
  });
}

HRESULT MapDialogs::ShowFileNotFound(BSTR fileName, BSTR* newFileName, VARIANT_BOOL* cancelAll,
                                     VARIANT_BOOL* result) noexcept {
  return AskForFile(&orx::CCommonMapDialogs::ShowFileNotFound, fileName, newFileName, cancelAll, result);
}

HRESULT MapDialogs::ShowDataFileNotFound(BSTR fileName, BSTR* newFileName, VARIANT_BOOL* cancelAll,
                                         VARIANT_BOOL* result) noexcept {
  return AskForFile(&orx::CCommonMapDialogs::ShowDataFileNotFound, fileName, newFileName, cancelAll, result);
}

HRESULT MapDialogs::AskForFile(MissingMember member, BSTR fileName, BSTR* newFileName, VARIANT_BOOL* cancelAll,
                               VARIANT_BOOL* result) noexcept {
  return Kept(kDialogsPlace, [&] {
    RequirePlaces({{"NewFileName", newFileName}, {"CancelAll", cancelAll}, {"The result", result}});
    std::string chosen = TextOf(*newFileName);
    bool isCanceled = *cancelAll != VARIANT_FALSE;
    const bool answer = (mService.*member)(TextOf(fileName), chosen, isCanceled);
    Bstr(chosen).SwapWith(*newFileName);
    *cancelAll = Given(isCanceled);
    *result = Given(answer);
  });
}

HRESULT MapDialogs::ShowCharacterSelection(BSTR* mFontName, long* mCharacter, double* mRotation, VARIANT_BOOL* mChanged,
                                           BSTR* mCaption, VARIANT* OwnerForm, long* result) noexcept {
  return Kept(kDialogsPlace, [&] {
    RequirePlaces({{"mFontName", mFontName},
                   {"mCharacter", mCharacter},
                   {"mRotation", mRotation},
                   {"mChanged", mChanged},
                   {"The result", result}});
    *result = 0;
    std::string font = TextOf(*mFontName);
    std::int32_t character = *mCharacter;
    double rotation = *mRotation;
    bool isChanged = *mChanged != VARIANT_FALSE;
    const std::string before = font;
    *result = mService.ShowCharacterSelection(font, character, rotation, isChanged,
                                              mCaption ? TextOf(*mCaption) : std::string(), OwnerOf(OwnerForm));
    if (font != before) Bstr(font).SwapWith(*mFontName);
    *mCharacter = character;
    *mRotation = rotation;
    *mChanged = Given(isChanged);
  });
}

HRESULT MapDialogs::ShowListSelection(SAFEARRAY** mSelection, VARIANT_BOOL* mMultiselect, long* mListIndex,
                                      BSTR* mCaption, VARIANT_BOOL* mAskConfirmation, BSTR* mConfirmationQuestion,
                                      SAFEARRAY** mSelected, long* result) noexcept {
  return Kept(kDialogsPlace, [&] {
    RequirePlaces({{"mSelection", mSelection},
                   {"mMultiselect", mMultiselect},
                   {"mListIndex", mListIndex},
                   {"mCaption", mCaption},
                   {"mAskConfirmation", mAskConfirmation},
                   {"mConfirmationQuestion", mConfirmationQuestion},
                   {"mSelected", mSelected},
                   {"The result", result}});
    *result = 0;
    const TextArray entries = TextsIn(*mSelection, "mSelection");
    // Fail before the user has chosen, not afterwards.
    RequireNumbers(*mSelected, "mSelected");
    std::vector<std::int32_t> chosen;
    const std::int32_t count =
        mService.ShowListSelection(entries, *mMultiselect != VARIANT_FALSE, *mListIndex, TextOf(*mCaption),
                                   *mAskConfirmation != VARIANT_FALSE, TextOf(*mConfirmationQuestion), chosen);
    if (count > 0) PutNumbers(chosen, *mSelected, "mSelected");
    *result = count;
  });
}

}  // namespace orx::com
