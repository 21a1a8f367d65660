// What the fuzz tests have in common: a condition that has to hold, a file to be read, and numbers of a kind that
// programs get wrong.
#pragma once

#include <fuzzer/FuzzedDataProvider.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>

namespace orx::fuzz {

/// Ends the program, which the fuzzer takes for a fault, unless the condition holds.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

/// The folder of this program's files, gone at its end.
class Folder {
 public:
  Folder() : mPath(std::filesystem::temp_directory_path() / ("orx-fuzz-" + std::to_string(getpid()))) {
    std::filesystem::create_directories(mPath);
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(mPath, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  /// Writes a file in place of the one of that name, and gives its path.
  std::string Write(const std::string& name, const std::string& content) const {
    std::ofstream(mPath / name, std::ios::binary) << content;
    return (mPath / name).string();
  }

 private:
  std::filesystem::path mPath;
};

/// Any number: zeros, infinities and NaN as well as those near the limits, and arbitrary bits.
inline double AnyNumber(FuzzedDataProvider& data) {
  using Limits = std::numeric_limits<double>;
  switch (data.ConsumeIntegralInRange(0, 4)) {
    case 0:
      return data.PickValueInArray({0.0, -0.0, 1.0, -1.0, 0.5, -999.0, -9999.0, 1e15, -1e15, 1e16, 1e-300});
    case 1:
      return data.PickValueInArray({Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(), Limits::max(),
                                    Limits::lowest(), Limits::min(), Limits::denorm_min(), Limits::epsilon()});
    case 2:
      return data.ConsumeIntegral<std::int16_t>() / 16.0;
    case 3:
      return data.ConsumeFloatingPoint<double>();
    default: {
      const auto bits = data.ConsumeIntegral<std::uint64_t>();
      double number = 0;
      static_assert(sizeof number == sizeof bits);
      __builtin_memcpy(&number, &bits, sizeof number);
      return number;
    }
  }
}

/// A whole number that is small for the most part.
template <class Whole>
Whole AnyWhole(FuzzedDataProvider& data) {
  return data.ConsumeIntegralInRange(0, 3) == 0 ? data.ConsumeIntegral<Whole>()
                                                : static_cast<Whole>(data.ConsumeIntegralInRange(-2, 20));
}

}  // namespace orx::fuzz
