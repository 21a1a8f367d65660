// Grids in .asc files: places, values, and what is said of files that cannot be used.
#include <cmath>

#include "tests/maplibrary/GridFiles.h"

namespace orx::maplibrary {
namespace {

using MapLibraryAscReader = GridFiles;

const std::string kFrame = "ncols 3\nnrows 2\nxllcorner 10\nyllcorner 20\ncellsize 2\n";

TEST_F(MapLibraryAscReader, ValuesStandRowByRowFromTheNorth) {
  const GridData grid = ReadGridFile(Write("a.asc", kFrame + "1 2 3\n4.5 -5 6e2\n"));
  EXPECT_EQ(grid.Rows, 2);
  EXPECT_EQ(grid.Columns, 3);
  EXPECT_EQ(grid.Values, (std::vector<double>{1, 2, 3, 4.5, -5, 600}));
  EXPECT_EQ(grid.At(1, 0), 4.5);
}

TEST_F(MapLibraryAscReader, TheCornerIsThatOfTheLowerLeftCell) {
  const GridData grid = ReadGridFile(Write("a.asc", kFrame + "1 2 3 4 5 6"));
  EXPECT_EQ(grid.Edges(), (GroundRect{10, 16, 20, 24}));
  EXPECT_EQ(grid.UpperLeft, (GroundPoint{11, 23}));
}

TEST_F(MapLibraryAscReader, CentresLieHalfACellInside) {
  const std::string frame = "ncols 3\nnrows 2\nxllcenter 11\nyllcenter 21\ncellsize 2\n";
  EXPECT_EQ(ReadGridFile(Write("a.asc", frame + "1 2 3 4 5 6")).Edges(), (GroundRect{10, 16, 20, 24}));
}

TEST_F(MapLibraryAscReader, LineEndsTabsCapitalsAndAByteOrderMarkDoNotMatter) {
  const std::string text =
      "\xEF\xBB\xBFNROWS\t1\r\nNCols 2\r\nCELLSIZE +1\r\nXLLCORNER 0\r\nYLLCORNER 0\r\nNODATA_value 7\r\n7\t+8\r\n";
  const GridData grid = ReadGridFile(Write("a.ASC", text));
  EXPECT_TRUE(std::isnan(grid.Values[0]));
  EXPECT_EQ(grid.Values[1], 8);
}

TEST_F(MapLibraryAscReader, WithoutANoDataFieldTheFormatsOwnValueHolds) {
  const GridData grid = ReadGridFile(Write("a.asc", kFrame + "-9999 2 3 4 5 6"));
  EXPECT_TRUE(std::isnan(grid.Values[0]));
  EXPECT_EQ(grid.NoData, -9999);
}

const BadFile kBadFiles[] = {
    {"", "a.asc: NCOLS is missing."},
    {"ncols 1\n1\n", "a.asc: NROWS is missing."},
    {"ncols 1\nnrows 1\n1", "a.asc: CELLSIZE is missing."},
    {"ncols 1\nnrows 1\ncellsize 1\n1", "a.asc: XLLCORNER is missing."},
    {"ncols 1\nnrows 1\ncellsize 1\nxllcorner 0\n1", "a.asc: YLLCORNER is missing."},
    {"ncols 1\nnrows 1\ncellsize 0\nxllcorner 0\nyllcorner 0\n1",
     "a.asc: CELLSIZE must be a number above 0 and up to 1E+15, found \"0\"."},
    {"ncols 1\nnrows 1\ncellsize 1\nxllcenter west\nyllcorner 0\n1",
     "a.asc: XLLCENTER must be a number from -1E+15 to 1E+15, found \"west\"."},
    {"ncols many\nnrows 1\n", "a.asc: NCOLS must be a whole number from 1 to 100000, found \"many\"."},
    {"ncols 99999\nnrows 99999\n", "a.asc: too large: 99999 rows of 99999 cells, at most 50000000 cells can be read."},
    {"ncols 1\nrows 1\n", "a.asc: unknown field \"ROWS\"."},
    {"root:x:0:0:root:/root:/bin/sh\n", "a.asc: is no grid, as it does not begin with a field such as NCOLS."},
    {"ncols 1\nnrows 2\ncellsize 1\nxllcorner 0\nyllcorner 0\n1",
     "a.asc: too few values: 2 expected (2 rows of 1), 1 found."},
    {"ncols 9000\nnrows 5000\ncellsize 1\nxllcorner 0\nyllcorner 0\n",
     "a.asc: too few values: 45000000 expected (5000 rows of 9000), 0 found."},
    {"ncols 1\nnrows 2\ncellsize 1\nxllcorner 0\nyllcorner 0\n1 2 3",
     "a.asc: too many values: 2 expected (2 rows of 1), more found."},
    {"ncols 2\nnrows 2\ncellsize 1\nxllcorner 0\nyllcorner 0\n1 2 3 x4",
     "a.asc: row 2, column 2 must be a number, found \"x4\"."},
    {"ncols 1\nnrows 2\ncellsize 1\nxllcorner 0\nyllcorner 0\n1 nan",
     "a.asc: row 2, column 1 must be a number, found \"nan\"."},
    {"ncols 1\nnrows 1\ncellsize 1\nxllcorner 0\nyllcorner 0\n1,5",
     "a.asc: row 1, column 1 must be a number, found \"1,5\"."},
    {"ncols 1\nnrows 1\ncellsize 1\nxllcorner 0\nyllcorner 0\n1e999",
     "a.asc: row 1, column 1 must be a number, found \"1e999\"."},
    {"ncols 1\nnrows 1\ncellsize 1\nxllcorner 0\nyllcorner 0\nnodata_value x\n1",
     "a.asc: NODATA_VALUE must be a number, found \"x\"."},
};

TEST_F(MapLibraryAscReader, EveryBadFileIsToldWithFileFieldAndValue) {
  for (const BadFile& bad : kBadFiles) EXPECT_EQ(ErrorOf(Write("a.asc", bad.Text)), bad.Error) << bad.Text;
}

}  // namespace
}  // namespace orx::maplibrary
