// The fixture for choosing files: a folder with real files, nothing remembered, and a language that marks its texts.
#pragma once

#include <filesystem>
#include <fstream>

#include "service/modDialog.h"
#include "tests/support/DesktopTest.h"

namespace orx::test {

/// A folder of its own with empty files, gone afterwards.
class TestFolder {
 public:
  TestFolder();
  ~TestFolder();
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  /// Makes a file; names are UTF-8.
  void Add(const std::string& name) const;
  /// The folder, and a path in it, as the platform writes them.
  const std::string& Path() const { return mPath; }
  std::string PathOf(const std::string& name) const { return mPath + mSeparator + name; }

 private:
  std::string mPath;
  char mSeparator;
};

class FilesTest : public DesktopTest {
 protected:
  FilesTest() { modDialog::ResetRememberedChoices(); }
  ~FilesTest() override { modDialog::ResetRememberedChoices(); }

  /// Makes the files that are not there yet and expects the user to pick them.
  void ExpectPick(const std::vector<std::string>& names, int filter = 0);
  void ExpectCancel() {
    script.ExpectFiles([this](OpenFileRequest& request) {
      seen = request;
      user.CancelFiles(request);
    });
  }
  bool Choose(modDialog::FileKind kind, ILanguage* language = nullptr) {
    return modDialog::ChooseFiles({desktop(), 0, kind, language}, false, files);
  }

  static constexpr auto kLayers = modDialog::FileKind::Layers;
  static constexpr auto kData = modDialog::FileKind::Data;

  TestFolder folder;
  std::vector<std::string> files;
  /// The request of the last dialog when it opened.
  OpenFileRequest seen;
};

}  // namespace orx::test
