#include "tests/layout/LayoutCheck.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "desktops/win32/Handles.h"
#include "desktops/win32/Peer.h"
#include "desktops/win32/Text.h"
#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/Desktop.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/TabControl.h"
#include "forms/TextBox.h"

namespace orx::test {
namespace {

/// The room that a text has, and the size that it needs.
struct Fit {
  SIZE Room = {};
  SIZE Need = {};
};

HWND WindowOf(const Control& control) {
  return win32::PeerOf(control)->Window();
}

SIZE ClientSize(HWND window) {
  RECT client;
  GetClientRect(window, &client);
  return {client.right, client.bottom};
}

RECT PlaceIn(HWND window, HWND outer) {
  RECT place;
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, outer, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

/// The size of a text in the window's font; as high as it becomes in `width` when that is given.
SIZE TextSize(HWND window, const std::string& text, int width = 0) {
  const win32::WindowContext context(window);
  const win32::Selection font(context.Get(), win32::Dialog::Containing(window)->Face());
  RECT place = {0, 0, width, 0};
  DrawTextW(context.Get(), win32::Widened(text).c_str(), -1, &place,
            static_cast<UINT>(DT_CALCRECT | (width ? DT_WORDBREAK : DT_SINGLELINE)));
  return {place.right, place.bottom};
}

Fit LabelFit(const Label& label) {
  const SIZE room = ClientSize(WindowOf(label));
  return {room, TextSize(WindowOf(label), label.Caption(), label.Wraps() ? static_cast<int>(room.cx) : 0)};
}

Fit CheckBoxFit(const CheckBox& box) {
  // The box itself and the gap behind it.
  const int mark = GetSystemMetrics(SM_CXMENUCHECK) + GetSystemMetrics(SM_CXEDGE);
  const SIZE client = ClientSize(WindowOf(box));
  return {{client.cx - mark, client.cy}, TextSize(WindowOf(box), box.Caption())};
}

Fit ButtonFit(const Button& button) {
  const SIZE client = ClientSize(WindowOf(button));
  const int edge = GetSystemMetrics(SM_CXEDGE) + GetSystemMetrics(SM_CXBORDER);
  return {{client.cx - 2 * edge, client.cy - 2 * edge}, TextSize(WindowOf(button), button.Caption())};
}

Fit ComboFit(const ComboBox& combo) {
  COMBOBOXINFO info = {};
  info.cbSize = sizeof(info);
  GetComboBoxInfo(WindowOf(combo), &info);
  SIZE need = TextSize(WindowOf(combo), combo.Text());
  for (int index = 0; index < combo.ListCount(); ++index) {
    const SIZE entry = TextSize(WindowOf(combo), combo.List(index));
    need = {std::max(need.cx, entry.cx), std::max(need.cy, entry.cy)};
  }
  return {{info.rcItem.right - info.rcItem.left, info.rcItem.bottom - info.rcItem.top}, need};
}

/// Lines have to fit by their height; what is longer than the field scrolls.
Fit FieldFit(const TextBox& field) {
  return {{0, ClientSize(WindowOf(field)).cy}, {0, TextSize(WindowOf(field), "Xg").cy}};
}

Fit FrameFit(const Frame& frame, const Form& form) {
  const int indent = form.OwnerDesktop().ToPixels(120);
  const SIZE client = ClientSize(WindowOf(frame));
  return {{client.cx - 2 * indent, client.cy}, TextSize(WindowOf(frame), frame.Caption())};
}

/// The strip must leave the pages free and show all its tabs at once.
Fit TabsFit(const TabControl& tabs, const Form& form) {
  const HWND window = WindowOf(tabs);
  SIZE need = {};
  for (int tab = 0; tab < tabs.TabCount(); ++tab) {
    RECT place = {};
    SendMessageW(window, TCM_GETITEMRECT, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&place));
    const SIZE text = TextSize(window, tabs.TabCaption(tab));
    need = {std::max(need.cx, std::max(place.right, place.left + text.cx)), std::max({need.cy, place.bottom, text.cy})};
  }
  return {{ClientSize(window).cx, form.OwnerDesktop().ToPixels(TabControl::kStrip)}, need};
}

/// The fit of whatever text the control shows.
Fit FitOfText(const Control& control, const Form& form) {
  if (const auto* label = dynamic_cast<const Label*>(&control)) return LabelFit(*label);
  if (const auto* field = dynamic_cast<const TextBox*>(&control)) return FieldFit(*field);
  if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) return ComboFit(*combo);
  if (const auto* tabs = dynamic_cast<const TabControl*>(&control)) return TabsFit(*tabs, form);
  if (const auto* frame = dynamic_cast<const Frame*>(&control)) return FrameFit(*frame, form);
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return CheckBoxFit(*box);
  if (const auto* button = dynamic_cast<const Button*>(&control)) return ButtonFit(*button);
  return {};
}

bool Contains(const SIZE& outer, const RECT& inner) {
  return inner.left >= 0 && inner.top >= 0 && inner.right <= outer.cx && inner.bottom <= outer.cy;
}

class Win32Layout final : public NativeLayout {
 public:
  bool IsSeen(const Control& control) const override { return IsWindowVisible(WindowOf(control)) != FALSE; }

  TextFit FitOf(const Control& control, const Form& form) const override {
    const Fit fit = FitOfText(control, form);
    return {{fit.Room.cx, fit.Room.cy}, {fit.Need.cx, fit.Need.cy}};
  }

  Rect PlaceOf(const Control& control) const override {
    const RECT place = PlaceIn(WindowOf(control), GetAncestor(WindowOf(control), GA_ROOT));
    return {place.left, place.top, place.right - place.left, place.bottom - place.top};
  }

  bool StandsInParent(const Control& control) const override {
    const HWND parent = GetAncestor(WindowOf(control), GA_PARENT);
    RECT place = PlaceIn(WindowOf(control), parent);
    // What scrolls stands partly above or below of what is seen.
    if (GetWindowLongPtrW(parent, GWL_STYLE) & WS_VSCROLL) place.top = place.bottom = 0;
    return Contains(ClientSize(parent), place);
  }

  bool CoversTitleOfParent(const Control& control) const override {
    const auto* const frame = dynamic_cast<const Frame*>(control.Parent().ContainerControl());
    if (!frame || frame->Caption().empty()) return false;
    const HWND parent = WindowOf(*frame);
    return PlaceIn(WindowOf(control), parent).top < TextSize(parent, frame->Caption()).cy;
  }
};

}  // namespace

const NativeLayout& LayoutOfDesktop() {
  static const Win32Layout layout;
  return layout;
}

}  // namespace orx::test
