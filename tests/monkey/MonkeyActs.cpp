// What the monkey does with each kind of control, with keys and windows.
#include <algorithm>
#include <limits>

#include "forms/Keys.h"
#include "tests/monkey/Monkey.h"

namespace orx::test {
namespace {

const std::string kTexts[] = {"",
                              " ",
                              "0",
                              "1",
                              "7",
                              "12.5",
                              "50",
                              "100",
                              "1,5",
                              "1.5.2",
                              "-1",
                              "-0",
                              "1e309",
                              "-1E-400",
                              "1e5",
                              "nan",
                              "inf",
                              "&HFFFFFFFF",
                              "2147483648",
                              "-2147483649",
                              "99999999999999999999",
                              "&&&",
                              "%s%n%d",
                              "a\"b'c\\d/e",
                              "\xC3\xA9\xCC\x82\xF0\x9F\x98\x80",
                              "\xD9\xA1\xD9\xA2",
                              "0.0000000000000000000000001",
                              std::string(300, 'x')};

constexpr int kKeyCodes[] = {kKeyCodeShift, kKeyCodeSpace, kKeyCodePageUp, kKeyCodePageDown, kKeyCodeEnd,
                             kKeyCodeHome,  kKeyCodeLeft,  kKeyCodeUp,     kKeyCodeRight,    kKeyCodeDown,
                             kKeyCodePlus,  kKeyCodeMinus, kKeyCodeF1,     kKeyCodeDelete};

/// Decimal and group separators, also such that no number can be read with.
const numbers::Separators kLocales[] = {
    {".", ",", "$"}, {",", ".", "\xE2\x82\xAC"}, {",", "\xC2\xA0", "kr"}, {".", "'", "CHF"}};

bool IsOneOf(const Control& control, std::initializer_list<const char*> names) {
  return std::ranges::any_of(names, [&](const char* name) { return control.Name() == name; });
}

bool IsEnding(const Control& control) {
  return IsOneOf(control, {"cmdOK", "cmdCancel", "cmdCancelAll"});
}

/// Buttons that write to the host's objects by themselves.
bool IsWriting(const Control& control) {
  return IsOneOf(control, {"cmdOK", "cmdApply", "cmdAdd", "cmdUp", "cmdDown", "cmdRemove"});
}

bool IsWorkable(const Control& control) {
  return control.TakesFocus() || dynamic_cast<const PictureBox*>(&control);
}

/// Rows far down take the user many keys.
constexpr int kFewRows = 12;

}  // namespace

void Monkey::Pressing(const Control* control) {
  ++mEndings;
  if (control && IsWriting(*control)) ++mWritings;
}

void Monkey::Do(Form& form, const Act& act) {
  const std::string& text = kTexts[act.How % std::size(kTexts)];
  switch (act.What) {
    case Deed::Work:
      return Work(form, act);
    case Deed::TypeHere:
      Say("types \"" + text + "\"");
      // A blank presses a button.
      Pressing(form.ActiveControl());
      return mUser.TypeCharacters(form, text);
    case Deed::PressKey:
      return PressKey(form, act);
    case Deed::DialogKey:
      return PressDialogKey(form, act);
    case Deed::Mnemonic:
      return PressMnemonic(form, act);
    case Deed::CloseBox:
      Say("closes it");
      Pressing(nullptr);
      return mUser.CloseBox(form);
    case Deed::CloseBehind:
      return CloseBehind(form, act);
    case Deed::Size:
      return Size(form, act);
    case Deed::Move:
      Say("moves it");
      return form.Move(act.AnyWith(60000) - 20000, act.AnyHow(60000) - 20000);
    case Deed::Wait:
      Say("waits");
      return mHost.Screen.ProcessPendingEvents();
    case Deed::SwitchLocale:
      Say("switches the locale");
      return mScreen.Separators(kLocales[act.How % std::size(kLocales)]);
    case Deed::SwitchLanguage:
      return SwitchLanguage(act);
    case Deed::HostFails:
      return HostFails(act);
    case Deed::HostChanges:
      return HostChanges(act);
  }
}

void Monkey::Work(Form& form, const Act& act) {
  std::vector<Control*> controls = form.All();
  std::erase_if(controls, [](const Control* control) { return !control->IsReachable() || !IsWorkable(*control); });
  if (controls.empty()) return Say("finds nothing to work on");
  Control& control = *controls[act.With % controls.size()];
  const std::string& text = kTexts[act.How % std::size(kTexts)];
  Say("works on " + control.Name());
  if (auto* const button = dynamic_cast<Button*>(&control)) return WorkOn(*button, act);
  if (auto* const box = dynamic_cast<CheckBox*>(&control)) return mUser.Toggle(*box);
  // The others are worked on in several steps, the first of which may close the form. The user does not look before
  // each.
  const Form::Act keep(form);
  if (auto* const field = dynamic_cast<TextBox*>(&control))
    return Say("types \"" + text + "\""), mUser.Type(*field, text);
  if (auto* const box = dynamic_cast<ComboBox*>(&control)) return WorkOn(*box, act);
  if (auto* const box = dynamic_cast<ListBox*>(&control)) return WorkOn(*box, act);
  if (auto* const list = dynamic_cast<TreeList*>(&control)) return WorkOn(*list, act);
  if (auto* const box = dynamic_cast<PictureBox*>(&control)) return WorkOn(*box, act);
  if (auto* const tabs = dynamic_cast<TabControl*>(&control))
    return mUser.SelectTab(*tabs, act.AnyHow(tabs->TabCount()));
}

void Monkey::WorkOn(Button& button, const Act& act) {
  // Else sessions would be over soon.
  if (IsEnding(button) && act.AnyHow(4) > 0) return Say("and leaves it alone");
  Pressing(&button);
  mUser.Click(button);
}

void Monkey::WorkOn(ComboBox& box, const Act& act) {
  const std::string& text = kTexts[act.How % std::size(kTexts)];
  if (box.Style() == ComboStyle::Editable && act.AnyHow(3) > 0) return mUser.Type(box, text);
  if (box.ListCount() > 0) mUser.Choose(box, std::min(act.AnyHow(box.ListCount()), kFewRows));
}

void Monkey::WorkOn(ListBox& box, const Act& act) {
  if (box.ListCount() == 0) return;
  const int row = act.AnyHow(box.ListCount());
  switch (act.AnyHow(7)) {
    case 0:
      // An entry that is clicked twice is chosen.
      Pressing(box.OwnerForm().Find("cmdOK"));
      return mUser.DoubleClick(box, row);
    case 1:
    case 2:
      return mUser.Choose(box, std::min(row, kFewRows));
    default:
      return mUser.Click(box, row);
  }
}

void Monkey::WorkOn(TreeList& list, const Act& act) {
  if (list.ListCount() == 0) return;
  const int row = act.AnyHow(list.ListCount());
  if (act.AnyHow(4) == 0) return mUser.Fold(list, row);
  mUser.Click(list, row);
}

void Monkey::WorkOn(PictureBox& box, const Act& act) {
  const orx::Size size = box.PixelSize();
  if (size.Width < 1 || size.Height < 1) return;
  const Point at{act.AnyHow(size.Width), static_cast<int>(act.How >> 16) % size.Height};
  if (act.AnyHow(5) > 0) return mUser.ClickAt(box, at);
  Pressing(box.OwnerForm().Find("cmdOK"));
  mUser.DoubleClickAt(box, at);
}

void Monkey::PressDialogKey(Form& form, const Act& act) {
  constexpr int kKinds = 12;
  const int kind = act.AnyHow(kKinds);
  if (kind == 0) {
    Say("presses Enter");
    const auto* const focused = dynamic_cast<Button*>(form.ActiveControl());
    Pressing(focused ? focused : form.ButtonFor(ButtonRole::Default));
    return mUser.Press(form, kEnter);
  }
  if (kind == 1) {
    Say("presses Escape");
    Pressing(form.ButtonFor(ButtonRole::Cancel));
    return mUser.Press(form, kEscape);
  }
  constexpr Key kOthers[] = {Key::Help, Key::NextTab, Key::PreviousTab};
  if (kind >= kKinds - static_cast<int>(std::size(kOthers))) {
    Say("presses F1, Ctrl+Page Down or Ctrl+Page Up");
    return mUser.Press(form, {kOthers[kKinds - 1 - kind]});
  }
  Say("presses Tab");
  mUser.Press(form, kind % 2 == 0 ? kTab : kShiftTab);
}

void Monkey::PressMnemonic(Form& form, const Act& act) {
  std::vector<Control*> controls = form.All();
  std::erase_if(controls, [](const Control* control) { return control->Mnemonic() == 0; });
  const char32_t letter = controls.empty() ? U'x' : controls[act.With % controls.size()]->Mnemonic();
  Say(std::string("presses Alt+") + static_cast<char>(letter));
  // Several may have it.
  const auto ends = [letter](const Control* control) { return control->Mnemonic() == letter && IsEnding(*control); };
  if (std::ranges::any_of(controls, ends) && act.AnyHow(4) > 0) return Say("and does not");
  for (const Control* const control : controls)
    if (control->Mnemonic() == letter) Pressing(control);
  mUser.Press(form, AltKey(letter));
}

void Monkey::PressKey(Form& form, const Act& act) {
  const int key = kKeyCodes[act.How % std::size(kKeyCodes)];
  Say("presses key " + std::to_string(key));
  if (key == kKeyCodeSpace) Pressing(form.ActiveControl());
  // In the layer list it is as good as the button.
  if (key == kKeyCodeDelete) Pressing(form.Find("cmdRemove"));
  mUser.PressKey(form, key);
}

void Monkey::Size(Form& form, const Act& act) {
  const Desktop& desktop = form.OwnerDesktop();
  constexpr int kFromEdge = 2;
  if (act.AnyWith(2) == 0) {
    Say("leaves the mouse at its lower edge");
    form.UserMouseMove({1, desktop.ToPixels(form.ShownClientSize().Height) - kFromEdge});
  } else if (form.Border() == BorderStyle::SizableHeight) {
    constexpr int kFarthest = 300;
    Say("drags its lower edge");
    mUser.DragFromBottom(form, kFromEdge, act.AnyHow(2 * kFarthest) - kFarthest);
  }
}

void Monkey::CloseBehind(const Form& form, const Act& act) {
  if (mForms.empty()) return;
  const std::shared_ptr<Form> behind = mForms[act.With % mForms.size()]->shared_from_this();
  if (behind.get() == &form || !behind->Visible()) return;
  Say("closes " + behind->Name() + " behind it");
  mUser.CloseBox(*behind);
  if (!behind->Visible()) Complain(behind->Name() + " was closed behind " + form.Name());
}

}  // namespace orx::test
