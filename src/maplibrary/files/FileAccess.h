// What the readers of grids and shapes have in common beside opening their files: names, and numbers in texts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "hostobjects/InputFile.h"

namespace orx::maplibrary {

/// Name of a file without folder and extension, UTF-8: "jacksboro" for "data/jacksboro.bil". Throws as PathOf does.
std::string FileStem(const std::string& path);

/// The whole text as a number, '.' as decimal point, with an optional sign in front.
std::optional<double> NumberFrom(std::string_view text);
/// The text in quotes for an error, cut when long, strange bytes replaced.
std::string Quoted(std::string_view text);

/// Sides and cells beyond this cannot be places on any ground.
inline constexpr double kMaxCoordinate = 1e15;

}  // namespace orx::maplibrary
