// A language read from a text file, one "key = text" per line.
#pragma once

#include <filesystem>
#include <istream>
#include <map>
#include <string>
#include <string_view>

#include "languages/FormLanguage.h"

namespace orx::languages {

/// The file is UTF-8, with or without a byte order mark; lines end with LF or CRLF. Empty lines and lines that start
/// with "#" are skipped. Keys are the English texts, "&" included, and the help keys, which start with an underscore;
/// blanks around key and text do not count. "\n" stands for a line break, "\=" for an equals sign in a key, "\#" for a
/// number sign at the start of a line, "\\" for a backslash.
class TextLanguage final : public FormLanguage {
 public:
  /// Reads a file. Throws RunTimeError when there is no such file (kErrorNoSuchFile), when it is no plain file but a
  /// folder, a pipe or a device, or cannot be read (kErrorFileAccess), when it has more than 10 MB, and with file and
  /// line when a line is no pair of key and text, gives a key twice, has an unknown escape, or is not UTF-8
  /// (kErrorFileFormat).
  explicit TextLanguage(const std::filesystem::path& file);
  /// Reads from a stream; `name` stands for it in errors.
  TextLanguage(std::istream& stream, const std::string& name) { Read(stream, name); }

  std::int32_t EntryCount() override { return static_cast<std::int32_t>(mTexts.size()); }
  std::string TranslateText(const std::string& key) override;
  /// What the file says under "_Direction".
  bool IsRightToLeft() override { return TranslateText(kDirectionKey) == kRightToLeft; }
  bool HasText(const std::string& key) const { return mTexts.contains(key); }
  /// All texts by key.
  const std::map<std::string, std::string>& Texts() const { return mTexts; }

 private:
  void Read(std::istream& stream, const std::string& name);
  /// Takes one line in; returns what is wrong with it, empty when nothing is.
  std::string ReadLine(std::string_view line);

  std::map<std::string, std::string> mTexts;
};

}  // namespace orx::languages
