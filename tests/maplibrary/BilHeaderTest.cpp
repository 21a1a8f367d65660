// Headers that cannot be used: each is told by file, field, what it must be and what was found.
#include "tests/maplibrary/GridFiles.h"

namespace orx::maplibrary {
namespace {

using MapLibraryBilHeader = GridFiles;

const BadFile kBadHeaders[] = {
    {"NCOLS 2\n", "grid.hdr: NROWS is missing."},
    {"NROWS 2\n", "grid.hdr: NCOLS is missing."},
    {"", "grid.hdr: NROWS is missing."},
    {"NROWS abc\nNCOLS 2\n", "grid.hdr: NROWS must be a whole number from 1 to 100000, found \"abc\"."},
    {"NROWS\nNCOLS 2\n", "grid.hdr: NROWS must be a whole number from 1 to 100000, found \"\"."},
    {"NROWS 2 3\nNCOLS 2\n", "grid.hdr: NROWS must be a whole number from 1 to 100000, found \"2 3\"."},
    {"NROWS 2.5\nNCOLS 2\n", "grid.hdr: NROWS must be a whole number from 1 to 100000, found \"2.5\"."},
    {"NROWS 0\nNCOLS 2\n", "grid.hdr: NROWS must be a whole number from 1 to 100000, found \"0\"."},
    {"NROWS 2\nNCOLS -1\n", "grid.hdr: NCOLS must be a whole number from 1 to 100000, found \"-1\"."},
    {"NROWS 99999999999999999999\nNCOLS 2\n",
     "grid.hdr: NROWS must be a whole number from 1 to 100000, found \"99999999999999999999\"."},
    {"NROWS 100000\nNCOLS 100000\n",
     "grid.hdr: too large: 100000 rows of 100000 cells, at most 50000000 cells can be read."},
    {"NROWS 2\nNCOLS 2\nNBANDS 3\n", "grid.hdr: NBANDS must be 1, as a layer shows a single band, found \"3\"."},
    {"NROWS 2\nNCOLS 2\nLAYOUT TIF\n", "grid.hdr: LAYOUT must be BIL or BIP or BSQ, found \"TIF\"."},
    {"NROWS 2\nNCOLS 2\nBYTEORDER X\n", "grid.hdr: BYTEORDER must be I or M, found \"X\"."},
    {"NROWS 2\nNCOLS 2\nNBITS 12\n", "grid.hdr: NBITS must be 8, 16 or 32, found \"12\"."},
    {"NROWS 2\nNCOLS 2\nNBITS big\n", "grid.hdr: NBITS must be a whole number from 1 to 64, found \"big\"."},
    {"NROWS 2\nNCOLS 2\nPIXELTYPE TEXT\n",
     "grid.hdr: PIXELTYPE must be SIGNEDINT or UNSIGNEDINT or FLOAT, found \"TEXT\"."},
    {"NROWS 2\nNCOLS 2\nNBITS 16\nPIXELTYPE FLOAT\n",
     "grid.hdr: PIXELTYPE must be SIGNEDINT or UNSIGNEDINT unless NBITS is 32, found \"FLOAT\"."},
    {"NROWS 2\nNCOLS 2\nBANDROWBYTES 1\n",
     "grid.hdr: BANDROWBYTES must be a whole number from 2 to 1000000000, found \"1\"."},
    {"NROWS 2\nNCOLS 2\nBANDROWBYTES 4\nTOTALROWBYTES 3\n",
     "grid.hdr: TOTALROWBYTES must be a whole number from 4 to 1000000000, found \"3\"."},
    {"NROWS 2\nNCOLS 2\nSKIPBYTES -1\n",
     "grid.hdr: SKIPBYTES must be a whole number from 0 to 1000000000000, found \"-1\"."},
    {"NROWS 2\nNCOLS 2\nULXMAP 1,5\n", "grid.hdr: ULXMAP must be a number from -1E+15 to 1E+15, found \"1,5\"."},
    {"NROWS 2\nNCOLS 2\nULYMAP nan\n", "grid.hdr: ULYMAP must be a number from -1E+15 to 1E+15, found \"nan\"."},
    {"NROWS 2\nNCOLS 2\nULYMAP 1e300\n", "grid.hdr: ULYMAP must be a number from -1E+15 to 1E+15, found \"1e300\"."},
    {"NROWS 2\nNCOLS 2\nXDIM 0\n", "grid.hdr: XDIM must be a number above 0 and up to 1E+15, found \"0\"."},
    {"NROWS 2\nNCOLS 2\nYDIM -1\n", "grid.hdr: YDIM must be a number above 0 and up to 1E+15, found \"-1\"."},
    {"NROWS 2\nNCOLS 2\nYDIM inf\n", "grid.hdr: YDIM must be a number above 0 and up to 1E+15, found \"inf\"."},
    {"NROWS 2\nNCOLS 2\nNODATA none\n", "grid.hdr: NODATA must be a number, found \"none\"."},
    {"NROWS 2\nNCOLS 2\nNODATA_VALUE NaN\n", "grid.hdr: NODATA_VALUE must be a number, found \"NaN\"."},
};

TEST_F(MapLibraryBilHeader, EveryBadFieldIsToldWithFileFieldAndValue) {
  for (const BadFile& bad : kBadHeaders) {
    EXPECT_EQ(ErrorOf(WriteBil(bad.Text, Bytes({1, 2, 3, 4}))), bad.Error) << bad.Text;
  }
}

TEST_F(MapLibraryBilHeader, AFileShorterThanItsHeaderSaysIsTold) {
  EXPECT_EQ(ErrorOf(WriteBil("NROWS 2\nNCOLS 2\nNBITS 16\nSKIPBYTES 3\n", Bytes({1, 2, 3, 4}))),
            "grid.bil: too short: 11 bytes expected from its header, 4 found.");
  EXPECT_EQ(ErrorOf(WriteBil("NROWS 1\nNCOLS 1\n", "")),
            "grid.bil: too short: 1 bytes expected from its header, 0 found.");
}

TEST_F(MapLibraryBilHeader, LargeSizesClaimNoMemoryBeforeTheFileIsMeasured) {
  const std::string header = "NROWS 500\nNCOLS 100000\nNBITS 32\nTOTALROWBYTES 1000000000\nSKIPBYTES 1000000000000\n";
  EXPECT_EQ(ErrorOf(WriteBil(header, Bytes({1}))),
            "grid.bil: too short: 1499000400000 bytes expected from its header, 1 found.");
}

TEST_F(MapLibraryBilHeader, LongAndStrangeValuesAreCutAndCleaned) {
  EXPECT_EQ(ErrorOf(WriteBil("NCOLS 2\nNROWS a\x01"
                             "b" +
                                 std::string(100, 'x') + "\n",
                             "")),
            "grid.hdr: NROWS must be a whole number from 1 to 100000, found \"a?b" + std::string(37, 'x') + "...\".");
}

TEST_F(MapLibraryBilHeader, AMissingHeaderIsTold) {
  EXPECT_EQ(ErrorOf(Write("lonely.bil", Bytes({1}))), "lonely.hdr: file not found.");
}

TEST_F(MapLibraryBilHeader, AHeaderInCapitalsIsFound) {
  Write("GRID.HDR", "NROWS 1\nNCOLS 1\n");
  EXPECT_EQ(ReadGridFile(Write("GRID.BIL", Bytes({42}))).Values, std::vector<double>{42});
}

TEST_F(MapLibraryBilHeader, AHeaderThatIsNoTextAtAllIsTold) {
  EXPECT_EQ(ErrorOf(WriteBil(std::string(1'000'001, 'x'), "")),
            "grid.hdr: too large: 1000001 bytes, at most 1000000 can be read.");
}

}  // namespace
}  // namespace orx::maplibrary
