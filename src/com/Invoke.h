// Calls of members by number, as script hosts make them, for objects whose dual interface the type library describes.
#pragma once

#include "com/Handles.h"

namespace orx::com {

/// One call of a member, in the terms of IDispatch::Invoke.
struct MemberCall {
  DISPID Member;
  LCID Locale;
  WORD Flags;
  DISPPARAMS* Parameters;
  VARIANT* Result;
  EXCEPINFO* Error;
  UINT* WrongArgument;
};

/// Converts the arguments, calls the member of `instance` (a pointer to the described interface) and returns its
/// results. Unlike the system's own Invoke it takes variables for typed by-reference parameters, lets arguments be left
/// out where the type library allows it, and takes arrays of variants.
HRESULT InvokeMember(ITypeInfo& info, void* instance, const MemberCall& call);

}  // namespace orx::com
