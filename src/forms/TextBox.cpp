#include "forms/TextBox.h"

#include <algorithm>

#include "forms/ControlVisitor.h"
#include "forms/Form.h"

namespace orx {

int CharacterCount(std::string_view text) {
  const auto startsCharacter = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
  return static_cast<int>(std::count_if(text.begin(), text.end(), startsCharacter));
}

void TextBox::Text(const std::string& value) {
  if (mText == value) return;
  mText = value;
  mSelStart = 0;
  mSelLength = 0;
  Changed(Aspect::Text);
  Change.Raise();
}

void TextBox::SelStart(int value) {
  mSelStart = std::clamp(value, 0, CharacterCount(mText));
  mSelLength = 0;
  Changed(Aspect::Selection);
}

void TextBox::SelLength(int value) {
  mSelLength = std::clamp(value, 0, CharacterCount(mText) - mSelStart);
  Changed(Aspect::Selection);
}

void TextBox::UserText(const std::string& text, int selStart, int selLength) {
  UserSelect(selStart, selLength);
  if (text == mText || mLocked) return;
  OwnerForm().UserAct([&] {
    mText = text;
    Change.Raise();
  });
}

void TextBox::UserSelect(int selStart, int selLength) {
  mSelStart = selStart;
  mSelLength = selLength;
}

void TextBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

}  // namespace orx
