// What a field does when the focus comes to it.
#pragma once

namespace orx {

class TextBox;

namespace modMain {

/// Selects the whole text. Nothing is thrown.
void SelectAllText(TextBox& box) noexcept;

}  // namespace modMain
}  // namespace orx
