// What a field does when it gets the focus.
#pragma once

namespace orx {

class TextBox;

namespace modMain {

/// Selects the whole text. Never throws.
void SelectAllText(TextBox& box) noexcept;

}  // namespace modMain
}  // namespace orx
