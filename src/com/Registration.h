// Registers the component: its classes and its type library, for all users or for the current one.
#pragma once

#include <windows.h>

#include <functional>

namespace orx::com {

/// Whom the component is registered for.
enum class RegisteredFor { AllUsers, User };

/// Writes everything that hosts need to create the classes of this module. Throws RunTimeError, naming the key that
/// could not be written, and removes what was written before.
void Register(RegisteredFor whom);

/// Runs the action for all users, or for the current user where the rights do not allow more. An exception becomes an
/// error code with a description.
HRESULT ForAllOrUser(const std::function<void(RegisteredFor)>& action) noexcept;

/// Removes everything that Register has written. Missing keys are not an error.
void Unregister(RegisteredFor whom);

}  // namespace orx::com
