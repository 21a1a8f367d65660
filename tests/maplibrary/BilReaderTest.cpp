// Grids in .bil files: cells of all types, places, and the layouts of rows.
#include <cmath>

#include "tests/maplibrary/GridFiles.h"

namespace orx::maplibrary {
namespace {

using MapLibraryBilReader = GridFiles;
using Values = std::vector<double>;

TEST_F(MapLibraryBilReader, TheElevationDataIsReadWhole) {
  const GridData grid = ReadGridFile(ORX_DATA_DIR "/jacksboro.bil");
  EXPECT_EQ(grid.Rows, 344);
  EXPECT_EQ(grid.Columns, 403);
  EXPECT_EQ(RangeOf(grid), (ValueRange{236, 1076}));
  EXPECT_EQ(HighestCell(grid), (GridCell{297, 219}));
  EXPECT_EQ(grid.UpperLeft, (GroundPoint{-84.41333333333333, 36.7325}));
  EXPECT_EQ(grid.CellWidth, 0.0008333333333333334);
  EXPECT_EQ(grid.NoData, -32768);
}

TEST_F(MapLibraryBilReader, TheFormatsOwnDefaultsHoldForMissingFields) {
  const GridData grid = ReadGridFile(WriteBil("NROWS 2\nNCOLS 3\n", Bytes({1, 2, 3, 4, 5, 255})));
  EXPECT_EQ(grid.Values, (Values{1, 2, 3, 4, 5, 255}));
  EXPECT_EQ(grid.UpperLeft, (GroundPoint{0, 1}));
  EXPECT_EQ(grid.CellWidth, 1);
  EXPECT_EQ(grid.CellHeight, 1);
  EXPECT_FALSE(grid.NoData);
}

TEST_F(MapLibraryBilReader, TheUpperLeftOfTheHeaderIsTheCentreOfACell) {
  const auto path = WriteBil("NROWS 2\nNCOLS 2\nULXMAP 10\nULYMAP 20\nXDIM 2\nYDIM 4\n", Bytes({1, 2, 3, 4}));
  EXPECT_EQ(ReadGridFile(path).Edges(), (GroundRect{9, 13, 14, 22}));
}

TEST_F(MapLibraryBilReader, KeysStandInAnyCaseAndOrderBetweenUnknownOnes) {
  const std::string header =
      "\xEF\xBB\xBFncols\t2\r\n\r\nPROJECTION lat long\r\nnBits 8\r\nNRows   1  \r\npixelType signedint\r\n";
  EXPECT_EQ(ReadGridFile(WriteBil(header, Bytes({0x7F, 0x80}))).Values, (Values{127, -128}));
}

TEST_F(MapLibraryBilReader, AnEndOfLineAfterTheLastFieldIsNotNeeded) {
  EXPECT_EQ(ReadGridFile(WriteBil("NROWS 1\nNCOLS 2", Bytes({3, 4}))).Values, (Values{3, 4}));
}

TEST_F(MapLibraryBilReader, LargerFilesThanNeededAreRead) {
  EXPECT_EQ(ReadGridFile(WriteBil("NROWS 1\nNCOLS 1\n", Bytes({7, 8, 9}))).Values, (Values{7}));
}

struct CellCase {
  const char* Fields;
  std::vector<int> Cells;
  Values Expected;
};

TEST_F(MapLibraryBilReader, CellsAreReadByTypeAndByteOrder) {
  const CellCase cases[] = {
      {"NBITS 16\nPIXELTYPE SIGNEDINT\nBYTEORDER I\n", {0x34, 0x12, 0xFE, 0xFF}, {0x1234, -2}},
      {"NBITS 16\nPIXELTYPE SIGNEDINT\nBYTEORDER M\n", {0x12, 0x34, 0xFF, 0xFE}, {0x1234, -2}},
      {"NBITS 16\nPIXELTYPE UNSIGNEDINT\nBYTEORDER M\n", {0x12, 0x34, 0xFF, 0xFE}, {0x1234, 65534}},
      {"NBITS 32\nPIXELTYPE SIGNEDINT\n", {4, 3, 2, 1, 0, 0, 0, 0x80}, {0x01020304, -2147483648.0}},
      {"NBITS 32\nPIXELTYPE UNSIGNEDINT\n", {4, 3, 2, 1, 255, 255, 255, 255}, {0x01020304, 4294967295.0}},
      {"NBITS 32\nPIXELTYPE FLOAT\nBYTEORDER M\n", {0x3F, 0xC0, 0, 0, 0xC1, 0x20, 0, 0}, {1.5, -10}}};
  for (const CellCase& one : cases) {
    const auto path = WriteBil(std::string("NROWS 1\nNCOLS 2\n") + one.Fields, Bytes(one.Cells));
    EXPECT_EQ(ReadGridFile(path).Values, one.Expected) << one.Fields;
  }
}

TEST_F(MapLibraryBilReader, SkippedBytesAndRowEndsAreNoCells) {
  const std::string cells = Bytes({99, 99, 1, 2, 88, 77, 3, 4});
  const std::string header = "NROWS 2\nNCOLS 2\nSKIPBYTES 2\n";
  for (const char* rows : {"BANDROWBYTES 4\n", "TOTALROWBYTES 4\n", "BANDROWBYTES 3\nTOTALROWBYTES 4\n"}) {
    EXPECT_EQ(ReadGridFile(WriteBil(header + rows, cells)).Values, (Values{1, 2, 3, 4})) << rows;
  }
}

TEST_F(MapLibraryBilReader, OneBandIsTheSameInEveryLayout) {
  for (const char* layout : {"BIL", "BSQ", "bip"}) {
    const auto path = WriteBil(std::string("NROWS 1\nNCOLS 2\nNBANDS 1\nLAYOUT ") + layout + "\n", Bytes({5, 6}));
    EXPECT_EQ(ReadGridFile(path).Values, (Values{5, 6})) << layout;
  }
}

TEST_F(MapLibraryBilReader, CellsOfTheNoDataValueHaveNoValue) {
  for (const char* name : {"NODATA", "NODATA_VALUE"}) {
    const GridData grid = ReadGridFile(WriteBil(std::string("NROWS 1\nNCOLS 2\n") + name + " 9\n", Bytes({9, 8})));
    EXPECT_TRUE(std::isnan(grid.Values[0])) << name;
    EXPECT_EQ(grid.Values[1], 8) << name;
    EXPECT_EQ(grid.NoData, 9) << name;
  }
}

TEST_F(MapLibraryBilReader, FloatCellsMeetANoDataValueOfMoreDigits) {
  const std::string header = "NROWS 1\nNCOLS 2\nNBITS 32\nPIXELTYPE FLOAT\nNODATA -3.40282346638529e+38\n";
  const GridData grid = ReadGridFile(WriteBil(header, Bytes({0xFF, 0xFF, 0x7F, 0xFF, 0, 0, 0x80, 0x3F})));
  EXPECT_TRUE(std::isnan(grid.Values[0]));
  EXPECT_EQ(grid.Values[1], 1);
}

TEST_F(MapLibraryBilReader, FloatCellsThatAreNoNumbersHaveNoValue) {
  const std::string header = "NROWS 1\nNCOLS 2\nNBITS 32\nPIXELTYPE FLOAT\n";
  const GridData grid = ReadGridFile(WriteBil(header, Bytes({0, 0, 0xC0, 0x7F, 0, 0, 0x80, 0x7F})));
  EXPECT_TRUE(std::isnan(grid.Values[0]));
  EXPECT_TRUE(std::isnan(grid.Values[1]));
  EXPECT_FALSE(RangeOf(grid));
  EXPECT_FALSE(HighestCell(grid));
}

}  // namespace
}  // namespace orx::maplibrary
