// Contour lines of a grid by marching squares.
#pragma once

#include <vector>

#include "maplibrary/files/GridData.h"

namespace orx::maplibrary {

/// A place on a grid in rows and columns of cell centres, counted from 0 at the upper left.
struct GridPlace {
  double Row = 0;
  double Column = 0;
  bool operator==(const GridPlace&) const = default;
};

/// A line on which the grid has one value. A closed one ends where it starts.
struct Contour {
  std::vector<GridPlace> Points;
};

/// All contours of a level, joined: each is as long as it can be. Between centres the values run evenly; where all four
/// corners of a square are crossed, their mean decides which ones belong together, so that no lines cross. Values equal
/// to the level count as above it. Squares with a corner without value have no lines.
std::vector<Contour> ContoursOf(const GridData& grid, double level);

}  // namespace orx::maplibrary
