#include "tests/files/FilesTest.h"

#include <atomic>
#include <chrono>

namespace orx::test {
namespace {

namespace fs = std::filesystem;

fs::path FromUtf8(const std::string& text) {
  return fs::path(std::u8string(text.begin(), text.end()));
}

std::string ToUtf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::string UniqueName() {
  static std::atomic<int> count = 0;
  return "orx-files-" + std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()) + "-" +
         std::to_string(++count);
}

}  // namespace

TestFolder::TestFolder() : mSeparator(static_cast<char>(fs::path::preferred_separator)) {
  const fs::path path = fs::weakly_canonical(fs::temp_directory_path()) / UniqueName();
  fs::create_directories(path);
  mPath = ToUtf8(path);
}

TestFolder::~TestFolder() {
  std::error_code ignored;
  fs::remove_all(FromUtf8(mPath), ignored);
}

void TestFolder::Add(const std::string& name) const {
  std::ofstream(FromUtf8(PathOf(name))).put(' ');
}

void FilesTest::ExpectPick(const std::vector<std::string>& names, int filter) {
  for (const std::string& name : names) folder.Add(name);
  script.ExpectFiles([this, names, filter](OpenFileRequest& request) {
    seen = request;
    user.PickFiles(request, {folder.Path(), names, filter});
  });
}

}  // namespace orx::test
