// Registration of the component: its classes and its type library, for all users or for the present one.
#pragma once

#include <windows.h>

#include <functional>

namespace orx::com {

/// Whom the component is registered for.
enum class RegisteredFor { AllUsers, User };

/// Writes everything that hosts need to create the classes of this module. Throws RunTimeError with the key that could
/// not be written; what was written before is taken back.
void Register(RegisteredFor whom);

/// Runs the action for all users, or for the present one where the user may not do more; what it throws comes back as
/// an error with its description.
HRESULT ForAllOrUser(const std::function<void(RegisteredFor)>& action) noexcept;

/// Removes everything that Register has written; what is not there is no error.
void Unregister(RegisteredFor whom);

}  // namespace orx::com
