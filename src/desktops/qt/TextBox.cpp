#include "forms/TextBox.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalBlocker>

#include "desktops/qt/Peers.h"
#include "desktops/qt/Text.h"

namespace orx::qt {
namespace {

/// What single-line and multi-line fields have in common.
class FieldPeer : public Peer {
 public:
  FieldPeer(TextBox& control, Dialog& dialog, QWidget* native) : Peer(control, dialog, native), mControl(control) {
    if (!control.Locked()) return;
    // With the dialog's background it does not look like a field to type in.
    QPalette palette = native->palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    native->setPalette(palette);
  }

 protected:
  virtual QString NativeText() const = 0;
  /// Start and length of the selection in code units.
  virtual std::pair<int, int> NativeSelection() const = 0;
  virtual void ShowText(const QString& text) = 0;
  virtual void Select(int start, int length) = 0;

  void ReportText() { ReportState(&TextBox::UserText); }

  void ReportSelection() {
    ReportState([](TextBox& box, const std::string&, int start, int length) { box.UserSelect(start, length); });
  }

  TextBox& Field() const { return mControl; }

 private:
  template <class Act>
  void ReportState(Act act) {
    const QString text = NativeText();
    const auto [start, length] = NativeSelection();
    const int first = CharacterIndex(text, start);
    const int count = CharacterIndex(text, start + length) - first;
    Report([&] { std::invoke(act, mControl, FromQt(text), first, count); });
  }

  // With the reason of the Tab key, Qt would select the text.
  Qt::FocusReason ReasonToFocus() const override { return Qt::OtherFocusReason; }

  void Mirror(Aspect aspect) override {
    const QSignalBlocker blocker(Widget());
    if (aspect == Aspect::Text) ShowText(ToQt(mControl.Text()));
    if (aspect == Aspect::Text || aspect == Aspect::Selection) {
      const QString text = NativeText();
      const int start = UnitOffset(text, mControl.SelStart());
      Select(start, UnitOffset(text, mControl.SelStart() + mControl.SelLength()) - start);
    }
    Peer::Mirror(aspect);
  }

  TextBox& mControl;
};

class LinePeer final : public FieldPeer {
 public:
  LinePeer(TextBox& control, Dialog& dialog, QLineEdit* native) : FieldPeer(control, dialog, native), mNative(*native) {
    mNative.setReadOnly(control.Locked());
    connect(&mNative, &QLineEdit::textEdited, this, [this] { ReportText(); });
    connect(&mNative, &QLineEdit::cursorPositionChanged, this, [this] { ReportSelection(); });
    connect(&mNative, &QLineEdit::selectionChanged, this, [this] { ReportSelection(); });
  }

 private:
  QString NativeText() const override { return mNative.text(); }

  std::pair<int, int> NativeSelection() const override {
    if (mNative.hasSelectedText()) return {mNative.selectionStart(), mNative.selectionLength()};
    return {mNative.cursorPosition(), 0};
  }

  void ShowText(const QString& text) override { mNative.setText(text); }

  void Select(int start, int length) override {
    mNative.setCursorPosition(start);
    if (length > 0) mNative.setSelection(start, length);
  }

  QLineEdit& mNative;
};

class LinesPeer final : public FieldPeer {
 public:
  LinesPeer(TextBox& control, Dialog& dialog, QPlainTextEdit* native)
      : FieldPeer(control, dialog, native), mNative(*native) {
    mNative.setReadOnly(control.Locked());
    // A locked field can still be read with the keyboard.
    if (control.Locked()) mNative.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    connect(&mNative, &QPlainTextEdit::textChanged, this, [this] { ReportText(); });
    connect(&mNative, &QPlainTextEdit::cursorPositionChanged, this, [this] { ReportSelection(); });
    connect(&mNative, &QPlainTextEdit::selectionChanged, this, [this] { ReportSelection(); });
  }

 private:
  QString NativeText() const override { return mNative.toPlainText(); }

  std::pair<int, int> NativeSelection() const override {
    const QTextCursor caret = mNative.textCursor();
    return {caret.selectionStart(), caret.selectionEnd() - caret.selectionStart()};
  }

  void ShowText(const QString& text) override { mNative.setPlainText(text); }

  void Select(int start, int length) override {
    QTextCursor caret = mNative.textCursor();
    caret.setPosition(start);
    caret.setPosition(start + length, QTextCursor::KeepAnchor);
    mNative.setTextCursor(caret);
    // A locked field is a log, whose last lines are the newest.
    if (Field().Locked()) mNative.verticalScrollBar()->setValue(mNative.verticalScrollBar()->maximum());
  }

  QPlainTextEdit& mNative;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(TextBox& control, Dialog& dialog, QWidget& parent) {
  if (control.Lines() == TextLines::Single) return std::make_unique<LinePeer>(control, dialog, new QLineEdit(&parent));
  return std::make_unique<LinesPeer>(control, dialog, new QPlainTextEdit(&parent));
}

}  // namespace orx::qt
