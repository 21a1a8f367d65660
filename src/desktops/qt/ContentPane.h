// The part of a dialog that holds its controls, arranged as forms/Arrangement.h works it out: the body, which scrolls
// where the screen is too small for the form, and the pinned controls below it.
#pragma once

#include <QRect>
#include <QSize>

#include "forms/Arrangement.h"

class QScrollArea;
class QWidget;

namespace orx::qt {

class ContentPane {
 public:
  /// The widgets made here belong to `dialog`.
  ContentPane(QWidget& dialog, const Form& form);

  /// The widget in which a control that stands directly in the form is to be made.
  QWidget& HomeOf(const Control& control);
  /// The place of any control in its parent, in pixels.
  QRect PlaceOf(const Control& control) const;

  /// The client size of the window: the shown part of the form and the scroll bar beside it.
  QSize WindowSize() const;
  /// What of that size is the scroll bar.
  int ExtraWidth() const { return Current().ExtraWidth; }
  /// All controls have their widgets: from now on Arrange does its work.
  void Complete() { mIsComplete = true; }
  /// Sets the body and the pinned controls to the form's present sizes.
  void Arrange();
  /// Scrolls until the widget can be seen.
  void Reveal(QWidget& widget);

 private:
  Arrangement Current() const;
  /// Has the body scroll from now on. Few dialogs need it, and it costs as much as a handful of controls.
  void MakeScrollable();

  const Form& mForm;
  QWidget& mDialog;
  QWidget* mBody;
  /// Null while the body stands in the dialog itself.
  QScrollArea* mScroll = nullptr;
  Arrangement mArrangement;
  bool mIsComplete = false;
};

}  // namespace orx::qt
