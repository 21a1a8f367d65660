// A plain window of native widgets, drawn like a form of the library and without anything of the library behind it: the
// measure for what the library adds.
#pragma once

#include <QDialog>
#include <memory>

#include "forms/Form.h"

namespace orx::bench {

/// Makes the widgets of all controls of a form, at their places, with their texts and entries.
std::unique_ptr<QDialog> MakeBareDialog(const Form& form);

/// Shows the dialog modally, closes it as soon as it runs, and returns when it has closed.
void ShowAndClose(QDialog& dialog);

}  // namespace orx::bench
