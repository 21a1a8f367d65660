#include "benchmarks/BareDialog.h"

#include <QtWidgets>

#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/ControlVisitor.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"
#include "forms/TabControl.h"
#include "forms/TextBox.h"
#include "forms/TreeList.h"

namespace orx::bench {
namespace {

QString ToQt(const std::string& text) {
  return QString::fromStdString(text);
}

/// Makes the widget of one control in its parent.
class BareMaker final : public ControlVisitor {
 public:
  BareMaker(const Desktop& desktop, QWidget& parent) : mDesktop(desktop), mParent(parent) {}

  QWidget* Make(Control& control) {
    control.Accept(*this);
    const Rect& place = control.Place();
    mMade->setGeometry(mDesktop.ToPixels(place.Left), mDesktop.ToPixels(place.Top), mDesktop.ToPixels(place.Width),
                       mDesktop.ToPixels(place.Height));
    mMade->setEnabled(control.Enabled());
    if (!control.Visible()) mMade->hide();
    return mMade;
  }

  void Visit(Button& control) override {
    auto* const button = Keep(new QPushButton(ToQt(control.Caption()), &mParent));
    button->setAutoDefault(false);
    button->setDefault(control.Role() == ButtonRole::Default);
  }
  void Visit(CheckBox& control) override {
    Keep(new QCheckBox(ToQt(control.Caption()), &mParent))->setChecked(control.IsChecked());
  }
  void Visit(ComboBox& control) override {
    auto* const combo = Keep(new QComboBox(&mParent));
    combo->setEditable(control.Style() == ComboStyle::Editable);
    for (int i = 0; i < control.ListCount(); ++i) combo->addItem(ToQt(control.List(i)));
    combo->setCurrentIndex(control.ListIndex());
    if (combo->isEditable()) combo->setEditText(ToQt(control.Text()));
  }
  void Visit(Frame& control) override { Keep(new QGroupBox(ToQt(control.Caption()), &mParent)); }
  void Visit(Label& control) override {
    Keep(new QLabel(ToQt(control.Caption()), &mParent))->setWordWrap(control.Wraps());
  }
  void Visit(ListBox&) override { Keep(new QListWidget(&mParent)); }
  void Visit(NativeArea&) override { Keep(new QWidget(&mParent)); }
  void Visit(Panel&) override { Keep(new QWidget(&mParent)); }
  void Visit(PictureBox&) override { Keep(new QFrame(&mParent))->setAutoFillBackground(true); }
  void Visit(ProgressBar&) override { Keep(new QProgressBar(&mParent))->setTextVisible(false); }
  void Visit(TabControl& control) override {
    auto* const tabs = Keep(new QTabWidget(&mParent));
    for (int i = 0; i < control.TabCount(); ++i) tabs->addTab(new QWidget, ToQt(control.TabCaption(i)));
  }
  void Visit(TreeList& control) override {
    auto* const tree = Keep(new QTreeWidget(&mParent));
    tree->setHeaderHidden(true);
    tree->setUniformRowHeights(true);
    QList<QTreeWidgetItem*> levels;
    QList<QTreeWidgetItem*> top;
    for (int row = 0; row < control.ListCount(); ++row) {
      auto* const item = new QTreeWidgetItem(QStringList(ToQt(control.Row(row).Text)));
      levels.resize(control.Row(row).Level);
      levels.isEmpty() ? top.push_back(item) : levels.back()->addChild(item);
      levels.push_back(item);
    }
    tree->addTopLevelItems(top);
    for (QTreeWidgetItem* const item : top) item->setExpanded(true);
  }
  void Visit(TextBox& control) override {
    Keep(new QLineEdit(ToQt(control.Text()), &mParent))->setReadOnly(control.Locked());
  }

 private:
  template <class Widget>
  Widget* Keep(Widget* made) {
    mMade = made;
    return made;
  }

  const Desktop& mDesktop;
  QWidget& mParent;
  QWidget* mMade = nullptr;
};

void MakeChildren(const Desktop& desktop, const Container& container, QWidget& parent) {
  auto* const tabs = qobject_cast<QTabWidget*>(&parent);
  int tab = 0;
  for (Control* const control : container.Children()) {
    QWidget* const made = tabs ? tabs->widget(tab++) : BareMaker(desktop, parent).Make(*control);
    if (const Container* const inner = control->AsContainer()) MakeChildren(desktop, *inner, *made);
  }
}

}  // namespace

std::unique_ptr<QDialog> MakeBareDialog(const Form& form) {
  auto dialog = std::make_unique<QDialog>();
  const Desktop& desktop = form.OwnerDesktop();
  dialog->setWindowTitle(ToQt(form.Caption()));
  dialog->setFixedSize(desktop.ToPixels(form.ClientSize().Width), desktop.ToPixels(form.ClientSize().Height));
  dialog->move(desktop.ToPixels(form.Left()), desktop.ToPixels(form.Top()));
  MakeChildren(desktop, form, *dialog);
  return dialog;
}

void ShowAndClose(QDialog& dialog) {
  QTimer::singleShot(0, &dialog, &QDialog::reject);
  dialog.exec();
}

}  // namespace orx::bench
