// The user of the Qt desktop: sends real mouse and key events to the native widgets and reads those back.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>
#include <optional>

#include "desktops/qt/MessageBox.h"
#include "desktops/qt/Peer.h"
#include "desktops/qt/QtDesktop.h"
#include "desktops/qt/Text.h"
#include "tests/support/QtCommonDialogs.h"
#include "tests/support/QtInput.h"
#include "tests/support/User.h"

namespace orx::test {
namespace {

using qt::FromQt;
using qt::PeerOf;
using qt::ToQt;

template <class Widget>
Widget* As(Control& control) {
  return PeerOf(control) ? qobject_cast<Widget*>(&PeerOf(control)->Widget()) : nullptr;
}

QString Plain(const QString& caption) {
  return ToQt(WithoutMnemonic(FromQt(caption)));
}

/// True when the user finds the control on the screen; one that is scrolled away is brought into view.
bool CanReach(Control& control) {
  if (!PeerOf(control) || !PeerOf(control)->Widget().isVisible()) return false;
  static_cast<qt::Dialog*>(PeerOf(control)->Widget().window())->Content().Reveal(PeerOf(control)->Widget());
  return true;
}

class QtUser final : public User {
 public:
  void Click(Button& button) override {
    if (CanReach(button)) MouseClick(*As<QPushButton>(button));
  }

  void Toggle(CheckBox& box) override {
    // The box itself is at the left end; to the right of a short caption nothing reacts.
    if (CanReach(box)) MouseClick(*As<QCheckBox>(box), {8, As<QCheckBox>(box)->height() / 2});
  }

  void ClickInto(Control& control) override {
    if (!CanReach(control)) return;
    auto* const combo = As<QComboBox>(control);
    MouseClick(combo && combo->lineEdit() ? *combo->lineEdit() : PeerOf(control)->FocusWidget());
    // A drop-down list opens on a click; the user looks and closes it again.
    if (QWidget* const popup = QApplication::activePopupWidget()) QTest::keyClick(popup, Qt::Key_Escape);
  }

  void Type(TextBox& field, const std::string& text) override { ClickAndType(field, text); }
  void Type(ComboBox& box, const std::string& text) override { ClickAndType(box, text); }

  void Paste(TextBox& field, const std::string& text) override { ClickAndPaste(field, text); }
  void Paste(ComboBox& box, const std::string& text) override { ClickAndPaste(box, text); }

  void Pick(ComboBox& box, int index) override {
    if (!CanReach(box)) return;
    QComboBox& combo = *As<QComboBox>(box);
    MouseClick(combo, {combo.width() - 8, combo.height() / 2});
    if (!combo.view()->isVisible()) return;
    const QModelIndex entry = combo.model()->index(index, combo.modelColumn());
    combo.view()->scrollTo(entry);
    const QPoint place = combo.view()->visualRect(entry).center();
    // A release right after the press that opened the list is taken for a choice only when the mouse has moved.
    QTest::mouseMove(combo.view()->viewport(), place);
    QTest::mouseClick(combo.view()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
  }

  void Choose(ComboBox& box, int index) override {
    if (!CanReach(box)) return;
    QComboBox& combo = *As<QComboBox>(box);
    MouseClick(combo, {combo.width() - 8, combo.height() / 2});
    if (!combo.view()->isVisible()) return;
    // A release right after the press that opened the list is not taken for a choice, but keys are.
    QTest::keyClick(combo.view(), Qt::Key_Home);
    for (int below = 0; below < index; ++below) QTest::keyClick(combo.view(), Qt::Key_Down);
    QTest::keyClick(combo.view(), Qt::Key_Return);
  }

  void Choose(ListBox& box, int index) override {
    if (!CanReach(box)) return;
    QListView& view = *As<QListView>(box);
    ClickInto(box);
    QTest::keyClick(&view, Qt::Key_Home);
    for (int below = 0; below < index; ++below) QTest::keyClick(&view, Qt::Key_Down);
  }

  void Click(ListBox& box, int row) override {
    if (const std::optional<QRect> place = PlaceOf(box, row))
      MouseClick(*As<QListView>(box)->viewport(), {place->left() + 5, place->center().y()});
  }

  void DoubleClick(ListBox& box, int row) override {
    const std::optional<QRect> place = PlaceOf(box, row);
    if (!place) return;
    QWidget& view = *As<QListView>(box)->viewport();
    Activate(view);
    QWidget& window = *view.window();
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       view.mapTo(&window, QPoint(place->left() + 5, place->center().y())));
  }

  void Click(PictureBox& box) override {
    if (CanReach(box)) MouseClick(PeerOf(box)->Widget());
  }

  void ClickAt(PictureBox& box, Point at) override {
    if (CanReach(box)) MouseClick(PeerOf(box)->Widget(), {at.X, at.Y});
  }

  void DoubleClickAt(PictureBox& box, Point at) override {
    if (!CanReach(box)) return;
    QWidget& widget = PeerOf(box)->Widget();
    Activate(widget);
    QWidget& window = *widget.window();
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       widget.mapTo(&window, QPoint(at.X, at.Y)));
  }

  void PressKey(Form& form, int keyCode) override {
    QWidget& dialog = WindowOf(form);
    Activate(dialog);
    QTest::keyClick(dialog.focusWidget() ? dialog.focusWidget() : &dialog, NativeKey(keyCode));
  }

  void Click(TreeList& list, int row) override {
    if (const std::optional<QRect> place = PlaceOf(list, row))
      MouseClick(*As<QListView>(list)->viewport(), {place->right() - 5, place->center().y()});
  }

  void Fold(TreeList& list, int row) override {
    const int level = list.OwnerForm().OwnerDesktop().ToPixels(240);
    if (const std::optional<QRect> place = PlaceOf(list, row))
      MouseClick(*As<QListView>(list)->viewport(), {level * list.Row(row).Level + level / 2, place->center().y()});
  }

  void TypeCharacters(Form& form, const std::string& text) override {
    QWidget& dialog = WindowOf(form);
    Activate(dialog);
    const QPointer<QWidget> focused = dialog.focusWidget();
    for (const char32_t character : ToQt(text).toUcs4()) {
      if (!focused) return;
      // The toolkit's test library knows the keys of these characters only.
      if (character < 0x80) {
        QTest::keyClick(focused, static_cast<char>(character));
      } else {
        QTest::sendKeyEvent(QTest::Click, focused, Qt::Key(0), QString::fromUcs4(&character, 1), Qt::NoModifier);
      }
    }
  }

  void DragFromBottom(Form& form, int above, int by) override {
    QWidget& dialog = WindowOf(form);
    Activate(dialog);
    const QPoint from(dialog.width() / 2, dialog.height() - above);
    const QPoint to = from + QPoint(0, by);
    // Each step may close the dialog.
    const QPointer<QWindow> window = dialog.windowHandle();
    if (window) QTest::mouseMove(window, from);
    if (window) QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, from);
    if (window) QTest::mouseMove(window, to);
    if (window) QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, to);
    if (window) QTest::mouseMove(window, QPoint(from.x(), 1));
    QCoreApplication::processEvents();
  }

  void SelectTab(TabControl& tabs, int tab) override {
    if (!CanReach(tabs)) return;
    QTabBar& bar = *As<QTabWidget>(tabs)->tabBar();
    MouseClick(bar, bar.tabRect(tab).center());
  }

  void Press(Form& form, const KeyStroke& stroke) override {
    QWidget& dialog = WindowOf(form);
    Activate(dialog);
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::AltModifier, stroke.Alt);
    modifiers.setFlag(Qt::ShiftModifier, stroke.Shift);
    modifiers.setFlag(Qt::ControlModifier, stroke.Key == Key::NextTab || stroke.Key == Key::PreviousTab);
    QTest::keyClick(dialog.focusWidget() ? dialog.focusWidget() : &dialog, NativeKey(stroke), modifiers);
  }

  void CloseBox(Form& form) override { WindowOf(form).close(); }

  void PickFiles(OpenFileRequest&, const Picked& files) override { PickFilesInDialog(files); }
  void CancelFiles(OpenFileRequest&) override { CancelFilesInDialog(); }
  void PickColor(ColorRequest&, Color color) override { PickColorInDialog(color); }
  void CancelColor(ColorRequest&) override { CancelColorInDialog(); }
  void PickFont(FontRequest&, const ColoredFont& font) override { PickFontInDialog(font); }
  void CancelFont(FontRequest&) override { CancelFontInDialog(); }

  void AnswerMessage(const Modal&, MessageAnswer answer) override {
    if (QMessageBox* const box = qt::OpenMessageBox())
      MouseClick(*box->button(answer == MessageAnswer::OK    ? QMessageBox::Ok
                              : answer == MessageAnswer::Yes ? QMessageBox::Yes
                                                             : QMessageBox::No));
  }

  Seen See(Control& control) override {
    if (!PeerOf(control)) return {};
    QWidget& widget = PeerOf(control)->Widget();
    Seen seen{widget.isVisible(), widget.isVisible() && widget.isEnabled(),
              widget.window()->focusWidget() == &PeerOf(control)->FocusWidget(), FromQt(ShownText(control)), 0};
    if (const auto* const box = As<QCheckBox>(control)) seen.Value = ShownState(box->checkState());
    if (const auto* const bar = As<QProgressBar>(control)) seen.Value = bar->value();
    if (const auto* const combo = As<QComboBox>(control)) seen.Value = combo->currentIndex();
    if (const auto* const list = As<QListView>(control)) seen.Value = list->currentIndex().row();
    if (const auto* const tree = dynamic_cast<TreeList*>(&control)) {
      const QModelIndexList selected = As<QListView>(control)->selectionModel()->selectedIndexes();
      seen.Value = selected.isEmpty() ? -1 : tree->ShownRow(selected.front().row());
      if (selected.isEmpty()) seen.Text.clear();
    }
    if (const auto* const tabs = As<QTabWidget>(control)) seen.Value = tabs->currentIndex();
    return seen;
  }

  std::vector<std::string> SeeRows(TreeList& list) override {
    const QAbstractItemModel& rows = *As<QListView>(list)->model();
    std::vector<std::string> texts;
    for (int i = 0; i < rows.rowCount(); ++i) texts.push_back(FromQt(rows.index(i, 0).data().toString()));
    return texts;
  }
  bool SeesRow(TreeList& list, int row) override {
    const QListView& view = *As<QListView>(list);
    if (list.PositionOf(row) < 0) return false;
    const QRect place = view.visualRect(view.model()->index(list.PositionOf(row), 0));
    return view.viewport()->rect().contains(place);
  }

  std::set<int> SeeSelected(ListBox& box) override {
    std::set<int> rows;
    for (const QModelIndex& index : As<QListView>(box)->selectionModel()->selectedIndexes()) rows.insert(index.row());
    return rows;
  }
  bool SeesRow(ListBox& box, int row) override {
    const QListView& view = *As<QListView>(box);
    const QRect place = view.visualRect(view.model()->index(row, 0));
    const QRect all = view.viewport()->rect();
    return place.isValid() && place.top() >= all.top() && place.bottom() <= all.bottom();
  }

  std::string SeeCaption(Form& form) override { return FromQt(WindowOf(form).windowTitle()); }

 private:
  static std::optional<QRect> PlaceOf(ListBox& box, int row) {
    if (!CanReach(box) || row >= box.ListCount()) return std::nullopt;
    QListView& view = *As<QListView>(box);
    view.scrollTo(view.model()->index(row, 0));
    return view.visualRect(view.model()->index(row, 0));
  }
  /// The place of a row in the view, scrolled to; none when it is folded away or out of reach.
  static std::optional<QRect> PlaceOf(TreeList& list, int row) {
    if (!CanReach(list) || list.PositionOf(row) < 0) return std::nullopt;
    QListView& view = *As<QListView>(list);
    const QModelIndex index = view.model()->index(list.PositionOf(row), 0);
    view.scrollTo(index);
    return view.visualRect(index);
  }
  static QWidget& WindowOf(Form& form) { return *QWidget::find(form.Window()->NativeHandle()); }

  void ClickAndPaste(Control& control, const std::string& text) {
    ClickInto(control);
    if (!PeerOf(control) || !control.HasFocus()) return;
    QGuiApplication::clipboard()->setText(ToQt(text));
    QTest::keyClick(&PeerOf(control)->FocusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&PeerOf(control)->FocusWidget(), Qt::Key_V, Qt::ControlModifier);
  }

  void ClickAndType(Control& control, const std::string& text) {
    ClickInto(control);
    if (PeerOf(control) && control.HasFocus()) TypeInto(PeerOf(control)->FocusWidget(), text);
  }

  static QString ShownText(Control& control) {
    if (const auto* const field = As<QLineEdit>(control)) return field->text();
    if (const auto* const field = As<QPlainTextEdit>(control)) return field->toPlainText();
    if (const auto* const combo = As<QComboBox>(control)) return combo->currentText();
    if (const auto* const list = As<QListView>(control)) return list->currentIndex().data().toString();
    if (const auto* const tabs = As<QTabWidget>(control)) return Plain(tabs->tabText(tabs->currentIndex()));
    if (const auto* const frame = As<QGroupBox>(control)) return Plain(frame->title());
    if (const auto* const button = As<QAbstractButton>(control)) return Plain(button->text());
    const auto* const label = As<QLabel>(control);
    if (!label) return {};
    // A label without a buddy shows its marks as they are.
    return label->buddy() ? Plain(label->text()) : label->text();
  }

  static int ShownState(Qt::CheckState state) {
    if (state == Qt::PartiallyChecked) return static_cast<int>(CheckState::Grayed);
    return static_cast<int>(CheckedIf(state == Qt::Checked));
  }
};

class QtTestDesktop final : public TestDesktop {
 public:
  Desktop& Get() override { return mDesktop; }
  User& Person() override { return mUser; }
  void Separators(const numbers::Separators& value) override { mDesktop.Separators(value); }
  bool IsHostInOrder() override {
    const bool hasPlainPointer = mDesktop.Pointer() != Pointer::Default || !QApplication::overrideCursor();
    return hasPlainPointer && !QApplication::activeModalWidget() && !QApplication::activePopupWidget();
  }
  int NativeObjects() override {
    // Those that wait to be deleted are as good as gone.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return static_cast<int>(QApplication::allWidgets().size());
  }

 private:
  qt::QtDesktop mDesktop;
  QtUser mUser;
};

}  // namespace

std::unique_ptr<TestDesktop> MakeTestDesktop() {
  // No window of a test is to appear on a developer's screen unless asked for.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // Nor is a test to touch a developer's own settings.
  static const QTemporaryDir settings;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  return std::make_unique<QtTestDesktop>();
}

}  // namespace orx::test

// Memory that the system's font configuration keeps for the life of the process is no leak of ours.
extern "C" const char*
__lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier,readability-identifier-naming)

extern "C" const char*
__lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier,readability-identifier-naming)
  return "leak:libfontconfig\n";
}
