#include "com/HostArrays.h"

#include <new>
#include <utility>

#include "com/Errors.h"
#include "com/Handles.h"
#include "hostobjects/RunTimeError.h"

namespace orx::com {
namespace {

void RequireElements(SAFEARRAY* array, VARTYPE type, const std::string& description) {
  VARTYPE found = VT_EMPTY;
  if (SafeArrayGetDim(array) == 1 && SUCCEEDED(SafeArrayGetVartype(array, &found)) && found == type) return;
  throw RunTimeError(kErrorTypeMismatch, description);
}

/// Throws for arrays that belong to their place, and for those that somebody works in.
void RequireReplaceable(const SAFEARRAY* array, const std::string& name) {
  if (!array || (!(array->fFeatures & (FADF_STATIC | FADF_EMBEDDED | FADF_FIXEDSIZE)) && array->cLocks == 0)) return;
  throw RunTimeError(kErrorFixedArray,
                     name + " is an array of a fixed size or locked. Hand over one that can be resized.");
}

/// Makes an array counted from 1 and has `put` store each element by its index.
template <class Put>
void Replace(VARTYPE type, std::size_t count, SAFEARRAY*& array, const char* name, Put&& put) {
  RequireReplaceable(array, name);
  SAFEARRAY* const made = SafeArrayCreateVector(type, 1, static_cast<ULONG>(count));
  if (!made) throw std::bad_alloc();
  for (LONG index = 1; index <= static_cast<LONG>(count); ++index) put(made, index);
  SafeArrayDestroy(std::exchange(array, made));
}

}  // namespace

TextArray TextsIn(SAFEARRAY* array, const char* name) {
  TextArray texts;
  if (!array) return texts;
  RequireElements(array, VT_BSTR, std::string(name) + " is no array of texts with one dimension.");
  LONG first = 0;
  Check(SafeArrayGetLBound(array, 1, &first), name);
  BSTR* elements = nullptr;
  Check(SafeArrayAccessData(array, reinterpret_cast<void**>(&elements)), name);
  const struct Unaccess {
    ~Unaccess() { SafeArrayUnaccessData(Array); }
    SAFEARRAY* Array;
  } unaccess{array};
  texts.LowerBound = first;
  const std::size_t count = array->rgsabound[0].cElements;
  texts.Items.reserve(count);
  for (std::size_t i = 0; i < count; ++i) texts.Items.push_back(TextOf(elements[i]));
  return texts;
}

std::vector<std::string> FirstOf(SAFEARRAY* files) {
  VARTYPE type = VT_EMPTY;
  LONG index = 1;
  Bstr first;
  if (!files || FAILED(SafeArrayGetVartype(files, &type)) || type != VT_BSTR || SafeArrayGetDim(files) != 1) return {};
  if (FAILED(SafeArrayGetElement(files, &index, first.Out()))) return {};
  return {first.Text()};
}

void RequireNumbers(SAFEARRAY* array, const char* name) {
  if (!array) return;
  RequireElements(array, VT_I4, std::string(name) + " is no array of 32-bit integers with one dimension.");
  RequireReplaceable(array, name);
}

void PutTexts(const std::vector<std::string>& texts, SAFEARRAY*& array, const char* name) {
  Replace(VT_BSTR, texts.size(), array, name, [&](SAFEARRAY* made, LONG index) {
    SafeArrayPutElement(made, &index, Bstr(texts[static_cast<std::size_t>(index) - 1]).Get());
  });
}

void PutNumbers(const std::vector<std::int32_t>& numbers, SAFEARRAY*& array, const char* name) {
  Replace(VT_I4, numbers.size(), array, name, [&](SAFEARRAY* made, LONG index) {
    LONG number = numbers[static_cast<std::size_t>(index) - 1];
    SafeArrayPutElement(made, &index, &number);
  });
}

}  // namespace orx::com
