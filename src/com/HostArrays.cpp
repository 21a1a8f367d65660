#include "com/HostArrays.h"

#include "com/Errors.h"
#include "com/SafeArray.h"
#include "hostobjects/RunTimeError.h"

namespace orx::com {
namespace {

bool HasElements(SAFEARRAY* array, VARTYPE type) {
  VARTYPE found = VT_EMPTY;
  return SafeArrayGetDim(array) == 1 && SUCCEEDED(SafeArrayGetVartype(array, &found)) && found == type;
}

void RequireElements(SAFEARRAY* array, VARTYPE type, const std::string& description) {
  if (!HasElements(array, type)) throw RunTimeError(kErrorTypeMismatch, description);
}

void RequireReplaceable(const SAFEARRAY* array, const std::string& name) {
  if (IsReplaceable(array)) return;
  throw RunTimeError(kErrorFixedArray, name +
                                           " cannot take the answer: it has a fixed size, is locked, or has elements "
                                           "that cannot hold it. Hand over an array that can be resized.");
}

void RequireResult(SAFEARRAY* array, VARTYPE type, const std::string& name, const char* elements) {
  if (!array) return;
  RequireElements(array, type, name + " is no array of " + elements + " with one dimension.");
  RequireReplaceable(array, name);
}

/// Replaces an array by one with these elements that counts from 1.
template <class Element>
void Replace(VARTYPE type, const std::vector<Element>& elements, SAFEARRAY*& array, const char* name) {
  RequireReplaceable(array, name);
  SafeArray made(type, {1, static_cast<ULONG>(elements.size())});
  LONG index = 0;
  for (const Element& element : elements) made.Put(++index, Variant(element));
  made.SwapWith(array);
}

}  // namespace

TextArray TextsIn(SAFEARRAY* array, const char* name) {
  TextArray texts;
  if (!array) return texts;
  RequireElements(array, VT_BSTR, std::string(name) + " is no array of texts with one dimension.");
  ArrayBounds bounds;
  Check(BoundsOf(array, bounds), name);
  texts.LowerBound = bounds.First;
  texts.Items.reserve(bounds.Count);
  const ArrayElements elements(array);
  for (ULONG place = 0; place < bounds.Count; ++place)
    texts.Items.push_back(TextOf(*static_cast<const BSTR*>(elements.At(place))));
  return texts;
}

std::vector<std::string> InitialNameIn(SAFEARRAY* files) {
  LONG index = 1;
  Bstr name;
  if (!files || FAILED(SafeArrayGetElement(files, &index, name.Out()))) return {};
  return {name.Text()};
}

void RequireNumbers(SAFEARRAY* array, const char* name) {
  RequireResult(array, VT_I4, name, "32-bit integers");
}

void RequireTexts(SAFEARRAY* array, const char* name) {
  RequireResult(array, VT_BSTR, name, "texts");
}

void PutTexts(const std::vector<std::string>& texts, SAFEARRAY*& array, const char* name) {
  Replace(VT_BSTR, texts, array, name);
}

void PutNumbers(const std::vector<std::int32_t>& numbers, SAFEARRAY*& array, const char* name) {
  Replace(VT_I4, numbers, array, name);
}

}  // namespace orx::com
