// The map that the demo opens and tests start from.
#pragma once

#include <memory>
#include <string>

#include "maplibrary/model/Map.h"

namespace orx::maplibrary {

/// A map of one grid file: layer 1 shows it whole ("Terrain"), layer 2 ("Quarters", invisible at first) as four tiles.
/// `path` is UTF-8. Throws RunTimeError as ReadGridFile does.
std::unique_ptr<Map> MakeSampleMap(const std::string& path);

}  // namespace orx::maplibrary
