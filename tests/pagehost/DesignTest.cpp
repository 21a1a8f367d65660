// How the four page-host dialogs are drawn up, and how they look with and without a call-back.
#include "propertydialogs/frmCoordinates.h"
#include "propertydialogs/frmLabels.h"
#include "propertydialogs/frmLegend.h"
#include "propertydialogs/frmProperties.h"
#include "tests/support/PageHostTest.h"

namespace orx::test {
namespace {

struct HostCase {
  const char* Name;
  const char* Caption;
  const char* Tab;
  const char* Page;
  Size Client;
  Rect TabPlace;
  int ButtonTop;
  std::vector<int> Lefts;
  std::shared_ptr<PageHostForm> Form;
};

class PageHostDesigns : public PageHostTest {
 protected:
  std::vector<HostCase> Hosts() {
    const Size large{6465, 5670};
    const Rect tab{120, 120, 6255, 4995};
    const std::vector<int> lefts{120, 2340, 3720, 5100};
    return {{"frmProperties", "Layer Properties", "Properties", "Properties, Properties1", large, tab, 5220, lefts,
             std::make_shared<frmProperties>(desktop(), pages)},
            {"frmCoordinates", "Properties", "Coordinates", "Coordinates, Coordinates1", large, tab, 5220, lefts,
             std::make_shared<frmCoordinates>(desktop(), pages)},
            {"frmLabels", "Properties", "Labels", "LabelProperties, LabelProperties1", large, tab, 5220, lefts,
             std::make_shared<frmLabels>(desktop(), pages)},
            {"frmLegend",
             "Map Annotation Properties",
             "Legends",
             "Legends, Legends1",
             {6165, 4695},
             {120, 120, 5955, 3975},
             4200,
             {120, 2040, 3420, 4800},
             std::make_shared<frmLegend>(desktop(), pages)}};
  }
  static std::vector<int> Lefts(PageHostForm& form) {
    return {form.cmdHelp.Left(), form.cmdOK.Left(), form.cmdCancel.Left(), form.cmdApply.Left()};
  }
};

TEST_F(PageHostDesigns, CaptionsTabsPagesAndPlacesAreAsDrawn) {
  for (const HostCase& host : Hosts()) {
    SCOPED_TRACE(host.Name);
    host.Form->Load();
    EXPECT_EQ(host.Name, host.Form->Name());
    EXPECT_EQ(host.Caption, host.Form->Caption());
    EXPECT_EQ(1, host.Form->ssTab.TabCount());
    EXPECT_EQ(host.Tab, host.Form->ssTab.TabCaption(0));
    EXPECT_EQ(std::string("Pages.CreatePage(") + host.Page + ")", log.Calls[0]);
    EXPECT_EQ(host.Client, host.Form->ClientSize());
    EXPECT_EQ(host.TabPlace, host.Form->ssTab.Place());
    EXPECT_EQ(host.Lefts, Lefts(*host.Form));
    log.Calls.clear();
  }
}

TEST_F(PageHostDesigns, ButtonsShareOneRow) {
  for (const HostCase& host : Hosts())
    for (Button* button : std::initializer_list<Button*>{&host.Form->cmdHelp, &host.Form->cmdOK, &host.Form->cmdCancel,
                                                         &host.Form->cmdApply}) {
      EXPECT_EQ((Rect{button->Left(), host.ButtonTop, 1275, 375}), button->Place()) << host.Name;
      EXPECT_TRUE(button->Pinned());
    }
}

TEST_F(PageHostDesigns, ButtonsAreHelpOKCancelApplyWithTheirRoles) {
  for (const HostCase& host : Hosts()) {
    EXPECT_EQ("&Help", host.Form->cmdHelp.Caption());
    EXPECT_EQ("&OK", host.Form->cmdOK.Caption());
    EXPECT_EQ("&Cancel", host.Form->cmdCancel.Caption());
    EXPECT_EQ("&Apply", host.Form->cmdApply.Caption());
    EXPECT_EQ(&host.Form->cmdOK, host.Form->ButtonFor(ButtonRole::Default));
    EXPECT_EQ(&host.Form->cmdCancel, host.Form->ButtonFor(ButtonRole::Cancel));
  }
}

TEST_F(PageHostDesigns, WithoutACallBackApplyIsHiddenAndOKAndCancelMoveRight) {
  for (const HostCase& host : Hosts()) {
    SCOPED_TRACE(host.Name);
    host.Form->RegisterCallBack(nullptr);
    host.Form->Show(ShowMode::Modeless);
    const bool staysAsItIs = host.Name == std::string("frmLegend");
    EXPECT_EQ(staysAsItIs, user.See(host.Form->cmdApply).Visible);
    EXPECT_EQ(host.Lefts[staysAsItIs ? 1 : 2], host.Form->cmdOK.Left());
    EXPECT_EQ(host.Lefts[staysAsItIs ? 2 : 3], host.Form->cmdCancel.Left());
    EXPECT_EQ(host.Lefts[0], host.Form->cmdHelp.Left());
    host.Form->Unload();
  }
}

TEST_F(PageHostDesigns, WithoutACallBackShowingAgainMovesNothingMore) {
  const auto form = std::make_shared<frmLabels>(desktop(), pages);
  form->Show(ShowMode::Modeless);
  form->Hide();
  form->Show(ShowMode::Modeless);
  EXPECT_EQ(3720, form->cmdOK.Left());
  EXPECT_EQ(5100, form->cmdCancel.Left());
  form->Unload();
}

TEST_F(PageHostDesigns, WithACallBackAllButtonsStayWhereTheyAreDrawn) {
  for (const HostCase& host : Hosts()) {
    host.Form->RegisterCallBack(&callBack);
    host.Form->Show(ShowMode::Modeless);
    EXPECT_TRUE(user.See(host.Form->cmdApply).Visible);
    EXPECT_EQ(host.Lefts, Lefts(*host.Form));
    host.Form->Unload();
  }
}

TEST_F(PageHostDesigns, LegendApplyWithoutACallBackOnlyApplies) {
  script.ExpectForm("frmLegend", [&](Form& form) {
    log.Calls.clear();
    Press(form, "cmdApply");
    EXPECT_EQ((Calls{"Page.ApplyChanges"}), NewCalls());
    EXPECT_TRUE(form.Visible());
    Press(form, "cmdCancel");
  });
  EXPECT_EQ(0, service.ShowLegends(&object));
}

TEST_F(PageHostDesigns, FormsAreCentredAtEveryLoad) {
  const Size screen = desktop().Metrics(BorderStyle::Fixed).Screen;
  for (const HostCase& host : Hosts()) {
    for (int load = 0; load < 2; ++load) {
      host.Form->Move(15, 15);
      host.Form->Load();
      EXPECT_EQ((screen.Width - host.Form->Width()) / 2, host.Form->Left()) << host.Name;
      EXPECT_EQ((screen.Height - host.Form->Height()) / 2, host.Form->Top()) << host.Name;
      host.Form->Unload();
    }
  }
}

}  // namespace
}  // namespace orx::test
