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
  bool Holds() const { return Need.cx <= Room.cx && Need.cy <= Room.cy; }
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
  const win32::Selection font(context.Get(), win32::Dialog::Around(window)->Face());
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
Fit TextFit(const Control& control, const Form& form) {
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

class LayoutInspector {
 public:
  explicit LayoutInspector(const Form& form) : mForm(form) { Inspect(form, form.Name()); }

  std::vector<std::string> Problems;

 private:
  static std::string Describe(SIZE size) { return std::to_string(size.cx) + " x " + std::to_string(size.cy); }

  void Inspect(const Container& container, const std::string& path) {
    std::vector<Control*> seen;
    for (Control* const control : container.Children())
      if (IsWindowVisible(WindowOf(*control))) seen.push_back(control);
    for (Control* const control : seen) {
      const std::string name = path + "." + control->Name();
      InspectText(*control, name);
      InspectPlace(*control, name);
      InspectNeighbours(*control, name, seen);
      if (const Container* const inner = control->AsContainer()) Inspect(*inner, name);
    }
  }

  void InspectText(const Control& control, const std::string& name) {
    const Fit fit = TextFit(control, mForm);
    if (!fit.Holds())
      Problems.push_back(name + ": text needs " + Describe(fit.Need) + " and has " + Describe(fit.Room));
  }

  void InspectPlace(const Control& control, const std::string& name) {
    const HWND parent = GetAncestor(WindowOf(control), GA_PARENT);
    RECT place = PlaceIn(WindowOf(control), parent);
    // What scrolls stands partly above or below of what is seen.
    if (GetWindowLongPtrW(parent, GWL_STYLE) & WS_VSCROLL) place.top = place.bottom = 0;
    if (!Contains(ClientSize(parent), place)) Problems.push_back(name + ": stands outside of its parent");
    const auto* const frame = dynamic_cast<const Frame*>(control.Parent().ContainerControl());
    if (frame && !frame->Caption().empty() && place.top < TextSize(parent, frame->Caption()).cy)
      Problems.push_back(name + ": covers the title of its frame");
  }

  void InspectNeighbours(const Control& control, const std::string& name, const std::vector<Control*>& seen) {
    const HWND root = GetAncestor(WindowOf(control), GA_ROOT);
    for (const Control* const other : seen) {
      if (other == &control) return;
      const RECT one = PlaceIn(WindowOf(control), root);
      const RECT two = PlaceIn(WindowOf(*other), root);
      RECT common;
      // Pinned controls may cover what is scrolled away below them.
      if (control.Pinned() == other->Pinned() && IntersectRect(&common, &one, &two))
        Problems.push_back(name + ": stands upon " + other->Name());
    }
  }

  const Form& mForm;
};

}  // namespace

std::vector<std::string> LayoutProblems(const Form& form) {
  return LayoutInspector(form).Problems;
}

}  // namespace orx::test
