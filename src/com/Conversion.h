// Values between what script hosts send and what members take.
#pragma once

#include "com/Handles.h"

namespace orx::com {

/// Follows references to variants down to the variant that holds the value.
VARIANT* ValueBehind(VARIANT* given);

/// True for an argument that was left out.
bool IsMissing(const VARIANT& given);

/// Converts to a plain type (VT_I4, VT_BSTR, VT_DISPATCH, ...). Empty and Null become zero, the empty text, no object;
/// a number that is zero stands for no object as well. The error code of the system when there is no way.
HRESULT ConvertValue(const VARIANT& from, VARTYPE type, LCID locale, Variant& to);

/// Converts to an array of a plain type, element by element: from arrays of any type, from script objects with
/// `length`, from Empty (no elements) and from a single value.
HRESULT ConvertArray(const VARIANT& from, VARTYPE element, LCID locale, Variant& to);

/// Puts a value where a typed reference (VT_BYREF) of its type points; what was there goes with the value.
/// DISP_E_TYPEMISMATCH for references of another type or to what is no plain value.
HRESULT StoreBehind(const VARIANT& reference, Variant& value);

/// The array as script hosts can read it: of variants. Its lower bound is kept.
HRESULT ToScriptArray(const VARIANT& from, Variant& to);

}  // namespace orx::com
