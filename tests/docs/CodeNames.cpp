#include "tests/docs/CodeNames.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <regex>
#include <sstream>

namespace orx::test {
namespace {

namespace fs = std::filesystem;

constexpr char kMore[] = "...";

bool IsCode(const std::string& path) {
  const std::string extension = fs::path(path).extension().string();
  return extension == ".h" || extension == ".cpp" || extension == ".idl" || extension == ".js";
}

/// Texts for readers tell of the code, and tests of this checker name what does not exist.
bool IsSource(const std::string& path) {
  return fs::path(path).extension() != ".md" && !path.starts_with("docs/") && !path.starts_with("tests/docs/");
}

/// A script or a description of the build without the lines that are comments.
std::string WithoutRemarks(const std::string& script) {
  std::string kept;
  std::istringstream lines(script);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t start = line.find_first_not_of(' ');
    if (start != std::string::npos && line[start] != '#' && line[start] != '\'') kept += line + '\n';
  }
  return kept;
}

std::vector<std::string> Tokens(const std::string& quoted) {
  std::istringstream words(quoted);
  std::vector<std::string> tokens;
  for (std::string word; words >> word;) tokens.push_back(word);
  return tokens;
}

/// A word of a phrase or a command that is a name of code and not one of the language.
bool LooksLikeCode(const std::string& token) {
  if (token.find_first_of("_/.:-") != std::string::npos) return true;
  const auto isUpper = [](unsigned char c) { return std::isupper(c) != 0; };
  const auto isLower = [](unsigned char c) { return std::islower(c) != 0; };
  return token.size() > 1 && std::any_of(token.begin() + 1, token.end(), isUpper) &&
         std::ranges::any_of(token, isLower);
}

std::vector<std::string> Matches(const std::string& text, const std::string& pattern) {
  const std::regex expression(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
    found.push_back((*match)[1]);
  return found;
}

}  // namespace

std::vector<std::string> QuotedNames(const std::string& text) {
  std::string prose;
  std::istringstream lines(text);
  bool isBlock = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("```"))
      isBlock = !isBlock;
    else if (!isBlock && !line.starts_with("    "))
      prose += line + '\n';
  }
  return Matches(prose, "`([^`]+)`");
}

KnownNames::KnownNames(const std::vector<SourceFile>& tree) {
  for (std::size_t i = 0; i < tree.size(); ++i) {
    const std::string& path = tree[i].Path;
    for (fs::path part = path; !part.empty(); part = part.parent_path()) mPaths.insert(part.generic_string());
    mFileNames.insert(fs::path(path).filename().string());
    if (!IsSource(path)) continue;
    const std::string text = IsCode(path) ? WithoutComments(tree[i].Text) : WithoutRemarks(tree[i].Text);
    if (!IsCode(path)) mScripts += text;
    for (const std::string& word : WordsOf(text)) mWords[word].insert(i);
  }
}

bool KnownNames::Knows(const std::string& quoted) const {
  const std::vector<std::string> tokens = Tokens(quoted);
  return std::ranges::all_of(tokens, [&](const std::string& token) {
    return tokens.size() > 1 && !LooksLikeCode(token) ? true : KnowsToken(token);
  });
}

bool KnownNames::KnowsToken(const std::string& token) const {
  // The switches of a command of the system.
  if (token.starts_with("/") || token.starts_with("-D")) return token.starts_with("/") || KnowsWords(token.substr(2));
  if (token.starts_with("--")) return mScripts.find(token) != std::string::npos;
  if (const std::size_t more = token.find(kMore); more != std::string::npos) {
    const std::vector<std::string> words = WordsOf(token.substr(0, more));
    if (words.empty()) return true;
    const auto next = mWords.lower_bound(words.back());
    return next != mWords.end() && next->first.starts_with(words.back());
  }
  const bool isFile = IsCode(token) || token.ends_with(".md") || token.ends_with(".vbs");
  if (isFile || token.find('/') != std::string::npos) return KnowsPath(token);
  if (token.find("::") != std::string::npos) return KnowsMember(token);
  return mPaths.contains(token) || mFileNames.contains(token) || KnowsWords(token);
}

bool KnownNames::KnowsPath(const std::string& path) const {
  const std::string plain = fs::path(path).lexically_normal().generic_string();
  const std::string trimmed = plain.ends_with('/') ? plain.substr(0, plain.size() - 1) : plain;
  if (mPaths.contains(trimmed) || mPaths.contains("src/" + trimmed) || mFileNames.contains(trimmed)) return true;
  // What is built or installed stands in no tree, but its name comes from somewhere.
  const std::string top = trimmed.substr(0, trimmed.find('/'));
  return (top == "build" || top == "share") && KnowsWords(trimmed.substr(top.size()));
}

bool KnownNames::KnowsWords(const std::string& token) const {
  return std::ranges::all_of(WordsOf(token), [&](const std::string& word) {
    return word.size() == 1 || std::isdigit(static_cast<unsigned char>(word[0])) != 0 || mWords.contains(word);
  });
}

bool KnownNames::KnowsMember(const std::string& qualified) const {
  const std::vector<std::string> words = WordsOf(qualified);
  if (!KnowsWords(qualified)) return false;
  const std::set<std::size_t>& owners = mWords.at(words.front());
  return std::ranges::all_of(words, [&](const std::string& word) {
    return std::ranges::any_of(mWords.at(word), [&](std::size_t file) { return owners.contains(file); });
  });
}

Breaches UnknownNames(const SourceFile& text, const KnownNames& names) {
  Breaches breaches;
  for (const std::string& name : QuotedNames(text.Text))
    if (!names.Knows(name)) breaches.push_back(text.Path + " names `" + name + "`, which does not exist");
  return breaches;
}

std::set<std::string> ListedAreas(const std::string& guide) {
  const std::size_t start = guide.find("Areas are the labels of the tests:");
  if (start == std::string::npos) return {};
  const std::vector<std::string> names = QuotedNames(guide.substr(start, guide.find(".\n", start) - start));
  return {names.begin(), names.end()};
}

std::set<std::string> AreasOf(const std::string& testsCMake) {
  std::set<std::string> areas;
  for (const char* pattern : {"orx_add_tests\\(([a-z][a-z0-9]*) ", "orx_add_scenarios\\(([a-z][a-z0-9]*) ",
                              "orx_discover\\([^ ]+ ([a-z][a-z0-9]*) ", "LABELS ([a-z][a-z0-9]*) "}) {
    for (const std::string& area : Matches(WithoutRemarks(testsCMake), pattern)) areas.insert(area);
  }
  return areas;
}

}  // namespace orx::test
