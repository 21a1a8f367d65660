// The routines that open a dialog for a page or the service and collect its outcome. They protect their caller: failing
// steps are skipped, and nothing is thrown.
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
  /// Passed to the form, which does not use it.
  std::string Text = {};
};

/// Shows the classification dialog, modal and without owner. Returns true, and sets `isDirty` to the same, if it wrote
/// changed settings. Without a data object it beeps, returns false and leaves `isDirty` alone.
bool ShowClassifyDialog(Desktop& desktop, const ClassifyTask& task, bool& isDirty, ILanguage* language) noexcept;

/// The same for the special values.
bool ShowDataOptionsDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept;

/// The same for the relief shading and for the contour lines of a grid.
bool ShowShadeDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept;
bool ShowIsolineDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept;

/// Tells the user that data styles are not supported.
void ShowDataStyleNotice(Desktop& desktop);

/// Shows the window for colour schemes, modal, in that language. Returns true if nothing failed.
bool ShowColorsDialog(Desktop& desktop, ILanguage* language, OwnerWindow owner = {}) noexcept;

/// Shows the character picker, modal, in that language. The rotation is rounded to whole degrees, halves to even. If
/// any of the three values comes back different, be it by the letter case of the font or a fraction of a degree, all
/// three are taken over and Changed is set; otherwise `choice` is left alone. Returns true if nothing failed, also if
/// the user cancelled.
bool ShowCharacterDialog(Desktop& desktop, CharacterRequest& choice, ILanguage* language,
                         OwnerWindow owner = {}) noexcept;

/// Shows the dialog for the extent of a map (an object with IMap), modal, in that language, and writes the edges that
/// come back from it; an edge that the map refuses is skipped. Returns true if nothing failed, also if the user
/// cancelled. If the extent cannot be read, or its ratio of width to height makes no sense, it beeps, shows nothing and
/// returns false.
bool ShowGeoreferenceDialog(Desktop& desktop, HostObject* map, ILanguage* language, OwnerWindow owner = {}) noexcept;

}  // namespace modMain
}  // namespace orx
