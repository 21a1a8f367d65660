// What all desktops with a screen have in common.
#pragma once

#include <optional>

#include "forms/Desktop.h"

namespace orx {

/// Takes the number separators and the work area from the system, unless the host or a test gives others.
class NativeDesktop : public Desktop {
 public:
  ScreenMetrics Metrics(BorderStyle border) const final;
  std::vector<Rect> WorkAreas() const final;
  numbers::Separators Separators() const final;

  /// Gives number separators in place of the locale's.
  void Separators(const numbers::Separators& value) { mSeparators = value; }
  /// Gives a part of the screen, in twips, to keep the dialogs in, in place of the screens' own work areas.
  void WorkArea(const Rect& value) { mWorkArea = value; }

  /// Writes a picture of a form on the screen, or of the message box that is open, to a PNG file: without the window's
  /// frame, in the screen's full resolution. False when nothing is shown or the file cannot be written.
  virtual bool SavePicture(const Form& form, const std::string& pngPath) const = 0;
  virtual bool SaveMessagePicture(const std::string& pngPath) const = 0;

 protected:
  /// As Metrics, with the screen's own work area.
  virtual ScreenMetrics SystemMetrics(BorderStyle border) const = 0;
  /// The work areas of all screens but the main one, in twips.
  virtual std::vector<Rect> FurtherWorkAreas() const = 0;
  /// The separators of the user's locale.
  virtual numbers::Separators LocaleSeparators() const = 0;

 private:
  std::optional<numbers::Separators> mSeparators;
  std::optional<Rect> mWorkArea;
};

}  // namespace orx
