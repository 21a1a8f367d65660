// The keys that mean something to a dialog as a whole, whichever control has the focus.
#pragma once

namespace orx {

/// The key: F1 is Help, Ctrl with Page Down or Page Up goes to the next or the previous tab, and Character stands for
/// any letter or digit.
enum class Key { Tab, Enter, Escape, Help, NextTab, PreviousTab, Character };

/// One key press. `Character` holds the letter when the key is Key::Character.
struct KeyStroke {
  orx::Key Key = Key::Character;
  char32_t Character = 0;
  bool Shift = false;
  bool Alt = false;
};

/// The codes by which the platform numbers keys, as KeyDown gives them. A letter or digit has the code of its capital.
inline constexpr int kKeyCodeShift = 16;
inline constexpr int kKeyCodeSpace = 32;
inline constexpr int kKeyCodePageUp = 33;
inline constexpr int kKeyCodePageDown = 34;
inline constexpr int kKeyCodeEnd = 35;
inline constexpr int kKeyCodeHome = 36;
inline constexpr int kKeyCodeLeft = 37;
inline constexpr int kKeyCodeUp = 38;
inline constexpr int kKeyCodeRight = 39;
inline constexpr int kKeyCodeDown = 40;
inline constexpr int kKeyCodeDelete = 46;
inline constexpr int kKeyCodePlus = 107;
inline constexpr int kKeyCodeMinus = 109;
inline constexpr int kKeyCodeF1 = 112;

}  // namespace orx
