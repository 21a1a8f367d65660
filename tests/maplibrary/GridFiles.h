// Files for the tests of the grid readers: a folder that is gone after the test, and what a reader says of a file.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "hostobjects/RunTimeError.h"
#include "maplibrary/files/GridFile.h"

namespace orx::maplibrary {

/// A folder of its own for each test, also when the tests run twice at the same time.
class GridFiles : public testing::Test {
 protected:
  GridFiles() {
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    mFolder = std::filesystem::temp_directory_path() / (std::string("orx_") + info->test_suite_name() + "_" +
                                                        info->name() + "_" + std::to_string(std::random_device()()));
    std::filesystem::create_directories(mFolder);
  }
  ~GridFiles() override {
    std::error_code ignored;
    std::filesystem::remove_all(mFolder, ignored);
  }

  std::string PathTo(const std::string& name) const {
    const std::u8string path = (mFolder / std::u8string(name.begin(), name.end())).u8string();
    return std::string(path.begin(), path.end());
  }
  std::string Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(mFolder / std::u8string(name.begin(), name.end()), std::ios::binary) << bytes;
    return PathTo(name);
  }
  std::string WriteBil(const std::string& header, const std::string& cells) const {
    Write("grid.hdr", header);
    return Write("grid.bil", cells);
  }
  static std::string Bytes(const std::vector<int>& bytes) { return std::string(bytes.begin(), bytes.end()); }
  static std::string ErrorOf(const std::string& path) {
    try {
      ReadGridFile(path);
    } catch (const RunTimeError& error) {
      return error.what();
    }
    return "no error";
  }

  std::filesystem::path mFolder;
};

/// One way to spoil a file, and what is said of it.
struct BadFile {
  const char* Text;
  const char* Error;
};

}  // namespace orx::maplibrary
