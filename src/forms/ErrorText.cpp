#include "forms/ErrorText.h"

namespace orx {

std::string ErrorText(const std::exception_ptr& error) {
  try {
    std::rethrow_exception(error);
  } catch (const std::exception& known) {
    if (*known.what()) return known.what();
  } catch (...) {
    // Not even a description.
  }
  return kUnknownError;
}

}  // namespace orx
