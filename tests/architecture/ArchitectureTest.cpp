// Holds the source tree to the architecture: docs/architecture.md tells the reasons.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/architecture/Rules.h"

namespace orx::test {
namespace {

const std::vector<SourceFile>& Sources() {
  static const std::vector<SourceFile> kSources = ReadSources({"src"});
  return kSources;
}

const std::vector<SourceFile>& AllCode() {
  static const std::vector<SourceFile> kCode = ReadSources({"src", "tests", "examples", "benchmarks"});
  return kCode;
}

void ExpectNone(const Breaches& breaches) {
  for (const std::string& breach : breaches) ADD_FAILURE() << breach;
}

TEST(ArchitectureTree, TheTreeIsRead) {
  EXPECT_GT(Sources().size(), 40u);
  EXPECT_TRUE(std::ranges::any_of(Sources(), [](const SourceFile& file) { return file.Path == "src/forms/Form.h"; }));
}

TEST(ArchitectureTree, FoldersIncludeOnlyTheFloorsBelow) {
  ExpectNone(IncludesAgainstTheFloors(Sources()));
}

TEST(ArchitectureTree, NoFileIncludesItselfByWayOfOthers) {
  ExpectNone(IncludeCircles(ReadSources({"src", "tests", "examples"})));
}

TEST(ArchitectureTree, NoFolderIncludesItselfByWayOfOthers) {
  ExpectNone(FolderCircles(Sources()));
}

TEST(ArchitectureTree, NativeTypesStayInTheDesktops) {
  ExpectNone(NativeNames(Sources()));
}

TEST(ArchitectureTree, TheComponentServerFreesInOwnersAlone) {
  ExpectNone(FreesOutsideTheirOwner(Sources()));
}

TEST(ArchitectureTree, NoFileIsLongerThan400Lines) {
  ExpectNone(FilesLongerThan(400, AllCode()));
}

TEST(ArchitectureTree, HalfOfTheFilesHaveAtMost150Lines) {
  std::vector<std::size_t> lengths;
  for (const SourceFile& file : Sources()) lengths.push_back(file.LineCount());
  std::ranges::sort(lengths);
  EXPECT_LE(lengths.at(lengths.size() / 2), 150u);
}

TEST(ArchitectureTree, NothingIsLeftForLater) {
  // Written in two halves, so that this file does not find itself.
  for (const char* word : {"TO"
                           "DO",
                           "FIX"
                           "ME"})
    ExpectNone(FilesContaining(word, ReadAllTexts()));
}

TEST(ArchitectureTree, EveryHeaderIsIncludedOnce) {
  for (const SourceFile& file : AllCode()) {
    if (!file.Path.ends_with(".h")) continue;
    EXPECT_NE(file.Text.find("#pragma once\n"), std::string::npos) << file.Path;
  }
}

}  // namespace
}  // namespace orx::test
