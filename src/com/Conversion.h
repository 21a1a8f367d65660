// Conversion of the values that script hosts send to those that members take.
#pragma once

#include "com/Handles.h"

namespace orx::com {

/// Follows references to variants down to the variant that holds the value; null for null only. A reference to nothing
/// or to itself stays one.
VARIANT* ValueBehind(VARIANT* given);

/// Copies a value, that behind a reference too. DISP_E_TYPEMISMATCH for a reference to nothing.
HRESULT CopyBehind(const VARIANT& given, Variant& to);

/// True for an argument that was left out.
bool IsMissing(const VARIANT& given);

/// Converts to a plain type (VT_I4, VT_BSTR, VT_DISPATCH, ...). Empty and Null become zero, the empty text or no
/// object; the number zero also stands for no object. Returns the system's error code when there is no conversion.
HRESULT ConvertValue(const VARIANT& from, VARTYPE type, LCID locale, Variant& to);

/// Converts to an array of a plain type, element by element: from arrays of any type, from script objects with
/// `length`, from Empty (no elements) and from a single value.
HRESULT ConvertArray(const VARIANT& from, VARTYPE element, LCID locale, Variant& to);

/// Swaps a value with the one that a typed reference (VT_BYREF) of the same type points to. DISP_E_TYPEMISMATCH for
/// references of another type and for types that are not plain values.
HRESULT StoreBehind(const VARIANT& reference, Variant& value);

/// Converts to an array of variants, the only one that script hosts can read. The lower bound stays.
HRESULT ToScriptArray(const VARIANT& from, Variant& to);

}  // namespace orx::com
