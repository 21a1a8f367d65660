#include "com/SafeArray.h"

#include "com/Errors.h"

namespace orx::com {
HRESULT BoundsOf(SAFEARRAY* array, ArrayBounds& bounds) {
  bounds = {};
  if (!array) return S_OK;
  if (SafeArrayGetDim(array) != 1) return DISP_E_TYPEMISMATCH;
  bounds.Count = array->rgsabound[0].cElements;
  return SafeArrayGetLBound(array, 1, &bounds.First);
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

void SafeArray::Put(LONG index, const Variant& value) {
  const bool isPointer = value.vt == VT_BSTR || value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN;
  const void* place = isPointer ? static_cast<const void*>(value.bstrVal) : &value.lVal;
  if (mArray->fFeatures & FADF_VARIANT) place = static_cast<const VARIANT*>(&value);
  Check(SafeArrayPutElement(mArray, &index, const_cast<void*>(place)), "An array cannot take an element");
}

}  // namespace orx::com
