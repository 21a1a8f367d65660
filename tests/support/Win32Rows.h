// What the native lists and tabs show, as their messages tell it.
#pragma once

#include <windows.h>

#include <set>
#include <string>

namespace orx::test {

/// The text of a row of a list, by its position from 0.
std::string RowText(HWND list, int position);
/// The first row with a state (LVNI_SELECTED, LVNI_FOCUSED), -1 when none has it.
int RowWith(HWND list, LPARAM state);
std::set<int> SelectedRows(HWND list);
/// True when the row is in view as a whole.
bool SeesRowAt(HWND list, int position);

/// The caption of the selected tab.
std::string ShownTab(HWND tabs);

}  // namespace orx::test
