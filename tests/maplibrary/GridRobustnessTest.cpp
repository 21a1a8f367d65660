// Files that were cut or spoiled at random: each is read or refused with an error of ours, and nothing else happens.
#include <random>

#include "tests/maplibrary/GridFiles.h"

namespace orx::maplibrary {
namespace {

using MapLibraryGridRobustness = GridFiles;

constexpr int kRounds = 600;

/// Cuts the text, changes or doubles some of its bytes.
std::string Spoiled(std::string text, std::mt19937& random) {
  const auto below = [&](std::size_t limit) { return random() % std::max<std::size_t>(limit, 1); };
  if (random() % 3 == 0) text.resize(below(text.size() + 1));
  for (std::size_t changes = below(6); changes > 0 && !text.empty(); --changes) {
    const std::size_t at = below(text.size());
    using std::string_view_literals::operator""sv;
    constexpr std::string_view kLikely = "0123456789-+.eE \t\r\n\0\xFFNaI"sv;
    if (random() % 2 == 0) {
      text[at] = kLikely[below(kLikely.size())];
    } else {
      text.insert(at, text.substr(below(text.size()), below(12)));
    }
  }
  return text;
}

/// True when the file was read to a whole grid, false when it was refused.
bool IsReadWhole(const std::string& path) {
  try {
    const GridData grid = ReadGridFile(path);
    EXPECT_EQ(grid.Values.size(), static_cast<std::size_t>(grid.Rows) * static_cast<std::size_t>(grid.Columns));
    EXPECT_FALSE(grid.Edges().IsEmpty() && grid.CellWidth > 1e-6 && grid.CellHeight > 1e-6);
    return true;
  } catch (const RunTimeError& error) {
    EXPECT_STRNE(error.what(), "");
    return false;
  }
}

TEST_F(MapLibraryGridRobustness, SpoiledBilFilesAreReadOrRefused) {
  const std::string header =
      "BYTEORDER I\nLAYOUT BIL\nNROWS 4\nNCOLS 3\nNBANDS 1\nNBITS 16\nPIXELTYPE SIGNEDINT\nBANDROWBYTES 6\n"
      "TOTALROWBYTES 6\nSKIPBYTES 1\nULXMAP 1.5\nULYMAP 2\nXDIM 1\nYDIM 1\nNODATA 7\n";
  std::mt19937 random(20240517);
  int whole = 0;
  for (int i = 0; i < kRounds; ++i) {
    const std::string cells = Spoiled(std::string(25, '\x07'), random);
    whole += IsReadWhole(WriteBil(Spoiled(header, random), cells)) ? 1 : 0;
  }
  EXPECT_GT(whole, kRounds / 50);
  EXPECT_LT(whole, kRounds);
}

TEST_F(MapLibraryGridRobustness, SpoiledAscFilesAreReadOrRefused) {
  const std::string text =
      "ncols 3\nnrows 2\nxllcorner 10\nyllcorner 20\ncellsize 2\nNODATA_value -1\n1 2 3\n4.5 -5 6e2\n";
  std::mt19937 random(7);
  int whole = 0;
  for (int i = 0; i < kRounds; ++i) whole += IsReadWhole(Write("a.asc", Spoiled(text, random))) ? 1 : 0;
  EXPECT_GT(whole, kRounds / 50);
  EXPECT_LT(whole, kRounds);
}

TEST_F(MapLibraryGridRobustness, EveryTruncationOfAFileIsRefused) {
  const std::string text = "ncols 2\nnrows 1\ncellsize 1\nxllcorner 0\nyllcorner 0\n10 x";
  for (std::size_t length = 0; length <= text.size(); ++length) {
    EXPECT_FALSE(IsReadWhole(Write("a.asc", text.substr(0, length)))) << length;
  }
}

}  // namespace
}  // namespace orx::maplibrary
