// The fixture for the property pages: each dialog of the service over the map library's pages and recorded objects.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/PictureBox.h"
#include "pages/PageFactory.h"
#include "service/CCommonMapDialogs.h"
#include "tests/maplibrary/pages/RecordedObjects.h"
#include "tests/support/DesktopTest.h"
#include "text/CharacterCount.h"

namespace orx::test {

using Calls = std::vector<std::string>;

/// A page alone on a tab, for what no dialog does to it.
struct PageForm final : Form {
  PageForm(Desktop& desktop, PageKind kind)
      : Form(desktop, "frmPage", {.Caption = "Page", .Client = {6465, 5670}}),
        Page(pages::PageFactory().CreatePage(kind, {Tabs.Page(0), "Page1", {0, 0, 6135, 4545}})) {}

  TabControl Tabs{*this, "ssTab", {.Place = {120, 120, 6255, 4995}}, {"Page"}};
  Button cmdOK{*this, "cmdOK", {.Caption = "&OK", .Place = {2340, 5220, 1275, 375}}, ButtonRole::Default};
  std::unique_ptr<PropertyPage> Page;
};

/// Has a page offer all that it can ask for; nothing comes of it.
inline void HandleAllRequests(PropertyPage& page) {
  page.CharacterRequested = [](CharacterRequest&) {};
  page.BrowseRequested = [](BrowseRequest&) {};
  page.ClassifyRequested = [](ClassifyRequest&) {};
  page.OptionsRequested = [](DataRequest&) {};
  page.ShadeRequested = [](DataRequest&) {};
  page.IsolineRequested = [](DataRequest&) {};
  page.DataStyleRequested = [] {};
  page.ColorsRequested = [](ILanguage*) {};
  page.GeoreferenceRequested = [](GeoreferenceRequest&) {};
}

/// Hears what a dialog tells its host, so that Apply is shown.
class SilentCallBack final : public IDialogCallBack {
 public:
  void ApplyNotify(bool changed) override { Applied.push_back(changed); }
  void CancelNotify(bool) override {}
  void OKNotify(bool changed) override { Confirmed.push_back(changed); }
  std::int32_t RegisterNotify() override { return 0; }

  std::vector<bool> Applied;
  std::vector<bool> Confirmed;
};

class PagesTest : public DesktopTest {
 protected:
  PagesTest() { service.CallBack(&callBack); }

  /// The control of that name in the form at hand.
  template <class Kind>
  Kind& Get(const std::string& name) {
    return dynamic_cast<Kind&>(*form->Find(name));
  }
  TextBox& Field(const std::string& name) { return Get<TextBox>(name); }
  std::string Seen(const std::string& name) { return user.See(*form->Find(name)).Text; }
  bool IsEnabled(const std::string& name) { return user.See(*form->Find(name)).Enabled; }
  void Type(const std::string& field, const std::string& text) { user.Type(Field(field), text); }
  void Choose(const std::string& box, int index) { user.Choose(Get<ComboBox>(box), index); }
  void Toggle(const std::string& box) { user.Toggle(Get<CheckBox>(box)); }
  void Press(const std::string& button) { user.Click(Get<Button>(button)); }

  /// Expects the dialog, where the user does `acts`; OK follows when they leave the dialog open.
  template <class Acts>
  void InDialog(const std::string& name, Acts acts) {
    script.ExpectForm(name, [this, acts](Form& shown) {
      form = &shown;
      acts();
      if (shown.Visible()) Press("cmdOK");
      form = nullptr;
    });
  }
  void ExpectRefusal(const std::string& title, const std::string& text) {
    script.ExpectMessage({text, title, MessageIcon::Exclamation});
  }
  /// The user types into the field and presses OK; the entry is refused, the press dropped, and the field is as before.
  void ExpectRefused(const std::string& field, const std::string& text) {
    const std::string before = Seen(field);
    Type(field, text);
    Press("cmdOK");
    EXPECT_TRUE(form->Visible());
    EXPECT_EQ(before, Seen(field));
    EXPECT_TRUE(user.See(Field(field)).Focused);
    EXPECT_EQ(CharacterCount(before), Field(field).SelLength());
  }

  std::shared_ptr<PageForm> MakePage(PageKind kind) {
    auto made = std::make_shared<PageForm>(desktop(), kind);
    form = made.get();
    return made;
  }

  pages::PageFactory pages;
  SilentCallBack callBack;
  CCommonMapDialogs service{desktop(), pages};
  RecordedLayer layer;
  Form* form = nullptr;
};

}  // namespace orx::test
