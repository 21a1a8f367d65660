// The whole state of a map as text, so that two states can be compared to the last bit.
#pragma once

#include <string>

#include "maplibrary/model/Map.h"

namespace orx::test {

/// Every setting of the map, its legends, layers and tiles, one to a line, numbers in hexadecimal; grid values as a
/// check sum. Equal texts mean equal maps.
std::string Serialise(const maplibrary::Map& map);

}  // namespace orx::test
