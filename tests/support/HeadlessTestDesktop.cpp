// The user of the desktop without a screen: acts on the control objects.
#include <gtest/gtest.h>

#include <algorithm>

#include "desktops/headless/HeadlessDesktop.h"
#include "tests/support/User.h"
#include "text/CharacterCount.h"

namespace orx::test {
namespace {

class HeadlessUser final : public User {
 public:
  void Click(Button& button) override {
    if (button.IsReachable()) button.UserPress();
  }

  void Toggle(CheckBox& box) override {
    if (box.IsReachable()) box.UserToggle();
  }

  void ClickInto(Control& control) override {
    if (control.IsReachable()) control.OwnerForm().UserFocus(control);
  }

  void Type(TextBox& field, const std::string& text) override {
    ClickInto(field);
    if (field.HasFocus()) field.UserText(text, CharacterCount(text), 0);
  }

  void Type(ComboBox& box, const std::string& text) override {
    ClickInto(box);
    if (box.HasFocus()) box.UserText(text);
  }

  void Paste(TextBox& field, const std::string& text) override { Type(field, text); }
  void Paste(ComboBox& box, const std::string& text) override { Type(box, text); }

  void Pick(ComboBox& box, int index) override { Choose(box, index); }
  void Choose(ComboBox& box, int index) override {
    if (box.IsReachable()) box.UserPick(index);
  }

  void Choose(ListBox& box, int index) override {
    ClickInto(box);
    if (!box.HasFocus()) return;
    box.UserKeyDown(kKeyCodeHome);
    for (int below = 0; below < index; ++below) box.UserKeyDown(kKeyCodeDown);
  }
  void Click(ListBox& box, int row) override {
    if (box.IsReachable()) box.UserClick(row);
  }
  void DoubleClick(ListBox& box, int row) override {
    Click(box, row);
    if (box.IsReachable()) box.UserDoubleClick(row);
  }

  void Click(PictureBox& box) override { ClickAt(box, {box.PixelSize().Width / 2, box.PixelSize().Height / 2}); }

  void ClickAt(PictureBox& box, Point at) override {
    if (!box.IsReachable()) return;
    box.UserMouseDown(at);
    box.UserClick();
  }

  void DoubleClickAt(PictureBox& box, Point at) override {
    ClickAt(box, at);
    if (!box.IsReachable()) return;
    box.UserDoubleClick(at);
    box.UserClick();
  }

  void PressKey(Form& form, int keyCode) override {
    if (auto* const box = dynamic_cast<PictureBox*>(form.ActiveControl())) box->UserKeyDown(keyCode);
    if (auto* const list = dynamic_cast<TreeList*>(form.ActiveControl())) list->UserKeyDown(keyCode);
    if (auto* const list = dynamic_cast<ListBox*>(form.ActiveControl())) {
      list->UserKeyDown(keyCode);
      if (keyCode == kKeyCodeSpace) list->UserCharacter(U' ');
    }
  }

  void Click(TreeList& list, int row) override {
    if (list.IsReachable() && list.PositionOf(row) >= 0) list.UserClick(row);
  }

  void Fold(TreeList& list, int row) override {
    if (list.IsReachable() && list.PositionOf(row) >= 0) list.UserFold(row);
  }

  void TypeCharacters(Form& form, const std::string& text) override {
    for (const char character : text) {
      const auto letter = static_cast<unsigned char>(character);
      if (auto* const list = dynamic_cast<TreeList*>(form.ActiveControl())) list->UserCharacter(letter);
      if (auto* const list = dynamic_cast<ListBox*>(form.ActiveControl())) list->UserCharacter(letter);
    }
  }

  void DragFromBottom(Form& form, int above, int by) override {
    const Desktop& desktop = form.OwnerDesktop();
    const Size client = form.ClientSize();
    const Point at{desktop.ToPixels(client.Width / 2), desktop.ToPixels(client.Height) - above};
    form.UserMouseMove(at);
    form.UserMouseDown(at);
    // Nobody but the form says whether the press has taken hold of the edge.
    if (desktop.Pointer() == Pointer::SizeNS)
      form.UserResize({client.Width, std::max(0, client.Height + desktop.ToTwips(by))});
    form.UserMouseMove({at.X, 0});
  }

  void SelectTab(TabControl& tabs, int tab) override {
    if (tabs.IsReachable()) tabs.UserSelect(tab);
  }

  void Press(Form& form, const KeyStroke& stroke) override { form.UserKey(stroke); }

  void CloseBox(Form& form) override { form.UserClose(); }

  void PickFiles(OpenFileRequest& request, const Picked& files) override {
    if (files.Filter != 0) request.FilterIndex = files.Filter;
    PutAnswer(request, files.Folder, files.Names);
    request.LastFolder = files.Folder;
  }

  void CancelFiles(OpenFileRequest&) override {}

  void PickColor(ColorRequest& request, Color color) override { request.Answer = color; }
  void CancelColor(ColorRequest& request) override { request.Answer.reset(); }

  void PickFont(FontRequest& request, const ColoredFont& font) override { request.Answer = font; }
  void CancelFont(FontRequest& request) override { request.Answer.reset(); }

  void AnswerMessage(const Modal& box, MessageAnswer answer) override { *box.Answer = answer; }

  Seen See(Control& control) override {
    Seen seen{control.IsShown(), control.IsReachable(), control.HasFocus(), WithoutMnemonic(control.Caption()), 0};
    if (auto* text = dynamic_cast<TextBox*>(&control)) seen.Text = text->Text();
    if (auto* box = dynamic_cast<CheckBox*>(&control)) seen.Value = static_cast<int>(box->Value());
    if (auto* combo = dynamic_cast<ComboBox*>(&control)) seen.Text = combo->Text();
    if (auto* bar = dynamic_cast<ProgressBar*>(&control)) seen.Value = bar->FilledPixels();
    if (auto* list = dynamic_cast<ListControl*>(&control)) seen.Value = list->ListIndex();
    if (auto* list = dynamic_cast<ListBox*>(&control))
      seen.Text = list->ListIndex() < 0 ? std::string() : list->List(list->ListIndex());
    if (auto* list = dynamic_cast<TreeList*>(&control)) {
      seen.Value = list->ListIndex();
      seen.Text = list->ListIndex() < 0 ? std::string() : list->Row(list->ListIndex()).Text;
    }
    if (auto* tabs = dynamic_cast<TabControl*>(&control)) {
      seen.Text = WithoutMnemonic(tabs->TabCaption(tabs->Tab()));
      seen.Value = tabs->Tab();
    }
    return seen;
  }

  std::vector<std::string> SeeRows(TreeList& list) override {
    std::vector<std::string> texts;
    for (int i = 0; i < list.ShownCount(); ++i) texts.push_back(list.Row(list.ShownRow(i)).Text);
    return texts;
  }
  bool SeesRow(TreeList& list, int row) override { return list.PositionOf(row) >= 0; }

  std::set<int> SeeSelected(ListBox& box) override { return box.SelectedRows(); }
  bool SeesRow(ListBox& box, int row) override { return row >= 0 && row < box.ListCount(); }

  std::string SeeCaption(Form& form) override { return form.Caption(); }
};

class HeadlessTestDesktop final : public TestDesktop {
 public:
  Desktop& Get() override { return mDesktop; }
  User& Person() override { return mUser; }
  bool IsQuick() const override { return true; }
  void Separators(const numbers::Separators& value) override { mDesktop.Separators(value); }

 private:
  headless::HeadlessDesktop mDesktop;
  HeadlessUser mUser;
};

}  // namespace

std::unique_ptr<TestDesktop> MakeTestDesktop() {
  return std::make_unique<HeadlessTestDesktop>();
}

}  // namespace orx::test
