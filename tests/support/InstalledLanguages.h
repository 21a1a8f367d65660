// The languages that are delivered with the library.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "languages/TextLanguage.h"

namespace orx::test {

/// Each by the name of its file, such as "de".
using InstalledLanguages = std::map<std::string, std::unique_ptr<languages::TextLanguage>>;

inline InstalledLanguages ReadInstalledLanguages() {
  InstalledLanguages all;
  for (const auto& file : std::filesystem::directory_iterator(ORX_DATA_DIR "/languages"))
    all[file.path().stem().string()] = std::make_unique<languages::TextLanguage>(file.path());
  return all;
}

}  // namespace orx::test
