// The source tree as text: the files with their includes, for the rules that the architecture sets.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orx::test {

struct SourceFile {
  /// From the top of the source tree, with "/" between the parts: "src/forms/Form.h".
  std::string Path;
  std::string Text;

  /// The names in `#include "..."` and `#include <...>` lines.
  std::vector<std::string> QuotedIncludes() const;
  std::vector<std::string> AngledIncludes() const;
  /// The words of the code: identifiers and keywords outside comments and texts.
  std::vector<std::string> Words() const;
  std::size_t LineCount() const;
};

/// All C++ files in the named folders of the source tree, sorted by path. A folder that is not there gives none.
std::vector<SourceFile> ReadSources(const std::vector<std::string>& folders);
/// One file by its path in the source tree; without text when there is none.
SourceFile ReadSource(const std::string& path);
/// All files that people write, scripts and documents included.
std::vector<SourceFile> ReadAllTexts();
/// All files below the named folders of the source tree, whatever they hold, and those that stand at its top.
std::vector<SourceFile> ReadTree(const std::vector<std::string>& folders);

/// The code without comments.
std::string WithoutComments(std::string_view code);
/// The text without comments, and with the contents of string and character literals taken out.
std::string WithoutCommentsAndTexts(std::string_view code);
/// The identifiers, keywords and numbers of a text.
std::vector<std::string> WordsOf(std::string_view text);

}  // namespace orx::test
