// The creatable class CCommonMapDialogs: the service class behind its dual interfaces.
#pragma once

// This header comes first: its interfaces are global, and the library has others of the same names.
#include <OrvexMapDialogs2.h>

#include <memory>

#include "com/Dispatch.h"
#include "com/HostAdapters.h"
#include "com/ThreadContext.h"
#include "service/CCommonMapDialogs.h"

namespace orx::com {

class MapDialogs final : public ClassObject<::CCommonMapDialogs, ::_CCommonMapDialogs, ::ICommonMapDialogs2> {
 public:
  MapDialogs();
  ~MapDialogs() override;

  HRESULT STDMETHODCALLTYPE get_RegistryKey(BSTR* value) noexcept override;
  HRESULT STDMETHODCALLTYPE put_RegistryKey(BSTR* value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_CallBack(IDispatch** value) noexcept override;
  HRESULT STDMETHODCALLTYPE putref_CallBack(IDispatch** value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Language(IDispatch** value) noexcept override;
  HRESULT STDMETHODCALLTYPE putref_Language(IDispatch** value) noexcept override;
  HRESULT STDMETHODCALLTYPE Show(IDispatch** mObj, long* mFlags, BSTR* mCaption, ::FormShowMode* mModal,
                                 VARIANT* OwnerForm, long* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowDataProperties(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal,
                                               VARIANT* OwnerForm, long* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowLegends(IDispatch** mObj, long* Index, BSTR* mCaption, ::FormShowMode* mModal,
                                        VARIANT* OwnerForm, long* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowDataClassify(IDispatch** mObj, double* mMinValue, double* mMaxValue,
                                             ::ClassifyFlags flags, VARIANT_BOOL* isDirty, BSTR* mCaption,
                                             ::FormShowMode* mModal, VARIANT* OwnerForm,
                                             long* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowDataOptions(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal,
                                            VARIANT* OwnerForm, long* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowProperties(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                                           long* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowLabels(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                                       long* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowCoordinates(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal,
                                            VARIANT* OwnerForm, long* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowGeoReference(IDispatch** mObj, ::CheckState* mKeepRatio, BSTR* mFormat, BSTR* mCaption,
                                             VARIANT* OwnerForm, long* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowCharacterSelection(BSTR* mFontName, long* mCharacter, double* mRotation,
                                                   VARIANT_BOOL* mChanged, BSTR* mCaption, VARIANT* OwnerForm,
                                                   long* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowListSelection(SAFEARRAY** mSelection, VARIANT_BOOL* mMultiselect, long* mListIndex,
                                              BSTR* mCaption, VARIANT_BOOL* mAskConfirmation,
                                              BSTR* mConfirmationQuestion, SAFEARRAY** mSelected,
                                              long* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowAddLayer(long hWnd, VARIANT_BOOL multiselect, SAFEARRAY** files,
                                         VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowAddData(long hWnd, VARIANT_BOOL multiselect, SAFEARRAY** files,
                                        VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowFileNotFound(BSTR fileName, BSTR* newFileName, VARIANT_BOOL* cancelAll,
                                             VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ShowDataFileNotFound(BSTR fileName, BSTR* newFileName, VARIANT_BOOL* cancelAll,
                                                 VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_FileCheck(IDispatch** value) noexcept override;
  HRESULT STDMETHODCALLTYPE putref_FileCheck(IDispatch* value) noexcept override;

 private:
  using FilesMember = bool (orx::CCommonMapDialogs::*)(std::uintptr_t, bool, std::vector<std::string>&);
  HRESULT ChooseFiles(FilesMember member, long hWnd, VARIANT_BOOL multiselect, SAFEARRAY** files,
                      VARIANT_BOOL* result) noexcept;
  using MissingMember = bool (orx::CCommonMapDialogs::*)(const std::string&, std::string&, bool&);
  HRESULT AskForFile(MissingMember member, BSTR fileName, BSTR* newFileName, VARIANT_BOOL* cancelAll,
                     VARIANT_BOOL* result) noexcept;

  struct DialogCall;
  /// Shows a property dialog: reads the arguments and returns the result.
  template <class Dialog>
  HRESULT ShowDialog(IDispatch** mObj, const BSTR* mCaption, const ::FormShowMode* mModal, const VARIANT* OwnerForm,
                     long* result, Dialog&& dialog) noexcept;

  using DialogMember = std::int32_t (orx::CCommonMapDialogs::*)(HostObject*, const std::string&, ShowMode, OwnerWindow);
  /// A dialog that takes only the arguments that all dialogs have.
  auto Plain(DialogMember member);

  // Outlives the service, which uses it.
  std::shared_ptr<ThreadContext> mContext;
  orx::CCommonMapDialogs mService;
  // Plain pointers to the host's objects, and their adapters. No reference is held.
  IDispatch* mLanguage = nullptr;
  IDispatch* mCallBack = nullptr;
  std::shared_ptr<orx::ILanguage> mLanguageAdapter;
  std::shared_ptr<orx::IDialogCallBack> mCallBackAdapter;
  /// The check that was set through this object, with a reference to the host's object.
  std::shared_ptr<orx::IFileCheck> mFileCheck;
};

}  // namespace orx::com
