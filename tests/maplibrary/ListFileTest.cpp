// Lists of grids: what they may name, how often, and how much their grids may hold together.
#include "maplibrary/model/LayerFile.h"
#include "maplibrary/model/TiledLayer.h"
#include "tests/maplibrary/GridFiles.h"

namespace orx::maplibrary {
namespace {

class ListFiles : public GridFiles {
 protected:
  ListFiles() {
    Write("a.asc", "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1\n1 2 3 4\n");
    Write("b.asc", "ncols 2\nnrows 2\nxllcorner 2\nyllcorner 0\ncellsize 1\n5 6 7 8\n");
  }

  std::unique_ptr<MapLayer> Read(const std::string& lines, std::int64_t mostCells = kMaxListCells) {
    return ReadLayerFile(Write("tiles.LST", lines), mostCells);
  }
  std::string ErrorOf(const std::string& lines, std::int64_t mostCells = kMaxListCells) {
    try {
      Read(lines, mostCells);
    } catch (const RunTimeError& error) {
      return error.what();
    }
    return {};
  }
  static std::vector<std::string> NamesOf(MapLayer& layer) {
    std::vector<std::string> names;
    for (const auto& tile : dynamic_cast<TiledLayer&>(layer).Tiles().All()) names.push_back(tile->Name());
    return names;
  }
};

TEST_F(ListFiles, AListBecomesALayerOfTiles) {
  const auto layer = Read("a.asc\r\n\r\n  b.asc  \n");
  auto& tiles = dynamic_cast<TiledLayer&>(*layer);
  EXPECT_EQ("tiles", tiles.Name());
  ASSERT_EQ(2, tiles.LayerCount());
  EXPECT_EQ("b", tiles.LayerName(2));
}

TEST_F(ListFiles, AListTellsWhichOfItsFilesIsWrong) {
  EXPECT_EQ("gone.asc: file not found.", ErrorOf("gone.asc\n"));
  EXPECT_EQ("tiles.LST: names no files. Write the path of a grid on each line.", ErrorOf("\n \n"));
}

TEST_F(ListFiles, AGridIsOneTileHoweverOftenItIsNamed) {
  std::string lines = "b.asc\n./a.asc\n" + PathTo("a.asc") + "\n";
  for (int i = 0; i < 1000; ++i) lines += "a.asc\n";
  EXPECT_EQ((std::vector<std::string>{"b", "a"}), NamesOf(*Read(lines)));
}

TEST_F(ListFiles, TheGridsOfAListTogetherHaveALimit) {
  EXPECT_EQ((std::vector<std::string>{"a", "b"}), NamesOf(*Read("a.asc\nb.asc\n", 8)));
  EXPECT_EQ("b.asc: too large: 2 rows of 2 cells, at most 3 more cells can be read.", ErrorOf("a.asc\nb.asc\n", 7));
}

TEST_F(ListFiles, AListNamesGridsOnly) {
  const std::string reason = ": unknown kind of file. Choose a grid with the extension .bil or .asc.";
  EXPECT_EQ("tiles.LST" + reason, ErrorOf("a.asc\ntiles.LST\n"));
  EXPECT_EQ("roads.shp" + reason, ErrorOf("roads.shp\n"));
  EXPECT_EQ("passwd" + reason, ErrorOf("/etc/passwd\n"));
}

TEST_F(ListFiles, NothingIsToldOfWhatAFileHoldsThatIsNoGrid) {
  Write("secret.asc", "password 1234\n");
  EXPECT_EQ("secret.asc: is no grid, as it does not begin with a field such as NCOLS.", ErrorOf("secret.asc\n"));
  Write("secret.hdr", "password 1234\n");
  Write("secret.bil", "x");
  EXPECT_EQ("secret.hdr: NROWS is missing.", ErrorOf("secret.bil\n"));
}

TEST_F(ListFiles, AListOfManyNamesIsReadOrRefusedAtOnce) {
  EXPECT_EQ("tiles.LST: too large: 1048578 bytes, at most 1048576 can be read.",
            ErrorOf(std::string((1 << 20) + 2, '\n')));
  EXPECT_EQ("line: unknown kind of file. Choose a grid with the extension .bil or .asc.",
            ErrorOf("line\n" + std::string(1 << 19, '\n')));
}

}  // namespace
}  // namespace orx::maplibrary
