#include "tests/layout/LayoutCheck.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleOption>
#include <QTabBar>
#include <QTabWidget>

#include "desktops/qt/Peer.h"
#include "desktops/qt/Text.h"
#include "forms/TabControl.h"

namespace orx::test {
namespace {

/// The room that a text has, and the size that it needs.
struct Fit {
  QSize Room;
  QSize Need;
};

QSize TextSize(const QWidget& widget, const QString& text) {
  return widget.fontMetrics().size(Qt::TextSingleLine | Qt::TextShowMnemonic, text);
}

template <class Option>
Option OptionOf(const QWidget& widget) {
  Option option;
  option.initFrom(&widget);
  return option;
}

QSize PartSize(const QWidget& widget, QStyle::SubElement part) {
  const auto option = OptionOf<QStyleOptionButton>(widget);
  return widget.style()->subElementRect(part, &option, &widget).size();
}

Fit LabelFit(const QLabel& label, const QString& caption) {
  if (!label.wordWrap()) return {label.size(), TextSize(label, caption)};
  return {label.size(), {0, label.heightForWidth(label.width())}};
}

Fit ComboFit(const QComboBox& combo) {
  auto option = OptionOf<QStyleOptionComboBox>(combo);
  option.editable = combo.isEditable();
  QSize need = TextSize(combo, combo.currentText());
  for (int index = 0; index < combo.count(); ++index) need = need.expandedTo(TextSize(combo, combo.itemText(index)));
  return {combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo).size(),
          need};
}

/// The part of a group box that its title takes.
QRect TitlePlace(const QGroupBox& box) {
  auto option = OptionOf<QStyleOptionGroupBox>(box);
  option.text = box.title();
  option.subControls = QStyle::SC_GroupBoxLabel | QStyle::SC_GroupBoxFrame;
  option.textAlignment = Qt::AlignLeft;
  return box.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &box);
}

/// The strip must leave the pages free and show all its tabs at once.
Fit TabsFit(const QTabWidget& tabs, const Form& form) {
  const QTabBar& bar = *tabs.tabBar();
  QSize need(bar.sizeHint().width(), bar.height());
  for (int tab = 0; tab < bar.count(); ++tab) need = need.expandedTo({0, TextSize(bar, bar.tabText(tab)).height()});
  return {{tabs.width(), form.OwnerDesktop().ToPixels(TabControl::kStrip)}, need};
}

Fit FieldFit(const QLineEdit& field) {
  const auto option = OptionOf<QStyleOptionFrame>(field);
  const int frame = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
  return {{0, field.height() - 2 * frame}, {0, field.fontMetrics().height()}};
}

/// The fit of whatever text the widget shows, or would show if it had the room.
Fit FitOfText(const QWidget& widget, const QString& caption, const Form& form) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return LabelFit(*label, caption);
  if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) return FieldFit(*field);
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return ComboFit(*combo);
  if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) return TabsFit(*tabs, form);
  if (const auto* box = qobject_cast<const QGroupBox*>(&widget))
    return {box->size() - QSize(TitlePlace(*box).left(), 0), TextSize(*box, box->title())};
  if (const auto* box = qobject_cast<const QCheckBox*>(&widget))
    return {PartSize(*box, QStyle::SE_CheckBoxContents), TextSize(*box, caption)};
  if (const auto* button = qobject_cast<const QPushButton*>(&widget))
    return {PartSize(*button, QStyle::SE_PushButtonContents),
            TextSize(*button, button->text().isEmpty() ? QString() : caption)};
  return {};
}

QWidget& WidgetOf(const Control& control) {
  return qt::PeerOf(control)->Widget();
}

class QtLayout final : public NativeLayout {
 public:
  bool IsSeen(const Control& control) const override { return WidgetOf(control).isVisible(); }

  TextFit FitOf(const Control& control, const Form& form) const override {
    const Fit fit = FitOfText(WidgetOf(control), qt::ToQt(control.Caption()), form);
    return {{fit.Room.width(), fit.Room.height()}, {fit.Need.width(), fit.Need.height()}};
  }

  Rect PlaceOf(const Control& control) const override {
    const QWidget& widget = WidgetOf(control);
    const QPoint corner = widget.mapTo(widget.window(), QPoint());
    return {corner.x(), corner.y(), widget.width(), widget.height()};
  }

  bool StandsInParent(const Control& control) const override {
    const QWidget& widget = WidgetOf(control);
    return widget.parentWidget()->rect().contains(widget.geometry());
  }

  bool CoversTitleOfParent(const Control& control) const override {
    const QWidget& widget = WidgetOf(control);
    const auto* const box = qobject_cast<const QGroupBox*>(widget.parentWidget());
    return box && !box->title().isEmpty() && TitlePlace(*box).intersects(widget.geometry());
  }
};

}  // namespace

const NativeLayout& LayoutOfDesktop() {
  static const QtLayout layout;
  return layout;
}

}  // namespace orx::test
