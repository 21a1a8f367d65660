#include "forms/ListBox.h"

#include <QAbstractListModel>
#include <QListView>

#include "desktops/qt/Peers.h"
#include "desktops/qt/Text.h"

namespace orx::qt {
namespace {

/// Reads the entries from the control when the view wants to show them.
class Entries final : public QAbstractListModel {
 public:
  explicit Entries(const ListBox& control, QObject* parent) : QAbstractListModel(parent), mControl(&control) {}

  int rowCount(const QModelIndex& parent) const override {
    return mControl && !parent.isValid() ? mControl->ListCount() : 0;
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (!mControl || role != Qt::DisplayRole || index.row() >= mControl->ListCount()) return {};
    return ToQt(mControl->List(index.row()));
  }
  void Renew() {
    beginResetModel();
    endResetModel();
  }
  void Forget() {
    mControl = nullptr;
    Renew();
  }

 private:
  const ListBox* mControl;
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
