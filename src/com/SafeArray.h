// The owner of the automation library's arrays.
#pragma once

#include "com/Handles.h"

namespace orx::com {

/// The index of the first element, and how many there are.
struct ArrayBounds {
  LONG First = 0;
  ULONG Count = 0;
};

/// The bounds of an array of one dimension; a null array has no elements. DISP_E_TYPEMISMATCH for several dimensions.
HRESULT BoundsOf(SAFEARRAY* array, ArrayBounds& bounds);

/// False for an array that its owner cannot have replaced by another: one of a fixed size, or locked. True for null.
bool IsReplaceable(const SAFEARRAY* array);

/// The elements of a host's array, which is locked for as long as this lives. Throws RunTimeError.
class ArrayElements {
 public:
  explicit ArrayElements(SAFEARRAY* array);
  ~ArrayElements();
  ArrayElements(const ArrayElements&) = delete;
  ArrayElements& operator=(const ArrayElements&) = delete;

  /// The element at a position, counted from 0.
  void* At(ULONG place) const { return static_cast<char*>(mFirst) + std::size_t{place} * mArray->cbElements; }

 private:
  SAFEARRAY* mArray;
  void* mFirst = nullptr;
};

/// An array of one dimension, or none.
class SafeArray {
 public:
  SafeArray() = default;
  /// All elements are zero, empty or Nothing. Throws std::bad_alloc.
  SafeArray(VARTYPE element, const ArrayBounds& bounds);
  SafeArray(SafeArray&& other) noexcept : mArray(std::exchange(other.mArray, nullptr)) {}
  SafeArray& operator=(SafeArray&& other) noexcept {
    std::swap(mArray, other.mArray);
    return *this;
  }
  ~SafeArray();

  SAFEARRAY* Get() const { return mArray; }
  /// For functions that replace the array through an argument.
  SAFEARRAY** InOut() { return &mArray; }
  /// Swaps the array with a caller's variable, which then owns what was here.
  void SwapWith(SAFEARRAY*& other) noexcept { std::swap(mArray, other); }
  /// Moves the array into a variant; `element` is the type of its elements.
  Variant MoveToVariant(VARTYPE element);

  /// Moves a value into the array. It must have exactly the type of the elements, unless these are variants. Throws
  /// RunTimeError.
  void Put(LONG index, Variant value);

 private:
  SAFEARRAY* mArray = nullptr;
};

}  // namespace orx::com
