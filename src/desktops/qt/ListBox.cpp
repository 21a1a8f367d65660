#include "forms/ListBox.h"

#include <QListView>

#include "desktops/qt/Peers.h"
#include "desktops/qt/RowModel.h"

namespace orx::qt {
namespace {

class Entries final : public RowModel<ListBox> {
 public:
  using RowModel::RowModel;

 private:
  int Count(const ListBox& control) const override { return control.ListCount(); }
  const std::string& Text(const ListBox& control, int row) const override { return control.List(row); }
};

class ListBoxPeer final : public Peer {
 public:
  ListBoxPeer(ListBox& control, Dialog& dialog, QListView* native)
      : Peer(control, dialog, native), mControl(control), mNative(*native), mEntries(*new Entries(control, native)) {
    mNative.setUniformItemSizes(true);
    mNative.setEditTriggers(QAbstractItemView::NoEditTriggers);
    mNative.setModel(&mEntries);
    connect(mNative.selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& index) {
      Report([&] {
        if (index.isValid()) mControl.UserPick(index.row());
      });
    });
  }
  ~ListBoxPeer() override { mEntries.Forget(); }

 private:
  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Items) mEntries.Renew();
    if (aspect == Aspect::Items || aspect == Aspect::Value)
      mNative.setCurrentIndex(mControl.ListIndex() < 0 ? QModelIndex() : mEntries.index(mControl.ListIndex()));
    Peer::Mirror(aspect);
  }

  ListBox& mControl;
  QListView& mNative;
  Entries& mEntries;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(ListBox& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<ListBoxPeer>(control, dialog, new QListView(&parent));
}

}  // namespace orx::qt
