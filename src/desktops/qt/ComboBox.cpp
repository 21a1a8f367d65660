#include "forms/ComboBox.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyleOption>
#include <QStylePainter>

#include "desktops/qt/Peers.h"
#include "desktops/qt/Text.h"
#include "forms/Form.h"

namespace orx::qt {
namespace {

/// A combo box whose list opens only when the form grants it the focus.
class NativeCombo final : public QComboBox {
 public:
  using QComboBox::QComboBox;
  std::function<bool()> MayOpen;
  void showPopup() override {
    if (!MayOpen || MayOpen()) QComboBox::showPopup();
  }
  /// How wide the text of the chosen entry may be.
  int Room() const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this).width() - kGap;
  }

 protected:
  /// Of itself Qt cuts a long text without a sign.
  void paintEvent(QPaintEvent* event) override {
    if (isEditable()) return QComboBox::paintEvent(event);
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight, Room());
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
  }

 private:
  /// What styles leave free at both ends of the text.
  static constexpr int kGap = 2;
};

class ComboBoxPeer final : public Peer {
 public:
  ComboBoxPeer(ComboBox& control, Dialog& dialog, NativeCombo* native)
      : Peer(control, dialog, native), mControl(control), mNative(*native) {
    if (IsEditable()) {
      MakeEditable();
    } else {
      mNative.setFocusPolicy(Qt::TabFocus);
    }
    // The function may be called while the peer is being destroyed, so it holds nothing of it.
    mNative.MayOpen = [&control, &dialog] {
      bool agreed = false;
      dialog.Report([&] { control.OwnerForm().UserAct([&] { agreed = control.OwnerForm().MoveFocus(control); }); });
      return agreed;
    };
    connect(&mNative, &QComboBox::activated, this,
            [this](int index) { Report([this, index] { mControl.UserPick(index); }); });
  }

 private:
  bool IsEditable() const { return mControl.Style() == ComboStyle::Editable; }

  void MakeEditable() {
    mNative.setEditable(true);
    mNative.setInsertPolicy(QComboBox::NoInsert);
    // What the user types stays as typed.
    mNative.setCompleter(nullptr);
    connect(mNative.lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString& text) { Report([&] { mControl.UserText(FromQt(text)); }); });
  }

  Qt::FocusReason ReasonToFocus() const override {
    // With the reason of the Tab key, Qt would select the text.
    return IsEditable() ? Qt::OtherFocusReason : Peer::ReasonToFocus();
  }

  void Mirror(Aspect aspect) override {
    const QSignalBlocker blocker(mNative);
    if (aspect == Aspect::Items) MirrorItems();
    if (aspect == Aspect::Items || aspect == Aspect::Value) MirrorValue();
    Peer::Mirror(aspect);
    if (aspect == Aspect::Value || aspect == Aspect::Place) Fitted(mNative.currentText(), mNative.Room(), 0);
  }

  void MirrorItems() {
    const int count = mControl.ListCount();
    while (mNative.count() > count) mNative.removeItem(mNative.count() - 1);
    for (int index = 0; index < mNative.count(); ++index)
      if (const QString text = ToQt(mControl.List(index)); text != mNative.itemText(index))
        mNative.setItemText(index, text);
    for (int index = mNative.count(); index < count; ++index) mNative.addItem(ToQt(mControl.List(index)));
  }

  void MirrorValue() {
    mNative.setCurrentIndex(mControl.ListIndex());
    // Setting the same text again would move the caret while the user types.
    const QString text = ToQt(mControl.Text());
    if (IsEditable() && mNative.currentText() != text) mNative.setEditText(text);
  }

  ComboBox& mControl;
  NativeCombo& mNative;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(ComboBox& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<ComboBoxPeer>(control, dialog, new NativeCombo(&parent));
}

}  // namespace orx::qt
