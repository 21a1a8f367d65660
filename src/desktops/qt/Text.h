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

/// The offset in code units of the character with that index, and back.
int UnitOffset(const QString& text, int character);
int CharacterIndex(const QString& text, int unitOffset);

/// A tool tip that shows `text` as it stands, although Qt takes what looks like markup for rich text.
QString PlainToolTip(const std::string& text);

/// The key press when it may be one that a dialog decides about, nothing otherwise.
std::optional<KeyStroke> StrokeOf(const QKeyEvent& event);

/// The platform's code of the key (forms/Keys.h), 0 for keys that have none here.
int KeyCodeOf(const QKeyEvent& event);

}  // namespace orx::qt
