// What the user does in the platform's dialogs for files, colours and fonts, whichever is open.
#pragma once

#include "tests/support/User.h"

namespace orx::test {

void PickFilesInDialog(const Picked& files);
void PickColorInDialog(Color color);
void PickFontInDialog(const ColoredFont& font);
void CancelDialog();

}  // namespace orx::test
