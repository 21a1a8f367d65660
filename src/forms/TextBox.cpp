#include "forms/TextBox.h"

#include <algorithm>

#include "forms/Form.h"
#include "text/CharacterCount.h"

namespace orx {

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
  if (mLocked) return;
  ++mEdits;
  if (text == mText) return;
  OwnerForm().UserAct([&] {
    mText = text;
    Change.Raise();
  });
}

void TextBox::UserSelect(int selStart, int selLength) {
  mSelStart = selStart;
  mSelLength = selLength;
}

}  // namespace orx
