// Opening grid files: names in any script, what cannot be opened, and kinds of files that are no grids.
#include "maplibrary/files/FileAccess.h"
#include "maplibrary/model/Errors.h"
#include "tests/maplibrary/GridFiles.h"

namespace orx::maplibrary {
namespace {

using MapLibraryGridAccess = GridFiles;

std::int32_t ErrorNumberOf(const std::string& path) {
  try {
    ReadGridFile(path);
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST_F(MapLibraryGridAccess, FileNamesAreUtf8) {
  const std::string name =
      "H\xC3\xB6henr\xC3\xBC"
      "cken \xE5\xB1\xB1";
  Write(name + ".hdr", "NROWS 1\nNCOLS 1\n");
  const std::string path = Write(name + ".bil", Bytes({9}));
  EXPECT_EQ(ReadGridFile(path).Values, std::vector<double>{9});
  EXPECT_EQ(FileStem(path), name);
  EXPECT_EQ(ErrorOf(PathTo(name + ".asc")), name + ".asc: file not found.");
}

TEST_F(MapLibraryGridAccess, AMissingFileIsToldByName) {
  EXPECT_EQ(ErrorOf(PathTo("none.bil")), "none.bil: file not found.");
  EXPECT_EQ(ErrorNumberOf(PathTo("none.bil")), kErrorNoSuchFile);
  EXPECT_EQ(ErrorOf(PathTo("no/folder/none.asc")), "none.asc: file not found.");
}

TEST_F(MapLibraryGridAccess, AFolderIsNoFile) {
  std::filesystem::create_directory(mFolder / "folder.bil");
  EXPECT_EQ(ErrorOf(PathTo("folder.bil")), "folder.bil: is a folder, choose a file in it.");
  EXPECT_EQ(ErrorNumberOf(PathTo("folder.bil")), kErrorFileAccess);
}

TEST_F(MapLibraryGridAccess, AHeaderThatIsAFolderIsTold) {
  std::filesystem::create_directory(mFolder / "grid.hdr");
  EXPECT_EQ(ErrorOf(Write("grid.bil", "x")), "grid.hdr: is a folder, choose a file in it.");
}

TEST_F(MapLibraryGridAccess, ANameThatTheSystemRefusesIsTold) {
  const std::string name = std::string(5000, 'n') + ".asc";
  EXPECT_EQ(ErrorOf(PathTo(name)).rfind(name + ": ", 0), 0u);
  EXPECT_EQ(ErrorOf(std::string("a\0.asc", 6)), "The path is no valid text.");
}

TEST_F(MapLibraryGridAccess, OtherKindsOfFilesAreRefused) {
  EXPECT_EQ(ErrorOf(PathTo("photo.tif")),
            "photo.tif: unknown kind of file. Choose a grid with the extension .bil or .asc.");
  EXPECT_EQ(ErrorNumberOf(PathTo("photo.tif")), kErrorFileFormat);
  EXPECT_NE(ErrorOf(""), "no error");
}

TEST_F(MapLibraryGridAccess, GridsAreKnownByTheirExtensionInAnyCase) {
  for (const char* name : {"a.bil", "A.BIL", "b.Asc"}) EXPECT_TRUE(IsGridFile(name)) << name;
  for (const char* name : {"a.hdr", "bil", ".bil", "a.bil.zip", ""}) EXPECT_FALSE(IsGridFile(name)) << name;
}

}  // namespace
}  // namespace orx::maplibrary
