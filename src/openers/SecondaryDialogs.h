// The routines that open a dialog for a page or the service and collect its outcome. They protect their
// caller: errors inside are skipped, never raised.
#pragma once

#include <cstdint>
#include <string>

#include "forms/FormWindow.h"
#include "hostobjects/HostObject.h"
#include "hostobjects/ILanguage.h"
#include "hostobjects/PropertyPage.h"

namespace orx {

class Desktop;

namespace modMain {

/// What the classification dialog is given.
struct ClassifyTask {
  /// The data object; used, not owned.
  HostObject* Data = nullptr;
  /// The range that "Default" and "Auto classify" take, kUnknownRangeEnd when not known.
  double Minimum = 0;
  double Maximum = 0;
  /// kMayChangeClassCount or 0.
  std::int32_t Flags = 0;
  /// Handed to the form, which has no use for it.
  std::string Text = {};
};

/// Shows the classification dialog, modal and without owner. True, also in `isDirty`, when it has written changed
/// settings. Without a data object: a beep and False, `isDirty` as it was.
bool ShowClassifyDialog(Desktop& desktop, const ClassifyTask& task, bool& isDirty, ILanguage* language) noexcept;

/// Shows the dialog for special values in the same way.
bool ShowDataOptionsDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept;

/// Show the dialogs for the relief shading and for the contour lines of a grid in the same way.
bool ShowShadeDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept;
bool ShowIsolineDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept;

/// Tells the user that there are no data styles.
void ShowDataStyleNotice(Desktop& desktop);

/// Shows the window for colour schemes, modal, in that language. True when nothing has failed.
bool ShowColorsDialog(Desktop& desktop, ILanguage* language, OwnerWindow owner = {}) noexcept;

/// Shows the dialog for a character of a font and its rotation, modal, in that language. A rotation goes in as whole
/// degrees, halves to the even neighbour. When a value that comes back differs from the one in `choice`, also in the
/// letter case of the font or by the fraction of a degree, all of them are taken over and Changed is set; else `choice`
/// stays as it is. True when nothing has failed, also when the user has cancelled.
bool ShowCharacterDialog(Desktop& desktop, CharacterRequest& choice, ILanguage* language,
                         OwnerWindow owner = {}) noexcept;

/// Shows the dialog that moves a map (an object with IMap) on the ground, modal, in that language, and writes the edges
/// that come back from it. True when nothing has failed, also when the user has cancelled. A map whose extent cannot be
/// read, or has no width or no height that can be reckoned with: a beep and False, and nothing is shown. An edge that
/// the map refuses is passed over.
bool ShowGeoreferenceDialog(Desktop& desktop, HostObject* map, ILanguage* language, OwnerWindow owner = {}) noexcept;

}  // namespace modMain
}  // namespace orx
