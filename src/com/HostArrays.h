// The arrays that hosts hand over and get back.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <string>
#include <vector>

#include "hostobjects/TextArray.h"

namespace orx::com {

/// The elements of an array of texts with the lower bound that it has; no array has none. An array of anything else or
/// of several dimensions is a RunTimeError that names the argument `name`.
TextArray TextsIn(SAFEARRAY* array, const char* name);

/// The name that a dialog for files opens on: the element with the index 1 of an array of texts; none without it.
std::vector<std::string> InitialNameIn(SAFEARRAY* files);

/// Throws RunTimeError, naming the argument `name`, for what PutNumbers could not replace: an array of anything but
/// 32-bit integers, of several dimensions, of a fixed size or locked. No array is fine.
void RequireNumbers(SAFEARRAY* array, const char* name);

/// Put a new array, counted from 1, in the place of the old one; that of the argument `name`. RunTimeError, and the old
/// one stays, when it is fixed or locked.
void PutTexts(const std::vector<std::string>& texts, SAFEARRAY*& array, const char* name);
void PutNumbers(const std::vector<std::int32_t>& numbers, SAFEARRAY*& array, const char* name);

}  // namespace orx::com
