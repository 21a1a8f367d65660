// The fixture of the tests of the Qt desktop alone: the native window of a form, and what Qt knows of it.
#pragma once

#include <QCoreApplication>
#include <QTest>

#include "desktops/qt/Dialog.h"
#include "desktops/qt/Peer.h"
#include "desktops/qt/QtDesktop.h"
#include "tests/forms/SampleForm.h"

namespace orx::test {

class QtFormsTest : public FormsTest {
 protected:
  qt::QtDesktop& QtOnly() { return dynamic_cast<qt::QtDesktop&>(desktop()); }

  /// Shows the form and waits until its window is active and everything in it is laid out.
  void ShowSettled() {
    ShowForm();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&DialogOf(*form)));
    desktop().ProcessPendingEvents();
    events.clear();
  }

  static qt::Dialog& DialogOf(const Form& shown) {
    return dynamic_cast<qt::Dialog&>(*QWidget::find(shown.Window()->NativeHandle()));
  }

  template <class Widget>
  static Widget& Native(const Control& control) {
    return dynamic_cast<Widget&>(qt::PeerOf(control)->Widget());
  }

  /// The place of a control's widget in its window, in pixels.
  static QRect PlaceInWindow(const Control& control) {
    const QWidget& widget = Native<QWidget>(control);
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
  }
};

}  // namespace orx::test
