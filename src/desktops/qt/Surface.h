// What the controls of a dialog stand on. While all of the form fits on the screen it is a plain area; when the form is
// larger than its window, the pinned controls stay at the bottom and the others scroll above them.
#pragma once

#include <QRect>
#include <QSize>
#include <vector>

class QScrollArea;
class QWidget;

namespace orx {
class Control;
class Form;
}  // namespace orx

namespace orx::qt {

class Surface {
 public:
  /// The widgets made here belong to `dialog`.
  Surface(QWidget& dialog, const Form& form);

  /// The widget in which a control that stands directly in the form is to be made.
  QWidget& HomeOf(const Control& control);
  /// Takes note of the widget of such a control, so that Arrange can see to it.
  void Add(const Control& control, QWidget& widget);
  /// The place of any control in its parent, in pixels.
  QRect PlaceOf(const Control& control) const;

  /// The client size of the window: the shown part of the form and the scroll bar beside it.
  QSize WindowSize() const;
  /// What of that size is the scroll bar.
  int ExtraWidth() const;
  /// All controls have been added and have their widgets: from now on Arrange does its work.
  void Complete() { mIsComplete = true; }
  /// Sets the scrolled area and the pinned controls to the form's present sizes.
  void Arrange();
  /// Scrolls until the widget can be seen.
  void Reveal(QWidget& widget);

 private:
  struct Standing {
    const orx::Control* Control;
    QWidget* Widget;
  };

  QSize Pixels(int width, int height) const;
  QSize Missing() const;
  /// The upper edge of the pinned controls while nothing scrolls.
  int PinnedTop() const;
  QSize BodySize(int pinnedTop) const;
  /// Has the body scroll from now on. Few dialogs need it, and it costs as much as a handful of controls.
  void MakeScrollable();

  const Form& mForm;
  QWidget& mDialog;
  QWidget* mBody;
  /// Null while the body stands in the dialog itself.
  QScrollArea* mScroll = nullptr;
  std::vector<Standing> mStanding;
  bool mIsComplete = false;
};

}  // namespace orx::qt
