// Holds the documentation to the code: what it names is there. And the checker to its task.
#include "tests/docs/CodeNames.h"

#include <gtest/gtest.h>

namespace orx::test {
namespace {

const KnownNames& MadeUp() {
  static const KnownNames kNames(
      {{"src/forms/Form.h", "// Gone\nclass Form { void Show(); const char* t = \"cmdOK\"; };"},
       {"src/com/Errors.cpp", "int DoBeep();"},
       {"check", "# --never\nrun --x86\nset(ORX_QT OFF)\n"},
       {"docs/index.md", "Ghost"}});
  return kNames;
}

Breaches BreachesOf(const std::string& text) {
  return UnknownNames({"docs/a.md", text}, MadeUp());
}

TEST(DocsNames, WhatStandsBetweenBackticksIsANameOutsideOfBlocksOfCode) {
  EXPECT_EQ(QuotedNames("a `b` and `c d`\n```cpp\n`e`\n```\n    `f`\n`g`"),
            (std::vector<std::string>{"b", "c d", "g"}));
}

TEST(DocsNames, WhatIsThereIsKnown) {
  for (const char* name : {"Form", "Form::Show", "Form::Show()", "cmdOK", "Errors.cpp", "src/forms/Form.h", "forms/",
                           "./check --x86", "./check", "-DORX_QT=OFF", "Do...", "src", "Form(1)", "build/Form", "m"})
    EXPECT_TRUE(MadeUp().Knows(name)) << name;
}

TEST(DocsNames, WhatIsNotThereIsNot) {
  for (const char* name : {"PageHostDesign", "Form::Hide", "Form::DoBeep", "Gone", "Ghost", "Lost.cpp", "src/lost",
                           "src/forms/Lost.h", "./lost --x86", "./check --y86", "./check --never", "-DORX_GTK=OFF",
                           "Undo...", "open the PageHostDesign", "build/Lost", "lost"})
    EXPECT_FALSE(MadeUp().Knows(name)) << name;
}

TEST(DocsNames, ABreachTellsTextAndName) {
  EXPECT_EQ(BreachesOf("A `Form` has a `PageHostDesign`."),
            Breaches{"docs/a.md names `PageHostDesign`, which does not exist"});
}

TEST(DocsNames, PhrasesMayHoldPlainWords) {
  EXPECT_EQ(BreachesOf("`N passed, N failed` and `=`"), Breaches{});
}

TEST(DocsNames, AreasAreThoseOfTheListAndOfTheLabels) {
  EXPECT_EQ(ListedAreas("Text `a`.\n\nAreas are the labels of the tests: `forms`, and\n`com`, the server.\nMore `b`."),
            (std::set<std::string>{"forms", "com"}));
  EXPECT_EQ(ListedAreas("no list"), std::set<std::string>{});
  EXPECT_EQ(AreasOf("# orx_add_tests(dead x)\norx_add_tests(numbers numbers)\norx_add_scenarios(forms forms)\n"
                    "orx_discover(test_win32 win32 \"w.\")\norx_discover(test_${a} ${area} \"b\")\n"
                    "set_tests_properties(i PROPERTIES LABELS install TIMEOUT 9)\n"),
            (std::set<std::string>{"numbers", "forms", "win32", "install"}));
}

TEST(DocsTree, EveryNameInTheDocumentationExists) {
  const std::vector<SourceFile> tree =
      ReadTree({".ci", "benchmarks", "cmake", "data", "docs", "examples", "src", "tests", "tools"});
  const KnownNames names(tree);
  int texts = 0;
  for (const SourceFile& text : tree) {
    if (!text.Path.ends_with(".md")) continue;
    ++texts;
    for (const std::string& breach : UnknownNames(text, names)) ADD_FAILURE() << breach;
  }
  EXPECT_GE(texts, 7);
}

TEST(DocsTree, TheGuideListsTheAreasThatThereAre) {
  const std::set<std::string> areas = AreasOf(ReadSource("tests/CMakeLists.txt").Text);
  EXPECT_TRUE(areas.contains("forms"));
  EXPECT_EQ(areas, ListedAreas(ReadSource("CONTRIBUTING.md").Text));
}

}  // namespace
}  // namespace orx::test
