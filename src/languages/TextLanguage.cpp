#include "languages/TextLanguage.h"

#include <optional>
#include <sstream>

#include "hostobjects/InputFile.h"
#include "hostobjects/RunTimeError.h"
#include "text/Paths.h"
#include "text/Trimmed.h"

namespace orx::languages {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::uint64_t kMaxBytes = 10'000'000;

/// The place of the first equals sign that is not escaped.
std::size_t FindEquals(std::string_view line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '\\') {
      ++i;
    } else if (line[i] == '=') {
      return i;
    }
  }
  return std::string_view::npos;
}

std::optional<std::string> Unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\') {
      plain += text[i];
    } else if (++i < text.size() && std::string_view("n=#\\").find(text[i]) != std::string_view::npos) {
      plain += text[i] == 'n' ? '\n' : text[i];
    } else {
      return std::nullopt;
    }
  }
  return plain;
}

/// How many bytes follow the first one of a character; -1 when no character starts with it.
int BytesBehind(unsigned char first) {
  if (first < 0x80) return 0;
  if (first >= 0xC2 && first < 0xE0) return 1;
  if (first >= 0xE0 && first < 0xF0) return 2;
  return first >= 0xF0 && first < 0xF5 ? 3 : -1;
}

bool IsUtf8(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    for (int behind = BytesBehind(static_cast<unsigned char>(text[i])); behind != 0; --behind)
      if (behind < 0 || ++i >= text.size() || (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) return false;
  }
  return true;
}

}  // namespace

TextLanguage::TextLanguage(const std::filesystem::path& file) {
  std::istringstream stream(ReadText(file, kMaxBytes));
  Read(stream, Utf8(file));
}

void TextLanguage::Read(std::istream& stream, const std::string& name) {
  std::string line;
  for (int number = 1; std::getline(stream, line); ++number) {
    if (number == 1 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
    const std::string fault = ReadLine(line);
    if (fault.empty()) continue;
    std::ostringstream description;
    description << name << ", line " << number << ": " << fault << ".";
    throw RunTimeError(kErrorFileFormat, description.str());
  }
}

std::string TextLanguage::ReadLine(std::string_view line) {
  if (!IsUtf8(line)) return "the text is not UTF-8";
  line = Trimmed(line);
  if (line.empty() || line.front() == '#') return {};
  const std::size_t equals = FindEquals(line);
  if (equals == std::string_view::npos) return "\"key = text\" was expected";
  const std::optional<std::string> key = Unescaped(Trimmed(line.substr(0, equals)));
  const std::optional<std::string> text = Unescaped(Trimmed(line.substr(equals + 1)));
  if (!key || !text) return "a backslash must stand before n, =, # or another backslash";
  if (key->empty()) return "there is no key in front of the equals sign";
  if (text->empty()) return "there is no text for \"" + *key + "\"";
  if (!mTexts.emplace(*key, *text).second) return "\"" + *key + "\" is given twice";
  return {};
}

std::string TextLanguage::TranslateText(const std::string& key) {
  // A file cannot hold the blanks that some captions stand between; they stay around the text.
  const std::string_view bare = Trimmed(key);
  if (const auto found = mTexts.find(std::string(bare)); found != mTexts.end())
    return std::string(key).replace(key.find(bare), bare.size(), found->second);
  return key.starts_with('_') ? std::string() : key;
}

}  // namespace orx::languages
