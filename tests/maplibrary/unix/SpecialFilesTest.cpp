// Pipes, sockets, devices and folders in the place of a file: refused at once, since reading them may never end.
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "languages/TextLanguage.h"
#include "maplibrary/model/LayerFile.h"
#include "tests/maplibrary/GridFiles.h"

namespace orx::maplibrary {
namespace {

namespace fs = std::filesystem;

constexpr const char* kNames[] = {"x.asc", "x.bil", "x.shp", "x.lst", "x.txt"};

class SpecialFiles : public GridFiles {
 protected:
  /// What is said of a file by the reader of its kind; the text file is a language.
  std::string ErrorOf(const fs::path& path) {
    try {
      if (path.extension() == ".txt") {
        languages::TextLanguage language(path);
      } else {
        ReadLayerFile(path.string());
      }
    } catch (const RunTimeError& error) {
      EXPECT_EQ(kErrorFileAccess, error.Number());
      return error.what();
    }
    return "no error";
  }
  /// Makes each of the files in turn and expects that it is refused with the reason.
  template <class Make>
  void ExpectRefused(Make make, const std::string& reason) {
    for (const std::string name : kNames) {
      ASSERT_NO_FATAL_FAILURE(make(mFolder / name)) << name;
      EXPECT_EQ(name + reason, ErrorOf(mFolder / name));
    }
  }
};

TEST_F(SpecialFiles, APipeIsRefusedAndNotWaitedFor) {
  ExpectRefused([](const fs::path& path) { ASSERT_EQ(0, mkfifo(path.c_str(), 0600)); }, ": is not a plain file.");
}

TEST_F(SpecialFiles, APipeInThePlaceOfAHeaderIsRefused) {
  ASSERT_EQ(0, mkfifo((mFolder / "grid.hdr").c_str(), 0600));
  Write("grid.bil", "x");
  EXPECT_EQ("grid.hdr: is not a plain file.", ErrorOf(mFolder / "grid.bil"));
}

TEST_F(SpecialFiles, APipeThatAListNamesIsRefused) {
  ASSERT_EQ(0, mkfifo((mFolder / "pipe.asc").c_str(), 0600));
  Write("tiles.lst", "pipe.asc\n");
  EXPECT_EQ("pipe.asc: is not a plain file.", ErrorOf(mFolder / "tiles.lst"));
}

TEST_F(SpecialFiles, ASocketIsRefused) {
  ExpectRefused(
      [](const fs::path& path) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        ASSERT_LT(path.string().size(), sizeof(address.sun_path));
        path.string().copy(address.sun_path, sizeof(address.sun_path) - 1);
        const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
        EXPECT_EQ(0, bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)));
        close(socket);
      },
      ": is not a plain file.");
}

TEST_F(SpecialFiles, ADeviceIsRefused) {
  ExpectRefused([](const fs::path& path) { fs::create_symlink("/dev/zero", path); }, ": is not a plain file.");
}

TEST_F(SpecialFiles, AFolderIsRefused) {
  ExpectRefused([](const fs::path& path) { fs::create_directory(path); }, ": is a folder, choose a file in it.");
}

TEST_F(SpecialFiles, ALinkThatLeadsToItselfIsRefused) {
  for (const std::string name : kNames) {
    fs::create_symlink(mFolder / name, mFolder / name);
    EXPECT_TRUE(ErrorOf(mFolder / name).starts_with(name + ": cannot be opened: ")) << name;
  }
}

}  // namespace
}  // namespace orx::maplibrary
