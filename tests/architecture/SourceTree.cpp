#include "tests/architecture/SourceTree.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <sstream>

namespace orx::test {
namespace {

namespace fs = std::filesystem;

std::string ReadText(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

bool IsCode(const fs::path& path) {
  return path.extension() == ".h" || path.extension() == ".cpp";
}

bool IsWordPart(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

void ReadFolder(const fs::path& folder, bool codeOnly, std::vector<SourceFile>& files) {
  if (!fs::exists(folder)) return;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file() || (codeOnly && !IsCode(entry.path()))) continue;
    files.push_back({fs::relative(entry.path(), ORX_SOURCE_DIR).generic_string(), ReadText(entry.path())});
  }
}

std::vector<std::string> Includes(const std::string& text, char open, char close) {
  std::vector<std::string> names;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with("#include ") || line.size() < 11 || line[9] != open) continue;
    names.push_back(line.substr(10, line.find(close, 10) - 10));
  }
  return names;
}

/// The end of the literal that begins at `from`, behind its closing quote.
std::size_t EndOfLiteral(std::string_view code, std::size_t from) {
  if (from > 0 && code[from - 1] == 'R' && code[from] == '"') {
    const std::string close = ")" + std::string(code.substr(from + 1, code.find('(', from) - from - 1)) + "\"";
    return std::min(code.find(close, from), code.size() - close.size()) + close.size();
  }
  std::size_t at = from + 1;
  while (at < code.size() && code[at] != code[from]) at += code[at] == '\\' ? 2 : 1;
  return std::min(at + 1, code.size());
}

bool BeginsLiteral(std::string_view code, std::size_t at) {
  if (code[at] == '"') return true;
  if (code[at] != '\'') return false;
  std::size_t word = at;
  while (word > 0 && IsWordPart(code[word - 1])) --word;
  // Between digits an apostrophe only groups them.
  const std::string_view prefix = code.substr(word, at - word);
  return prefix.empty() || prefix == "L" || prefix == "u" || prefix == "U" || prefix == "u8";
}

/// The code without comments, and with or without what stands in its literals.
std::string Stripped(std::string_view code, bool keepsTexts) {
  std::string out;
  for (std::size_t at = 0; at < code.size();) {
    if (code.substr(at).starts_with("//")) {
      at = std::min(code.find('\n', at), code.size());
    } else if (code.substr(at).starts_with("/*")) {
      at = std::min(code.find("*/", at), code.size() - 2) + 2;
    } else if (BeginsLiteral(code, at)) {
      const std::size_t end = EndOfLiteral(code, at);
      out += keepsTexts ? code.substr(at, end - at) : "\"\"";
      at = end;
    } else {
      out += code[at++];
    }
  }
  return out;
}

}  // namespace

std::vector<std::string> SourceFile::QuotedIncludes() const {
  return Includes(Text, '"', '"');
}

std::vector<std::string> SourceFile::AngledIncludes() const {
  return Includes(Text, '<', '>');
}

std::size_t SourceFile::LineCount() const {
  return static_cast<std::size_t>(std::ranges::count(Text, '\n'));
}

std::vector<std::string> SourceFile::Words() const {
  return WordsOf(WithoutCommentsAndTexts(Text));
}

std::vector<std::string> WordsOf(std::string_view text) {
  std::vector<std::string> words;
  for (auto at = text.begin(); at != text.end();) {
    const auto begin = std::find_if(at, text.end(), IsWordPart);
    at = std::find_if_not(begin, text.end(), IsWordPart);
    if (begin != at) words.emplace_back(begin, at);
  }
  return words;
}

std::string WithoutComments(std::string_view code) {
  return Stripped(code, true);
}

std::string WithoutCommentsAndTexts(std::string_view code) {
  return Stripped(code, false);
}

std::vector<SourceFile> ReadSources(const std::vector<std::string>& folders) {
  std::vector<SourceFile> files;
  for (const std::string& folder : folders) ReadFolder(fs::path(ORX_SOURCE_DIR) / folder, true, files);
  std::ranges::sort(files, {}, &SourceFile::Path);
  return files;
}

SourceFile ReadSource(const std::string& path) {
  return {path, ReadText(fs::path(ORX_SOURCE_DIR) / path)};
}

std::vector<SourceFile> ReadAllTexts() {
  std::vector<SourceFile> files = ReadTree({"docs", "cmake", ".ci"});
  for (SourceFile& code : ReadSources({"src", "tests", "examples", "benchmarks"})) files.push_back(std::move(code));
  return files;
}

std::vector<SourceFile> ReadTree(const std::vector<std::string>& folders) {
  std::vector<SourceFile> files;
  for (const std::string& folder : folders) ReadFolder(fs::path(ORX_SOURCE_DIR) / folder, false, files);
  for (const auto& entry : fs::directory_iterator(ORX_SOURCE_DIR))
    if (entry.is_regular_file()) files.push_back({entry.path().filename().string(), ReadText(entry.path())});
  return files;
}

}  // namespace orx::test
