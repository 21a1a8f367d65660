// The rules themselves, on small trees made up for the purpose: each must find what it is there to find.
#include <gtest/gtest.h>

#include "tests/architecture/Rules.h"

namespace orx::test {
namespace {

using Files = std::vector<SourceFile>;

SourceFile Including(const std::string& path, const std::string& include) {
  return {path, "#include \"" + include + "\"\n"};
}

bool Allowed(const std::string& path, const std::string& include) {
  return IncludesAgainstTheFloors({Including(path, include)}).empty();
}

TEST(ArchitectureRules, FilesIncludeTheFloorsBelowThem) {
  EXPECT_TRUE(Allowed("src/forms/Form.h", "numbers/Numbers.h"));
  EXPECT_TRUE(Allowed("src/forms/Form.h", "forms/Control.h"));
  EXPECT_TRUE(Allowed("src/service/CCommonMapDialogs.cpp", "propertydialogs/frmLabels.h"));
  EXPECT_FALSE(Allowed("src/numbers/Numbers.h", "forms/Form.h"));
  EXPECT_FALSE(Allowed("src/propertydialogs/frmLabels.h", "service/CCommonMapDialogs.h"));
}

TEST(ArchitectureRules, SecondaryDialogsAreOpenedFromAbove) {
  EXPECT_TRUE(Allowed("src/datadialogs/frmColors.cpp", "dialogframe/DialogForm.h"));
  EXPECT_FALSE(Allowed("src/dialogframe/DialogForm.cpp", "datadialogs/frmColors.h"));
  EXPECT_TRUE(Allowed("src/openers/SecondaryDialogs.cpp", "datadialogs/frmColors.h"));
  EXPECT_FALSE(Allowed("src/datadialogs/frmColors.cpp", "openers/SecondaryDialogs.h"));
  EXPECT_TRUE(Allowed("src/propertydialogs/PageRequests.cpp", "openers/SecondaryDialogs.h"));
}

TEST(ArchitectureRules, NothingBelowIncludesTheChiefHeaders) {
  EXPECT_TRUE(Allowed("src/service/modMain.h", "openers/SecondaryDialogs.h"));
  EXPECT_FALSE(Allowed("src/propertydialogs/frmLabels.cpp", "service/modMain.h"));
  EXPECT_FALSE(Allowed("src/pickers/frmMsgBox.cpp", "service/modDialog.h"));
}

TEST(ArchitectureRules, TheEmbeddedHostKnowsNoDialogs) {
  EXPECT_TRUE(Allowed("src/pages/PropertiesPage.cpp", "forms/Form.h"));
  EXPECT_TRUE(Allowed("src/maplibrary/model/Map.cpp", "hostobjects/IMap.h"));
  EXPECT_FALSE(Allowed("src/maplibrary/model/Map.cpp", "dialogframe/DialogForm.h"));
  EXPECT_FALSE(Allowed("src/pages/PropertiesPage.cpp", "pickers/frmTrueType.h"));
  EXPECT_FALSE(Allowed("src/languages/TextLanguage.cpp", "service/CCommonMapDialogs.h"));
  EXPECT_FALSE(Allowed("src/maplibrary/files/GridFile.cpp", "maplibrary/model/Map.h"));
}

TEST(ArchitectureRules, FoldersOnOneFloorAreStrangers) {
  EXPECT_FALSE(Allowed("src/datadialogs/frmColors.cpp", "pickers/frmCharacter.h"));
  EXPECT_FALSE(Allowed("src/desktops/qt/Button.cpp", "desktops/headless/HeadlessDesktop.h"));
}

TEST(ArchitectureRules, DesktopsKnowFormsAlone) {
  EXPECT_TRUE(Allowed("src/desktops/qt/Button.cpp", "forms/Button.h"));
  EXPECT_FALSE(Allowed("src/desktops/qt/Button.cpp", "hostobjects/IMap.h"));
  EXPECT_FALSE(Allowed("src/maplibrary/model/Layer.cpp", "desktops/qt/Button.h"));
  EXPECT_TRUE(Allowed("src/com/Server.cpp", "desktops/win32/Win32Desktop.h"));
  EXPECT_FALSE(Allowed("src/desktops/win32/Button.cpp", "com/Handles.h"));
}

TEST(ArchitectureRules, AFileOutsideTheTableIsABreach) {
  EXPECT_EQ(IncludesAgainstTheFloors({{"src/misc/Tools.h", ""}}),
            Breaches{"src/misc/Tools.h has no floor in the table"});
}

TEST(ArchitectureRules, ACircleIsNamedWithItsWay) {
  const Files files = {Including("src/forms/A.h", "forms/B.h"), Including("src/forms/B.h", "forms/C.h"),
                       Including("src/forms/C.h", "forms/A.h")};
  EXPECT_EQ(IncludeCircles(files), Breaches{"forms/A.h -> forms/B.h -> forms/C.h -> forms/A.h"});
}

TEST(ArchitectureRules, ACircleOfFoldersIsFoundWhereNoFileIncludesItself) {
  const Files files = {Including("src/forms/A.h", "numbers/B.h"), Including("src/numbers/C.h", "forms/D.h"),
                       Including("src/forms/D.h", "forms/A.h")};
  EXPECT_EQ(IncludeCircles(files), Breaches{});
  EXPECT_EQ(FolderCircles(files), Breaches{"forms -> numbers -> forms"});
}

TEST(ArchitectureRules, TwoWaysToOneFileAreNoCircle) {
  const Files files = {{"src/forms/A.h", "#include \"forms/B.h\"\n#include \"forms/C.h\"\n"},
                       Including("src/forms/B.h", "forms/C.h"),
                       {"src/forms/C.h", ""}};
  EXPECT_EQ(IncludeCircles(files), Breaches{});
}

TEST(ArchitectureRules, NativeNamesAreFoundInCodeOnly) {
  EXPECT_EQ(NativeNames({{"src/forms/A.h", "// HWND\nint QueryKind(); const char* t = \"QString\";\n"}}), Breaches{});
  EXPECT_EQ(NativeNames({{"src/forms/A.h", "void F(HWND w);\n"}}), Breaches{"src/forms/A.h uses HWND"});
  EXPECT_EQ(NativeNames({{"src/forms/A.h", "#ifdef _WIN32\n#endif\n"}}), Breaches{"src/forms/A.h uses _WIN32"});
  EXPECT_EQ(NativeNames({{"src/desktops/qt/A.h", "QString text;\n"}}), Breaches{});
}

TEST(ArchitectureRules, NativeHeadersAreFound) {
  EXPECT_EQ(NativeNames({{"src/forms/A.h", "#include <windows.h>\n"}}), Breaches{"src/forms/A.h includes <windows.h>"});
  EXPECT_EQ(NativeNames({{"src/maplibrary/A.h", "#include <QtWidgets>\n"}}).size(), 1u);
}

TEST(ArchitectureRules, TheComponentServerFreesInOwnersAlone) {
  const auto freesOf = [](const std::string& path, const std::string& code) {
    return FreesOutsideTheirOwner({{path, code}});
  };
  EXPECT_EQ(freesOf("src/com/A.cpp", "object->Release();"), Breaches{"src/com/A.cpp calls ->Release"});
  EXPECT_EQ(freesOf("src/com/A.cpp", "SysFreeString(text);"), Breaches{"src/com/A.cpp calls SysFreeString"});
  EXPECT_EQ(freesOf("src/com/A.cpp", "CoTaskMemFree(p);"), Breaches{"src/com/A.cpp calls CoTaskMemFree"});
  EXPECT_EQ(freesOf("src/com/A.cpp", "if (none) delete this;"), Breaches{"src/com/A.cpp calls delete this"});
  EXPECT_EQ(freesOf("src/com/SafeArray.cpp", "SafeArrayDestroy(a); SysFreeString(b);"),
            Breaches{"src/com/SafeArray.cpp calls SysFreeString"});
  EXPECT_EQ(freesOf("src/com/Handles.h", "SysFreeString(text); gone->Release();"), Breaches{});
  EXPECT_EQ(freesOf("src/com/A.cpp", "// free(p)\nA(A&&) = delete; ULONG Release(); MyLocalFree(); pointer.Free();"),
            Breaches{});
  EXPECT_EQ(freesOf("tests/com/A.cpp", "SysFreeString(text);"), Breaches{});
}

TEST(ArchitectureRules, CommentsAndTextsAreTakenOut) {
  EXPECT_EQ(WithoutCommentsAndTexts("a/*b*/c//d\ne"), "ac\ne");
  EXPECT_EQ(WithoutCommentsAndTexts("f(\"a\\\"b\", 'c', 1'000)"), "f(\"\", \"\", 1'000)");
  EXPECT_EQ(WithoutCommentsAndTexts("f(L'\\\\', b, u8'x')"), "f(L\"\", b, u8\"\")");
  EXPECT_EQ(WithoutCommentsAndTexts("R\"(a \" b)\" c"), "R\"\" c");
}

TEST(ArchitectureRules, LongFilesAndLeftOverNotesAreFound) {
  EXPECT_EQ(FilesLongerThan(2, {{"a", "1\n2\n3\n"}, {"b", "1\n2\n"}}), Breaches{"a has 3 lines"});
  EXPECT_EQ(FilesContaining("later", {{"a", "do it later"}, {"b", "done"}}), Breaches{"a contains later"});
}

}  // namespace
}  // namespace orx::test
