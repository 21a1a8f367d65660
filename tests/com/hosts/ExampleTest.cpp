// The examples, run from outside with their dialogs operated as automation tools do it.
#include <windows.h>

#include <commctrl.h>

#include "tests/com/hosts/HostTest.h"
#include "tests/files/FilesTest.h"

namespace orx::com::test {
namespace {

/// The scripts end with this code; hosts that give up on a script end with zero.
constexpr int kDone = 9;

std::string Lines(std::initializer_list<const char*> lines) {
  std::string text;
  for (const char* const line : lines) text += std::string(line) + "\r\n";
  return text;
}

using Examples = HostTest;
using orx::test::TestFolder;

TEST_F(Examples, AScriptEditsItsLayer) {
  Program script(Script(L"layer.vbs"));
  const HWND properties = script.WaitForWindow(L"Eigenschaften");
  ASSERT_TRUE(properties) << script.Output();
  const HWND name = ControlNamed(properties, L"txtName");
  ASSERT_TRUE(name);
  SendMessageW(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"Hills"));
  Click(ControlNamed(properties, L"cmdApply"));
  Click(ControlNamed(properties, L"cmdOK"));
  const HWND labels = script.WaitForWindow(L"Labels of a script");
  ASSERT_TRUE(labels) << script.Output();
  Click(ControlNamed(labels, L"cmdCancel"));
  EXPECT_EQ(script.Wait(), kDone);
  EXPECT_EQ(script.Output(), Lines({"Apply: True", "OK: True", "Properties: -1 Hills 12", "Cancel: False",
                                    "Labels: 0 False 9", "DONE"}));
}

TEST_F(Examples, TheScriptsLanguageTranslatesTheDialog) {
  Program script(Script(L"layer.vbs"));
  const HWND properties = script.WaitForWindow(L"Eigenschaften");
  ASSERT_TRUE(properties) << script.Output();
  wchar_t text[50] = {};
  SendMessageW(ControlNamed(properties, L"cmdCancel"), WM_GETTEXT, 50, reinterpret_cast<LPARAM>(text));
  EXPECT_STREQ(text, L"&Abbrechen");
}

TEST_F(Examples, AScriptInTheOtherLanguageEditsItsLayer) {
  Program script(Script(L"layer.js"));
  const HWND properties = script.WaitForWindow(L"Layer of a script");
  ASSERT_TRUE(properties) << script.Output();
  SendMessageW(ControlNamed(properties, L"txtName"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"Hills"));
  Click(ControlNamed(properties, L"cmdOK"));
  EXPECT_EQ(script.Wait(), kDone);
  EXPECT_EQ(script.Output(), Lines({"OK: true", "Properties: -1 Hills", "DONE"}));
}

TEST_F(Examples, AScriptEditsTheExtentAndTheLegendsOfItsMapAndMovesIt) {
  Program script(Script(L"map.vbs"));
  const HWND extent = script.WaitForWindow(L"Extent of a script");
  ASSERT_TRUE(extent) << script.Output();
  SendMessageW(ControlNamed(extent, L"txtLeft"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"250"));
  Click(ControlNamed(extent, L"cmdOK"));
  const HWND legends = script.WaitForWindow(L"Legends of a script");
  ASSERT_TRUE(legends) << script.Output();
  Click(ControlNamed(legends, L"cmdOK"));
  const HWND ground = script.WaitForWindow(L"Georeference");
  ASSERT_TRUE(ground) << script.Output();
  // Its width was 750 and its height is 500; the first field has the focus.
  SendMessageW(ControlNamed(ground, L"txtInput(0)"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"-500"));
  Click(ControlNamed(ground, L"cmdOK"));
  EXPECT_EQ(script.Wait(), kDone);
  EXPECT_EQ(script.Output(), Lines({"Extent: -1 250 1000", "Legends: 0 Places", "Georeference: -1 -500 1000", "DONE"}));
}

TEST_F(Examples, AScriptHasItsLayersMovedRemovedAndEdited) {
  Program script(Script(L"layers.vbs"));
  const HWND manager = script.WaitForWindow(L"Manager of a script");
  ASSERT_TRUE(manager) << script.Output();
  const HWND list = ControlNamed(manager, L"sftLayers");
  ASSERT_TRUE(list);
  const auto rows = [list] { return SendMessageW(list, LVM_GETITEMCOUNT, 0, 0); };
  const auto selected = [list] { return SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED); };
  EXPECT_EQ(rows(), 4);
  // From the row of the collection to the second layer, which goes up; the layer behind it goes.
  for (int row = 0; row < 2; ++row) SendMessageW(list, WM_KEYDOWN, VK_DOWN, 1);
  EXPECT_EQ(selected(), 2);
  Click(ControlNamed(manager, L"cmdUp"));
  EXPECT_TRUE(script.WaitFor([&] { return selected() == 1; }));
  SendMessageW(list, WM_KEYDOWN, VK_DOWN, 1);
  Click(ControlNamed(manager, L"cmdRemove"));
  const HWND name = ControlNamed(manager, L"txtName");
  const auto named = [name] {
    wchar_t text[50] = {};
    SendMessageW(name, WM_GETTEXT, 50, reinterpret_cast<LPARAM>(text));
    return std::wstring(text);
  };
  EXPECT_TRUE(script.WaitFor([&] { return rows() == 3 && selected() == 1 && named() == L"Rivers"; }));
  SendMessageW(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"Streams"));
  Click(ControlNamed(manager, L"cmdOK"));
  const HWND settings = script.WaitForWindow(L"Settings of a script");
  ASSERT_TRUE(settings) << script.Output();
  Click(ControlNamed(settings, L"cmdOK"));
  EXPECT_EQ(script.Wait(), kDone);
  EXPECT_EQ(script.Output(), Lines({"Layers: -1 Streams Relief", "Settings: 0 Streams Relief", "DONE"}));
}

TEST_F(Examples, AScriptIsGivenTheChosenCharacterInItsVariables) {
  Program script(Script(L"symbol.vbs"));
  const HWND picker = script.WaitForWindow(L"Pick True Type");
  ASSERT_TRUE(picker) << script.Output();
  SendMessageW(ControlNamed(picker, L"txtRot"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"-45.5"));
  const HWND grid = ControlNamed(picker, L"picFont");
  RECT all = {};
  GetClientRect(grid, &all);
  ASSERT_GT(all.right, 0);
  // The first cell of the fifth row; a row has twenty cells and a margin of half a cell on each side.
  SendMessageW(grid, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(all.right / 20, all.right * 97 / 398));
  SendMessageW(grid, WM_LBUTTONUP, 0, MAKELPARAM(all.right / 20, all.right * 97 / 398));
  // When this is back, the first dialog is hidden; the next one has the same title.
  SendMessageW(ControlNamed(picker, L"cmdOK"), BM_CLICK, 0, 0);
  const HWND again = script.WaitForWindow(L"Pick True Type");
  ASSERT_TRUE(again) << script.Output();
  wchar_t text[20] = {};
  SendMessageW(ControlNamed(again, L"txtRot"), WM_GETTEXT, 20, reinterpret_cast<LPARAM>(text));
  EXPECT_STREQ(text, L"-46");
  SendMessageW(ControlNamed(again, L"picFont"), WM_KEYDOWN, VK_RIGHT, 1);
  Click(ControlNamed(again, L"cmdCancel"));
  EXPECT_EQ(script.Wait(), kDone);
  EXPECT_EQ(script.Output(), Lines({"First: -1 True Symbols of a script 80 -46",
                                    "Second: -1 False Symbols of a script 80 -46", "DONE"}));
}

TEST_F(Examples, AScriptIsGivenTheIndexesOfWhatIsChosenFromItsList) {
  Program script(Script(L"lists.vbs"));
  const HWND several = script.WaitForWindow(L"Layers of a script");
  ASSERT_TRUE(several) << script.Output();
  const HWND list = ControlNamed(several, L"lstMultiSelect");
  ASSERT_TRUE(list);
  EXPECT_EQ(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0), 4);
  const auto selected = [list] { return SendMessageW(list, LVM_GETSELECTEDCOUNT, 0, 0); };
  EXPECT_EQ(selected(), 1);
  // From the second row to the last one.
  for (int row = 0; row < 2; ++row) SendMessageW(list, WM_KEYDOWN, VK_DOWN, 1);
  SendMessageW(list, WM_CHAR, L' ', 1);
  EXPECT_EQ(selected(), 2);
  Click(ControlNamed(several, L"cmdOK"));
  HWND question = nullptr;
  ASSERT_TRUE(script.WaitFor([&] {
    question = script.WaitForWindow(L"Layers of a script");
    return question && GetDlgItem(question, IDYES);
  })) << script.Output();
  Click(GetDlgItem(question, IDYES));
  const HWND one = script.WaitForWindow(L"Layer of a script");
  ASSERT_TRUE(one) << script.Output();
  SendMessageW(ControlNamed(one, L"lstSingleSelect"), WM_CHAR, L'2', 1);
  Click(ControlNamed(one, L"cmdOK"));
  EXPECT_EQ(script.Wait(), kDone);
  EXPECT_EQ(script.Output(), Lines({"Several: 2 1 3", "One: 1 2 of 1", "DONE"}));
}

TEST_F(Examples, AScriptIsGivenTheChosenFilesInItsVariables) {
  const TestFolder folder;
  folder.Add("a.shp");
  folder.Add("b c.shp");
  Program script(Script(L"files.vbs"));
  const HWND chooser = script.WaitForWindow(L"Add Layers");
  ASSERT_TRUE(chooser) << script.Output();
  EnterFileName(chooser, Widened(folder.Path()));
  EnterFileName(chooser, L"\"a.shp\" \"b c.shp\"");
  const HWND prompt = script.WaitForWindow(L"Open layer");
  ASSERT_TRUE(prompt) << script.Output();
  Click(ControlNamed(prompt, L"cmdCancelAll"));
  EXPECT_EQ(script.Wait(), kDone);
  EXPECT_EQ(script.Output(), "Chosen: " + folder.PathOf("a.shp") + "\r\nChosen: " + folder.PathOf("b c.shp") +
                                 "\r\nMissing: \"\" True\r\nDONE\r\n");
}

TEST_F(Examples, AScriptTellsItsProgressUntilTheUserCancels) {
  Program script(Script(L"progress.vbs"));
  const HWND progress = script.WaitForWindow(L"Tiles of a script");
  ASSERT_TRUE(progress) << script.Output();
  const HWND bar = ControlNamed(progress, L"prgBar");
  const HWND message = ControlNamed(progress, L"lblMsg");
  // The bar moves without anybody asking for it.
  EXPECT_TRUE(script.WaitFor([&] { return SendMessageW(bar, PBM_GETPOS, 0, 0) > 0; }));
  wchar_t text[50] = {};
  SendMessageW(message, WM_GETTEXT, 50, reinterpret_cast<LPARAM>(text));
  EXPECT_TRUE(std::wstring(text).starts_with(L"Tile ")) << Narrowed(text);
  Click(ControlNamed(progress, L"cmdCancel"));
  EXPECT_EQ(script.Wait(), kDone);
  EXPECT_EQ(script.Output(), Lines({"Cancelled: True", "Told: True",
                                    "Refused: 380 The value 1001 does not fit a progress bar from 0 to 1000", "DONE"}));
}

TEST_F(Examples, TheCloseBoxCancelsTheOperationOfAScript) {
  Program script(Script(L"progress.vbs"));
  const HWND progress = script.WaitForWindow(L"Tiles of a script");
  ASSERT_TRUE(progress) << script.Output();
  PostMessageW(progress, WM_CLOSE, 0, 0);
  EXPECT_EQ(script.Wait(), kDone);
  EXPECT_TRUE(script.Output().starts_with("Cancelled: True")) << script.Output();
}

TEST_F(Examples, AScriptEditsTheClassesAndSpecialValuesOfItsData) {
  Program script(Script(L"data.vbs"));
  const HWND classes = script.WaitForWindow(L"Data Classify");
  ASSERT_TRUE(classes) << script.Output();
  Click(ControlNamed(classes, L"cmdDefault"));
  Click(ControlNamed(classes, L"cmdOK"));
  const HWND options = script.WaitForWindow(L"Data Options");
  ASSERT_TRUE(options) << script.Output();
  SendMessageW(ControlNamed(options, L"txtMinValue(1)"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"0.5"));
  Click(ControlNamed(options, L"cmdOK"));
  EXPECT_EQ(script.Wait(), kDone);
  EXPECT_EQ(script.Output(), Lines({"Classes: -1 True 4 250", "Options: -1 -0.5 0.5", "DONE"}));
}

TEST_F(Examples, ACompiledHostEditsItsLayerByTheTypeLibrary) {
  Program host(L"\"" + PathOf(ORX_COMHOST) + L"\"");
  const HWND properties = host.WaitForWindow(L"Layer of a C++ host");
  ASSERT_TRUE(properties) << host.Output();
  SendMessageW(ControlNamed(properties, L"txtName"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"Hills"));
  Click(ControlNamed(properties, L"cmdApply"));
  Click(ControlNamed(properties, L"cmdOK"));
  EXPECT_EQ(host.Wait(), 0);
  EXPECT_EQ(host.Output(), Lines({"Hills: changed", "OK 1, Apply 1, Cancel 0"}));
}

TEST(ExamplesWithoutRegistration, TheCompiledHostSaysWhatToDo) {
  Program host(L"\"" + PathOf(ORX_COMHOST) + L"\"");
  EXPECT_EQ(host.Wait(), 1);
  EXPECT_NE(host.Output().find("regsvr32 orxMDlg.dll"), std::string::npos) << host.Output();
}

}  // namespace
}  // namespace orx::com::test
