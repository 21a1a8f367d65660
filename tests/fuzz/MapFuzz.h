// A layer under fuzz: any settings that it takes, then drawn with its legends.
#pragma once

#include <memory>

#include "maplibrary/model/MapLayer.h"
#include "tests/fuzz/Fuzz.h"

namespace orx::fuzz {

/// Puts the layer on a map, offers both any values, and draws the map. What the setters refuse is refused by our own
/// errors, and nothing else happens.
void DrawWithAnySettings(FuzzedDataProvider& data, std::unique_ptr<maplibrary::MapLayer> layer);

/// Reads the file as a layer and draws it so. Refusing the file is as good.
void ReadAndDraw(FuzzedDataProvider& data, const std::string& path);

}  // namespace orx::fuzz
