#include "tests/com/support/Recorder.h"

#include "hostobjects/RunTimeError.h"

namespace orx::com::test {
namespace {

std::string Shown(IDispatch* const* object) {
  return !object ? "null" : *object ? "object" : "Nothing";
}
std::string Shown(const BSTR* text) {
  return text ? "\"" + TextOf(*text) + "\"" : "null";
}
std::string Shown(const BSTR& text) {
  return "\"" + TextOf(text) + "\"";
}
std::string Shown(const long& number) {
  return std::to_string(number);
}
std::string Shown(const long* number) {
  return number ? std::to_string(*number) : "null";
}
std::string Shown(const double* number) {
  std::string text = std::to_string(*number);
  while (text.ends_with('0')) text.pop_back();
  return text.ends_with('.') ? text + "0" : text;
}
std::string Shown(const VARIANT_BOOL& flag) {
  return flag ? "True" : "False";
}
std::string Shown(const VARIANT_BOOL* flag) {
  return Shown(*flag);
}
std::string Shown(const ::ClassifyFlags& flags) {
  return std::to_string(static_cast<int>(flags));
}
std::string Shown(const ::FormShowMode* mode) {
  return mode ? std::to_string(static_cast<int>(*mode)) : "null";
}
std::string Shown(const ::CheckState* state) {
  return state ? std::to_string(static_cast<int>(*state)) : "null";
}
std::string Shown(SAFEARRAY* const* array) {
  std::string text = "[";
  VARTYPE element = VT_EMPTY;
  SafeArrayGetVartype(*array, &element);
  if (element != VT_BSTR) return element == VT_I4 ? "numbers" : "VT" + std::to_string(element);
  for (const std::string& one : TextsOf(*array)) text += text.size() > 1 ? " " + one : one;
  return text + "]";
}
std::string Shown(const VARIANT* value) {
  if (!value) return "null";
  if (value->vt == VT_ERROR && value->scode == DISP_E_PARAMNOTFOUND) return "missing";
  return "VT" + std::to_string(value->vt);
}

}  // namespace

std::vector<std::string> TextsOf(SAFEARRAY* array) {
  ArrayBounds bounds;
  BoundsOf(array, bounds);
  std::vector<std::string> texts;
  for (LONG index = bounds.First; texts.size() < bounds.Count; ++index) {
    Bstr text;
    SafeArrayGetElement(array, &index, text.Out());
    texts.push_back(text.Text());
  }
  return texts;
}

SafeArray ArrayOfTexts(const std::vector<std::string>& texts, LONG first) {
  SafeArray made(VT_BSTR, {first, static_cast<ULONG>(texts.size())});
  for (const std::string& text : texts) made.Put(first++, Variant(text));
  return made;
}

SafeArray TableOf(VARTYPE element) {
  SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
  SafeArray made;
  *made.InOut() = SafeArrayCreate(element, 2, bounds);
  return made;
}

template <class... Values>
void Recorder::Note(const char* name, const Values&... values) {
  std::string text;
  ((text += (text.empty() ? "" : ", ") + Shown(values)), ...);
  Calls.push_back(std::string(name) + "(" + text + ")");
}

HRESULT Recorder::get_RegistryKey(BSTR* value) noexcept {
  Note("get RegistryKey");
  *value = Bstr("Key").Detach();
  return S_OK;
}

HRESULT Recorder::put_RegistryKey(BSTR* value) noexcept {
  Note("let RegistryKey", value);
  return S_OK;
}

HRESULT Recorder::get_CallBack(IDispatch** value) noexcept {
  Note("get CallBack");
  *value = nullptr;
  return S_OK;
}

HRESULT Recorder::putref_CallBack(IDispatch** value) noexcept {
  Note("set CallBack", value);
  return S_OK;
}

HRESULT Recorder::get_Language(IDispatch** value) noexcept {
  Note("get Language");
  *value = nullptr;
  return S_OK;
}

HRESULT Recorder::putref_Language(IDispatch** value) noexcept {
  Note("set Language", value);
  return S_OK;
}

HRESULT Recorder::Show(IDispatch** mObj, long* mFlags, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                       long* result) noexcept {
  Note("Show", mObj, mFlags, mCaption, mModal, OwnerForm);
  *result = 4;
  return S_OK;
}

HRESULT Recorder::ShowDataProperties(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                                     long* result) noexcept {
  Note("ShowDataProperties", mObj, mCaption, mModal, OwnerForm);
  *result = 5;
  return S_OK;
}

HRESULT Recorder::ShowLegends(IDispatch** mObj, long* Index, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                              long* result) noexcept {
  Note("ShowLegends", mObj, Index, mCaption, mModal, OwnerForm);
  *Index += 100;
  *result = 6;
  return S_OK;
}

HRESULT Recorder::ShowDataClassify(IDispatch** mObj, double* mMinValue, double* mMaxValue, ::ClassifyFlags flags,
                                   VARIANT_BOOL* isDirty, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                                   long* result) noexcept {
  Note("ShowDataClassify", mObj, mMinValue, mMaxValue, flags, isDirty, mCaption, mModal, OwnerForm);
  *isDirty = VARIANT_TRUE;
  *result = 7;
  return S_OK;
}

HRESULT Recorder::ShowDataOptions(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                                  long* result) noexcept {
  Note("ShowDataOptions", mObj, mCaption, mModal, OwnerForm);
  *result = 8;
  return S_OK;
}

HRESULT Recorder::ShowProperties(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                                 long* result) noexcept {
  return Guarded("Recorder", [&] {
    if (!Failure.empty()) throw RunTimeError(kErrorFileFormat, Failure);
    Note("ShowProperties", mObj, mCaption, mModal, OwnerForm);
    *result = 9;
  });
}

HRESULT Recorder::ShowLabels(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                             long* result) noexcept {
  Note("ShowLabels", mObj, mCaption, mModal, OwnerForm);
  *result = 10;
  return S_OK;
}

HRESULT Recorder::ShowCoordinates(IDispatch** mObj, BSTR* mCaption, ::FormShowMode* mModal, VARIANT* OwnerForm,
                                  long* result) noexcept {
  Note("ShowCoordinates", mObj, mCaption, mModal, OwnerForm);
  *result = 11;
  return S_OK;
}

HRESULT Recorder::ShowGeoReference(IDispatch** mObj, ::CheckState* mKeepRatio, BSTR* mFormat, BSTR* mCaption,
                                   VARIANT* OwnerForm, long* result) noexcept {
  Note("ShowGeoReference", mObj, mKeepRatio, mFormat, mCaption, OwnerForm);
  *result = 12;
  return S_OK;
}

HRESULT Recorder::ShowCharacterSelection(BSTR* mFontName, long* mCharacter, double* mRotation, VARIANT_BOOL* mChanged,
                                         BSTR* mCaption, VARIANT* OwnerForm, long* result) noexcept {
  Note("ShowCharacterSelection", mFontName, mCharacter, mRotation, mChanged, mCaption, OwnerForm);
  Bstr("Symbols").SwapWith(*mFontName);
  *mCharacter = 65;
  *mRotation = 22.5;
  *mChanged = VARIANT_TRUE;
  *result = 13;
  return S_OK;
}

HRESULT Recorder::ShowListSelection(SAFEARRAY** mSelection, VARIANT_BOOL* mMultiselect, long* mListIndex,
                                    BSTR* mCaption, VARIANT_BOOL* mAskConfirmation, BSTR* mConfirmationQuestion,
                                    SAFEARRAY** mSelected, long* result) noexcept {
  Note("ShowListSelection", mSelection, mMultiselect, mListIndex, mCaption, mAskConfirmation, mConfirmationQuestion,
       mSelected);
  SafeArray chosen(VT_I4, {0, 2});
  for (LONG i = 0; i < 2; ++i) chosen.Put(i, Variant(std::int32_t{i + 7}));
  chosen.SwapWith(*mSelected);
  *result = 14;
  return S_OK;
}

HRESULT Recorder::ShowAddLayer(long hWnd, VARIANT_BOOL multiselect, SAFEARRAY** files, VARIANT_BOOL* result) noexcept {
  Note("ShowAddLayer", hWnd, multiselect, files);
  ArrayOfTexts({"a.bil", "b.bil"}, 1).SwapWith(*files);
  *result = VARIANT_TRUE;
  return S_OK;
}

HRESULT Recorder::ShowAddData(long hWnd, VARIANT_BOOL multiselect, SAFEARRAY** files, VARIANT_BOOL* result) noexcept {
  Note("ShowAddData", hWnd, multiselect, files);
  *result = VARIANT_FALSE;
  return S_OK;
}

HRESULT Recorder::ShowFileNotFound(BSTR fileName, BSTR* newFileName, VARIANT_BOOL* cancelAll,
                                   VARIANT_BOOL* result) noexcept {
  Note("ShowFileNotFound", fileName, newFileName, cancelAll);
  Bstr("new").SwapWith(*newFileName);
  *result = VARIANT_FALSE;
  return S_OK;
}

HRESULT Recorder::ShowDataFileNotFound(BSTR fileName, BSTR* newFileName, VARIANT_BOOL* cancelAll,
                                       VARIANT_BOOL* result) noexcept {
  Note("ShowDataFileNotFound", fileName, newFileName, cancelAll);
  *result = VARIANT_FALSE;
  return S_OK;
}

}  // namespace orx::com::test
