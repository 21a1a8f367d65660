// The library's run-time error, which host objects may throw and which reaches the host.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace orx {

/// A numbered error. `what()` is the description, fit to be shown to a user; UTF-8, but for the names of files that are
/// none, which it quotes as they are.
class RunTimeError : public std::runtime_error {
 public:
  /// `description` says what happened and what to do, naming the file, field or value.
  RunTimeError(std::int32_t number, const std::string& description)
      : std::runtime_error(description), mNumber(number) {}

  /// One of the numbers below, or a number of the host's own.
  std::int32_t Number() const { return mNumber; }

 private:
  std::int32_t mNumber;
};

/// The numbers of the errors that the library itself raises, which automation hosts know.
inline constexpr std::int32_t kErrorOverflow = 6;
/// An index outside of what is counted, or a name that is none of a collection.
inline constexpr std::int32_t kErrorSubscript = 9;
inline constexpr std::int32_t kErrorFixedArray = 10;
inline constexpr std::int32_t kErrorTypeMismatch = 13;
inline constexpr std::int32_t kErrorNoSuchFile = 53;
inline constexpr std::int32_t kErrorFileAccess = 75;
/// An object that is needed is not there: no page was made, a host's member gives Nothing.
inline constexpr std::int32_t kErrorNotLoaded = 91;
inline constexpr std::int32_t kErrorFileFormat = 321;
inline constexpr std::int32_t kErrorInvalidValue = 380;
/// An object is used after the time for which it was handed over.
inline constexpr std::int32_t kErrorNotAvailable = 398;
inline constexpr std::int32_t kErrorNoSuchPage = 430;
/// A host's object lacks a property or method.
inline constexpr std::int32_t kErrorNoSuchMember = 438;

}  // namespace orx
