#include "tests/support/ExactText.h"

#include <charconv>

namespace orx::test {

std::string Text(double value) {
  char digits[40];
  const auto end = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::hex).ptr;
  return std::string(digits, end);
}

std::string Text(const std::string& value) {
  std::string text = "\"";
  for (const char c : value) {
    if (c == '"' || c == '\\') text += '\\';
    text += c == '\n' ? "\\n" : std::string(1, c);
  }
  return text + '"';
}

std::string Text(const Font& font) {
  std::string flags;
  for (const bool flag : {font.Bold, font.Italic, font.Underline, font.Strikethrough}) flags += flag ? '1' : '0';
  return Text(font.Name) + " " + Text(font.Size) + " " + flags;
}

std::string Text(const Color& color) {
  return std::to_string(color.Red) + " " + std::to_string(color.Green) + " " + std::to_string(color.Blue);
}

}  // namespace orx::test
