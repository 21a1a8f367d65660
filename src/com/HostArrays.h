// The arrays that hosts pass in and get back.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <string>
#include <vector>

#include "hostobjects/TextArray.h"

namespace orx::com {

/// The elements of an array of texts and its lower bound; a null array has no elements. Throws RunTimeError, naming the
/// argument `name`, for arrays of anything else or of several dimensions.
TextArray TextsIn(SAFEARRAY* array, const char* name);

/// The file name that a file dialog opens with: the element at index 1 of an array of texts. Empty when there is none.
std::vector<std::string> InitialNameIn(SAFEARRAY* files);

/// Throw RunTimeError, naming the argument `name`, for an array that PutNumbers or PutTexts could not replace: one of
/// anything but 32-bit integers or texts, of several dimensions, of a fixed size, or locked. A null array is fine.
void RequireNumbers(SAFEARRAY* array, const char* name);
void RequireTexts(SAFEARRAY* array, const char* name);

/// Replace the array of the argument `name` by a new one that counts from 1. Throw RunTimeError, and leave the old
/// array, when that has a fixed size or is locked.
void PutTexts(const std::vector<std::string>& texts, SAFEARRAY*& array, const char* name);
void PutNumbers(const std::vector<std::int32_t>& numbers, SAFEARRAY*& array, const char* name);

}  // namespace orx::com
