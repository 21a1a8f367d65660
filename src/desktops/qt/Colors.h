// Colours between the forms and Qt.
#pragma once

#include <QColor>

#include "forms/Appearance.h"

namespace orx::qt {

inline QColor ToQt(Color color) {
  return {color.Red, color.Green, color.Blue};
}
inline Color FromQt(const QColor& color) {
  const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
  return {part(color.red()), part(color.green()), part(color.blue())};
}

}  // namespace orx::qt
