// An object with the interface of the map dialogs that shows nothing: it writes down what reaches it and answers with
// values that can be told apart.
#pragma once

#include <OrvexMapDialogs2.h>

#include <string>
#include <vector>

#include "com/Dispatch.h"
#include "com/SafeArray.h"

namespace orx::com::test {

class Recorder final : public ClassObject<::CCommonMapDialogs, ::_CCommonMapDialogs> {
 public:
  /// The calls, such as: ShowLegends(object, 3, "A", 1, missing).
  std::vector<std::string> Calls;
  /// When not empty, ShowProperties fails with this description and kErrorFileFormat.
  std::string Failure;

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

 private:
  template <class... Values>
  void Note(const char* name, const Values&... values);
};

/// The elements of an array of texts, and an array made of them.
std::vector<std::string> TextsOf(SAFEARRAY* array);
SafeArray ArrayOfTexts(const std::vector<std::string>& texts, LONG first = 0);
/// An array of two dimensions, which no member takes.
SafeArray TableOf(VARTYPE element);

}  // namespace orx::com::test
