// Pipes, devices and folders in the place of a file: refused at once, since reading them may never end.
#include <windows.h>

#include "languages/TextLanguage.h"
#include "maplibrary/model/LayerFile.h"
#include "tests/maplibrary/GridFiles.h"

namespace orx::maplibrary {
namespace {

bool IsRefused(const std::string& path) {
  try {
    if (path.ends_with(".txt")) {
      languages::TextLanguage language{std::filesystem::path(path)};
    } else {
      ReadLayerFile(path);
    }
  } catch (const RunTimeError& error) {
    EXPECT_STRNE("", error.what());
    return true;
  }
  return false;
}

/// A named pipe that nobody writes to.
class SilentPipe {
 public:
  explicit SilentPipe(const std::string& name)
      : mHandle(CreateNamedPipeA(name.c_str(), PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE | PIPE_WAIT, 8, 64, 64, 0, nullptr)) {
    EXPECT_NE(INVALID_HANDLE_VALUE, mHandle);
  }
  ~SilentPipe() { CloseHandle(mHandle); }
  SilentPipe(const SilentPipe&) = delete;
  SilentPipe& operator=(const SilentPipe&) = delete;

 private:
  HANDLE mHandle;
};

using SpecialFiles = GridFiles;

constexpr const char* kExtensions[] = {".asc", ".bil", ".shp", ".lst", ".txt"};

TEST_F(SpecialFiles, APipeIsRefusedAndNotWaitedFor) {
  for (const char* const extension : kExtensions) {
    const std::string name = std::string(R"(\\.\pipe\orx-silent)") + extension;
    const SilentPipe pipe(name);
    EXPECT_TRUE(IsRefused(name)) << name;
  }
}

TEST_F(SpecialFiles, ADeviceIsRefused) {
  for (const char* const extension : kExtensions)
    for (const std::string device : {"NUL", "CON", "COM1"}) {
      EXPECT_TRUE(IsRefused(device + extension)) << device << extension;
      EXPECT_TRUE(IsRefused(R"(\\.\)" + device + extension)) << device << extension;
    }
}

TEST_F(SpecialFiles, AFolderIsRefused) {
  for (const char* const extension : kExtensions) {
    std::filesystem::create_directory(mFolder / ("folder" + std::string(extension)));
    EXPECT_TRUE(IsRefused(PathTo("folder" + std::string(extension)))) << extension;
  }
}

}  // namespace
}  // namespace orx::maplibrary
