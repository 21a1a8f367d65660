// Texts and keys between the forms (UTF-8, characters) and Qt (UTF-16, code units).
#pragma once

#include <QString>
#include <optional>
#include <string>

#include "forms/Keys.h"

class QKeyEvent;

namespace orx::qt {

inline QString ToQt(const std::string& text) {
  return QString::fromStdString(text);
}
inline std::string FromQt(const QString& text) {
  return text.toStdString();
}

/// Converts the index of a character to its offset in code units, and back.
int UnitOffset(const QString& text, int character);
int CharacterIndex(const QString& text, int unitOffset);

/// A tool tip that shows `text` literally, although Qt takes anything that looks like markup for rich text.
QString PlainToolTip(const std::string& text);

/// The key press if it may be one that the dialog handles, nothing otherwise.
std::optional<KeyStroke> StrokeOf(const QKeyEvent& event);

/// The code of the key as forms/Keys.h has it, 0 for any other key.
int KeyCodeOf(const QKeyEvent& event);

}  // namespace orx::qt
