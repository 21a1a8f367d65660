// An array of texts whose first index the host chooses.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orx {

/// Elements, UTF-8, and the index by which the host knows the first one.
struct TextArray {
  std::vector<std::string> Items;
  std::int32_t LowerBound = 0;
};

}  // namespace orx
