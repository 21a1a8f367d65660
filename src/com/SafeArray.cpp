#include "com/SafeArray.h"

#include <algorithm>

#include "com/Errors.h"

namespace orx::com {
HRESULT BoundsOf(SAFEARRAY* array, ArrayBounds& bounds) {
  bounds = {};
  if (!array) return S_OK;
  if (SafeArrayGetDim(array) != 1) return DISP_E_TYPEMISMATCH;
  bounds.Count = array->rgsabound[0].cElements;
  return SafeArrayGetLBound(array, 1, &bounds.First);
}

bool IsReplaceable(const SAFEARRAY* array) {
  return !array || (!(array->fFeatures & (FADF_STATIC | FADF_EMBEDDED | FADF_FIXEDSIZE)) && array->cLocks == 0);
}

ArrayElements::ArrayElements(SAFEARRAY* array) : mArray(array) {
  Check(SafeArrayAccessData(array, &mFirst), "The elements of an array cannot be read");
}

ArrayElements::~ArrayElements() {
  SafeArrayUnaccessData(mArray);
}

SafeArray::SafeArray(VARTYPE element, const ArrayBounds& bounds)
    : mArray(SafeArrayCreateVector(element, bounds.First, bounds.Count)) {
  if (!mArray) throw std::bad_alloc();
}

SafeArray::~SafeArray() {
  if (mArray) SafeArrayDestroy(mArray);
}

Variant SafeArray::MoveToVariant(VARTYPE element) {
  Variant value;
  value.vt = static_cast<VARTYPE>(VT_ARRAY | element);
  value.parray = std::exchange(mArray, nullptr);
  return value;
}

void SafeArray::Put(LONG index, Variant value) {
  void* place = nullptr;
  Check(SafeArrayPtrOfIndex(mArray, &index, &place), "An array has no such element");
  if (mArray->fFeatures & FADF_VARIANT) return value.SwapWith(*static_cast<VARIANT*>(place));
  Check(mArray->cbElements <= sizeof(value.llVal) ? S_OK : DISP_E_TYPEMISMATCH, "An array has other elements");
  auto* const element = static_cast<unsigned char*>(place);
  // All plain values start at the same place of a variant.
  std::swap_ranges(element, element + mArray->cbElements, reinterpret_cast<unsigned char*>(&value.llVal));
}

}  // namespace orx::com
