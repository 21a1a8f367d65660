// What an error says to the user.
#pragma once

#include <exception>
#include <string>

namespace orx {

/// What stands for an error that has no words, such as an exception that is a plain number. A key for a translation.
inline constexpr const char* kUnknownError = "Unknown error";

/// The words of an error, UTF-8.
std::string ErrorText(const std::exception_ptr& error);

}  // namespace orx
