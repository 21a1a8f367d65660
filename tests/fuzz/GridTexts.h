// Headers of grids as fuzz tests write them: the fields of a format, each with a value that makes sense or one that
// does not.
#pragma once

#include <initializer_list>

#include "tests/fuzz/Fuzz.h"

namespace orx::fuzz {

inline std::string AnyValue(FuzzedDataProvider& data) {
  static const char* const kStrange[] = {
      "",          "-1",     "99999", "100000", "1000000000000", "9223372036854775808",
      "nan",       "inf",    "1e5",   "+3",     "-9999",         "0x10",
      "1E+400",    "5e-324", "M",     "I",      "FLOAT",         "UNSIGNEDINT",
      "SIGNEDINT", "BSQ",    "1.5"};
  switch (data.ConsumeIntegralInRange(0, 7)) {
    case 0:
      return data.PickValueInArray(kStrange);
    case 1:
      return data.ConsumeRandomLengthString(12);
    case 2:
      return data.PickValueInArray({"8", "16", "32"});
    default:
      return std::to_string(data.ConsumeIntegralInRange(0, 9));
  }
}

/// A line for each of the fields, nearly always; sometimes another one.
inline std::string AnyFields(FuzzedDataProvider& data, std::initializer_list<const char*> fields) {
  std::string text;
  for (const char* const field : fields) {
    const int choice = data.ConsumeIntegralInRange(0, 15);
    if (choice == 0) continue;
    text += choice == 1 ? data.ConsumeRandomLengthString(12) : std::string(field);
    text += (choice == 2 ? "\t  " : " ") + AnyValue(data) + (choice == 3 ? "\r\n" : "\n");
  }
  return text;
}

}  // namespace orx::fuzz
