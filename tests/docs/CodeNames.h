// The names of code in the documentation, and what is there to be named.
#pragma once

#include <map>
#include <set>

#include "tests/architecture/Rules.h"

namespace orx::test {

/// What stands between backticks outside of blocks of code.
std::vector<std::string> QuotedNames(const std::string& text);

/// The names in a source tree: paths of files and folders, and the words of all files but texts for readers. In code
/// comments do not count.
class KnownNames {
 public:
  explicit KnownNames(const std::vector<SourceFile>& tree);

  /// Whether all that looks like code in what was quoted is there: options, paths and files, members in a file that
  /// names their class, words, and beginnings of words ("Do...").
  bool Knows(const std::string& quoted) const;

 private:
  bool KnowsToken(const std::string& token) const;
  bool KnowsPath(const std::string& path) const;
  bool KnowsWords(const std::string& token) const;
  bool KnowsMember(const std::string& qualified) const;

  /// Files and folders by their paths from the top of the tree, and files by their names.
  std::set<std::string> mPaths;
  std::set<std::string> mFileNames;
  /// The text of scripts and of the description of the build, where options are handled.
  std::string mScripts;
  /// The files that have a word.
  std::map<std::string, std::set<std::size_t>> mWords;
};

/// The quoted names of a text that are not there.
Breaches UnknownNames(const SourceFile& text, const KnownNames& names);

/// The areas that the guide for contributors lists, and those that the tests have as labels.
std::set<std::string> ListedAreas(const std::string& guide);
std::set<std::string> AreasOf(const std::string& testsCMake);

}  // namespace orx::test
