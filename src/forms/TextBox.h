// A text field of one line, or of several lines for longer texts.
#pragma once

#include "forms/Control.h"

namespace orx {

/// One line, or several with line breaks between them.
enum class TextLines { Single, Multiple };

/// A field that the user types into.
class TextBox final : public Control {
 public:
  /// As Control; the text is empty at first, lines and lock are fixed.
  TextBox(Container& parent, std::string name, Design design, TextLines lines = TextLines::Single, bool locked = false)
      : Control(parent, std::move(name), std::move(design)), mLines(lines), mLocked(locked) {}

  /// The text, UTF-8.
  const std::string& Text() const { return mText; }
  /// Sets the text and raises Change when it differs; the caret goes to the start.
  void Text(const std::string& value);

  /// As given when the box was made.
  TextLines Lines() const { return mLines; }
  /// True when the user may read and copy the text but not change it.
  bool Locked() const { return mLocked; }

  bool StartsFocus() const override { return !mLocked; }

  /// Start and length of the selection in characters (code points). Values outside the text are cut to it.
  int SelStart() const { return mSelStart; }
  void SelStart(int value);
  int SelLength() const { return mSelLength; }
  void SelLength(int value);

  /// How often the user has edited the text, also to the same text again.
  int Edits() const { return mEdits; }

  /// Raised when the text changes, by the user or by the program.
  Event<> Change;

  /// For desktops and test users: the user has edited the text; the selection is given in characters.
  void UserText(const std::string& text, int selStart, int selLength);
  /// For desktops: the user has moved the caret or the selection.
  void UserSelect(int selStart, int selLength);
  void Accept(ControlVisitor& visitor) override;

 private:
  TextLines mLines;
  bool mLocked;
  std::string mText;
  int mSelStart = 0;
  int mSelLength = 0;
  int mEdits = 0;
};

}  // namespace orx
