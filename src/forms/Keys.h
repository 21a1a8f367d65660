// The keys that mean something to a dialog as a whole, whatever control has the focus.
#pragma once

namespace orx {

/// The key; Character stands for any letter or digit.
enum class Key { Tab, Enter, Escape, Character };

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

}  // namespace orx
