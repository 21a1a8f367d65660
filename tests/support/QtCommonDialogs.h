// What the user does in the toolkit's dialogs for files, colours and fonts, whichever is open.
#pragma once

#include <string>

#include "tests/support/User.h"

class QWidget;

namespace orx::test {

void PickFilesInDialog(const Picked& files);
void CancelFilesInDialog();
void PickColorInDialog(Color color);
void CancelColorInDialog();
void PickFontInDialog(const ColoredFont& font);
void CancelFontInDialog();

/// Selects all in a field and types the text.
void TypeInto(QWidget& focused, const std::string& text);

}  // namespace orx::test
