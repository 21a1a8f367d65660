#include "forms/TabControl.h"

#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>

#include "desktops/qt/Peers.h"
#include "desktops/qt/Text.h"
#include "forms/Desktop.h"
#include "forms/Form.h"

namespace orx::qt {
namespace {

/// A tab strip that is never higher than the room that the pages leave for it.
class Strip final : public QTabBar {
 public:
  explicit Strip(int height) : mHeight(height) {}

 protected:
  QSize tabSizeHint(int index) const override {
    const QSize hint = QTabBar::tabSizeHint(index);
    return {hint.width(), std::min(hint.height(), mHeight)};
  }

 private:
  int mHeight;
};

/// The form's pages are children of the tab widget itself, at their designed places. Qt's own pages stay empty.
class NativeTabs final : public QTabWidget {
 public:
  NativeTabs(QWidget& parent, int stripHeight) : QTabWidget(&parent) {
    setTabBar(new Strip(stripHeight));
    setFocusPolicy(Qt::TabFocus);
    tabBar()->setFocusPolicy(Qt::TabFocus);
  }
};

class TabControlPeer final : public Peer {
 public:
  TabControlPeer(TabControl& control, Dialog& dialog, NativeTabs* native)
      : Peer(control, dialog, native, native->tabBar()), mControl(control), mNative(*native) {
    for (int tab = 0; tab < control.TabCount(); ++tab) mNative.addTab(new QWidget, QString());
    const auto select = [this](int tab) { Report([this, tab] { mControl.UserSelect(tab); }); };
    connect(&mNative, &QTabWidget::currentChanged, this, select);
    // A click on the selected tab changes nothing but moves the focus here.
    connect(&mNative, &QTabWidget::tabBarClicked, this, [this, select](int tab) {
      if (tab == mControl.Tab()) select(tab);
    });
  }

 private:
  void Mirror(Aspect aspect) override {
    const QSignalBlocker blocker(mNative);
    if (aspect == Aspect::Items)
      for (int tab = 0; tab < mControl.TabCount(); ++tab) mNative.setTabText(tab, ToQt(mControl.TabCaption(tab)));
    if (aspect == Aspect::Value) MirrorTab();
    Peer::Mirror(aspect);
  }

  void MirrorTab() {
    mNative.setCurrentIndex(mControl.Tab());
    for (int tab = 0; tab < mControl.TabCount(); ++tab)
      if (ControlPeer* const page = mControl.Page(tab).Peer()) page->Update(Aspect::Visible);
  }

  TabControl& mControl;
  NativeTabs& mNative;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(TabControl& control, Dialog& dialog, QWidget& parent) {
  const int strip = dialog.Owner().OwnerDesktop().ToPixels(TabControl::kStrip);
  return std::make_unique<TabControlPeer>(control, dialog, new NativeTabs(parent, strip));
}

}  // namespace orx::qt
