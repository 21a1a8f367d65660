// Registers the component: its classes and its type library, for all users or for the current one.
#pragma once

#include <windows.h>

#include <functional>

#include "com/ClassesKey.h"

namespace orx::com {

/// Writes everything that hosts need to create the classes of this module. Throws RunTimeError, naming the key that
/// could not be written, and removes what was written before.
void Register(RegisteredFor whom);

/// Runs the action for all users, or for the current user where the rights do not allow more. An exception becomes an
/// error code with a description.
HRESULT ForAllOrUser(const std::function<void(RegisteredFor)>& action) noexcept;

/// Removes what Register has written for this module and no other one needs: what belongs to a module in another file
/// or to another version stays, and what both bitnesses share goes with the last of them. Missing keys are not an
/// error.
void Unregister(RegisteredFor whom);

}  // namespace orx::com
