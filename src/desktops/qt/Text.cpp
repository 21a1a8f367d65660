#include "desktops/qt/Text.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QTextDocument>
#include <algorithm>
#include <utility>

namespace orx::qt {
namespace {

bool IsPair(const QString& text, qsizetype at) {
  return text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
}

/// False where the platform has no mnemonics and Alt types further characters.
bool HasMnemonics() {
  return !QKeySequence::mnemonic("&A").isEmpty();
}

/// The letter of a press with Alt; 0 for a key without one.
char32_t LetterOf(const QKeyEvent& event) {
  // Some platforms give no text while Alt is down, but the key is the letter of the layout then.
  QString letter = event.text();
  if ((letter.isEmpty() || !letter[0].isPrint()) && event.key() > 0x20 && event.key() < Qt::Key_Escape)
    letter = QString(QChar(event.key()));
  if (letter.isEmpty() || !letter[0].isPrint()) return 0;
  return letter.toLower().toUcs4().front();
}

}  // namespace

int UnitOffset(const QString& text, int character) {
  qsizetype at = 0;
  for (int passed = 0; passed < character && at < text.size(); ++passed) at += IsPair(text, at) ? 2 : 1;
  return static_cast<int>(at);
}

int CharacterIndex(const QString& text, int unitOffset) {
  int characters = 0;
  const qsizetype end = std::min<qsizetype>(unitOffset, text.size());
  for (qsizetype at = 0; at < end; at += IsPair(text, at) ? 2 : 1) ++characters;
  return characters;
}

QString PlainToolTip(const std::string& text) {
  const QString plain = ToQt(text);
  return Qt::mightBeRichText(plain) ? Qt::convertFromPlainText(plain) : plain;
}

std::optional<KeyStroke> StrokeOf(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
  const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
  if (modifiers == Qt::AltModifier && HasMnemonics()) {
    const char32_t letter = LetterOf(event);
    if (letter == 0) return std::nullopt;
    return KeyStroke{Key::Character, letter, shift, true};
  }
  if (modifiers == Qt::ControlModifier && event.key() == Qt::Key_PageDown) return KeyStroke{Key::NextTab};
  if (modifiers == Qt::ControlModifier && event.key() == Qt::Key_PageUp) return KeyStroke{Key::PreviousTab};
  if (modifiers != Qt::NoModifier) return std::nullopt;
  switch (event.key()) {
    case Qt::Key_F1:
      return KeyStroke{Key::Help};
    case Qt::Key_Tab:
      return KeyStroke{Key::Tab, 0, shift, false};
    case Qt::Key_Backtab:
      return KeyStroke{Key::Tab, 0, true, false};
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return KeyStroke{Key::Enter, 0, shift, false};
    case Qt::Key_Escape:
      return KeyStroke{Key::Escape, 0, shift, false};
    default:
      return std::nullopt;
  }
}

int KeyCodeOf(const QKeyEvent& event) {
  const int key = event.key();
  // Letters and digits have the codes of their capitals on both sides.
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9) || key == Qt::Key_Space)
    return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return 112 + key - Qt::Key_F1;
  constexpr std::pair<int, int> kCodes[] = {{Qt::Key_Shift, kKeyCodeShift},
                                            {Qt::Key_Backspace, 8},
                                            {Qt::Key_Control, 17},
                                            {Qt::Key_PageUp, 33},
                                            {Qt::Key_PageDown, 34},
                                            {Qt::Key_End, 35},
                                            {Qt::Key_Home, 36},
                                            {Qt::Key_Left, 37},
                                            {Qt::Key_Up, 38},
                                            {Qt::Key_Right, 39},
                                            {Qt::Key_Down, 40},
                                            {Qt::Key_Plus, kKeyCodePlus},
                                            {Qt::Key_Minus, kKeyCodeMinus},
                                            {Qt::Key_Insert, 45},
                                            {Qt::Key_Delete, 46}};
  for (const auto& [native, code] : kCodes)
    if (native == key) return code;
  return 0;
}

}  // namespace orx::qt
