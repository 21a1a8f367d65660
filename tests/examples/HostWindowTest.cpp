// The demo's window: its list of layers, its buttons, its languages, and the work that it does itself.
#include "tests/examples/HostWindowTest.h"

#include <utility>

namespace orx::test {
namespace {

TEST_F(ExamplesHost, ListsTheMapItsLayersAndTheirTiles) {
  std::vector<std::string> names;
  for (int i = 0; i < window->cboLayer.ListCount(); ++i) names.push_back(window->cboLayer.List(i));
  ASSERT_EQ(7U, names.size());
  EXPECT_EQ((std::vector<std::string>{"Whole map", "Terrain", "Quarters"}),
            (std::vector<std::string>{names.begin(), names.begin() + 3}));
  EXPECT_TRUE(names[3].starts_with("Quarters / "));
  EXPECT_EQ("Terrain", user.See(window->cboLayer).Text);
}

TEST_F(ExamplesHost, LayersWithoutDataHaveNoClasses) {
  for (const int entry : {0, 2}) {
    user.Choose(window->cboLayer, entry);
    EXPECT_FALSE(user.See(Get<Button>(*window, "cmdClassify")).Enabled) << entry;
    EXPECT_FALSE(user.See(Get<Button>(*window, "cmdOptions")).Enabled) << entry;
  }
  user.Choose(window->cboLayer, 3);
  EXPECT_TRUE(user.See(Get<Button>(*window, "cmdClassify")).Enabled);
}

TEST_F(ExamplesHost, TheWholeMapHasCoordinatesAndLegendsOnly) {
  user.Choose(window->cboLayer, 0);
  EXPECT_FALSE(user.See(Get<Button>(*window, "cmdProperties")).Enabled);
  EXPECT_FALSE(user.See(Get<Button>(*window, "cmdSymbol")).Enabled);
  EXPECT_FALSE(user.See(Get<Button>(*window, "cmdLabels")).Enabled);
  EXPECT_TRUE(user.See(Get<Button>(*window, "cmdCoordinates")).Enabled);
  EXPECT_TRUE(user.See(Get<Button>(*window, "cmdLegends")).Enabled);
}

TEST_F(ExamplesHost, DialogsKeptOpenReportToTheLogUntilTheyAreClosed) {
  user.Toggle(window->chkModeless);
  Press(user, *window, "cmdLabels");
  EXPECT_EQ("Labels of Terrain: open", LastLine());
  EXPECT_TRUE(window->Visible());
}

TEST_F(ExamplesHost, TheLanguageChangesTheWindowAndItsDialogsAndBack) {
  const auto indexOf = [this](const std::string& language) {
    int index = 0;
    while (window->cboLanguage.List(index) != language) ++index;
    return index;
  };
  user.Choose(window->cboLanguage, indexOf("Deutsch"));
  EXPECT_EQ("Eigenschaften...", user.See(Get<Button>(*window, "cmdProperties")).Text);
  script.ExpectForm("frmProperties", [&](Form& shown) {
    EXPECT_EQ("Ebeneneigenschaften", user.SeeCaption(shown));
    user.CloseBox(shown);
  });
  Press(user, *window, "cmdProperties");
  user.Choose(window->cboLanguage, 0);
  EXPECT_EQ("Properties...", user.See(Get<Button>(*window, "cmdProperties")).Text);
}

TEST_F(ExamplesHost, EveryTextOfTheWindowIsTranslated) {
  for (Control* control : window->All()) {
    const std::string& caption = control->Caption();
    if (caption.empty()) continue;
    // The first one is English.
    for (int language = 1; language < window->cboLanguage.ListCount(); ++language)
      EXPECT_NE(caption, languages.Language(language)->TranslateText(caption)) << language << ": " << control->Name();
  }
}

TEST_F(ExamplesHost, TheMapFillsTheWindowWhateverItsSize) {
  const Rect before = window->pctMap.Place();
  window->ClientSize({window->ClientSize().Width + 1500, window->ClientSize().Height + 1500});
  EXPECT_EQ(before.Width + 1500, window->pctMap.Place().Width);
  EXPECT_EQ(before.Height + 1500, window->pctMap.Place().Height);
}

TEST_F(ExamplesHost, AddsALayerThatTheUserChooses) {
  TestFolder folder;
  std::ofstream(std::filesystem::path(folder.PathOf("small.asc")))
      << "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1\n1 2 3 4\n";
  script.ExpectFiles([&](OpenFileRequest& request) { user.PickFiles(request, {folder.Path(), {"small.asc"}, 3}); });
  Press(user, *window, "cmdAddLayer");
  EXPECT_EQ(3, map->LayerCount());
  EXPECT_EQ("Added small", LastLine());
  EXPECT_EQ("small", window->cboLayer.List(window->cboLayer.ListCount() - 1));
}

TEST_F(ExamplesHost, ALayerThatCannotBeReadIsToldAndTheMapStaysAsItWas) {
  TestFolder folder;
  folder.Add("broken.shp");
  script.ExpectFiles([&](OpenFileRequest& request) { user.PickFiles(request, {folder.Path(), {"broken.shp"}, 1}); });
  script.ExpectMessage({"broken.shp: is no shape file.", "Map", MessageIcon::Exclamation});
  Press(user, *window, "cmdAddLayer");
  EXPECT_EQ(2, map->LayerCount());
}

TEST_F(ExamplesHost, JumpsToTheLayerThatTheUserChoosesFromTheList) {
  script.ExpectForm("frmListSelection", [&](Form& shown) {
    auto& list = Get<ListBox>(shown, "lstSingleSelect");
    EXPECT_EQ(6, list.ListCount());
    EXPECT_EQ("Terrain", user.See(list).Text);
    user.DoubleClick(list, 1);
  });
  Press(user, *window, "cmdJump");
  EXPECT_EQ("Quarters", user.See(window->cboLayer).Text);
  EXPECT_EQ("Jump to layer: Quarters", LastLine());
  script.ExpectForm("frmListSelection", [&](Form& shown) { Press(user, shown, "cmdCancel"); });
  Press(user, *window, "cmdJump");
  EXPECT_EQ("Quarters", user.See(window->cboLayer).Text);
  EXPECT_EQ("Jump to layer: nothing chosen", LastLine());
}

TEST_F(ExamplesHost, ShowsAndHidesTheChosenLayersAfterAQuestion) {
  const auto isVisible = [this](std::int32_t index) { return QueryKind<ILayer>(map->Layer(index))->Visible(); };
  const std::size_t before = Drawn().size();
  const auto choose = [&](MessageAnswer answer) {
    script.ExpectForm("frmListSelection", [&, answer](Form& shown) {
      user.Click(Get<ListBox>(shown, "lstMultiSelect"), 1);
      script.ExpectMessage({"Show what is hidden, and hide what is shown?", "Show or hide layers",
                            MessageIcon::Exclamation, MessageButtons::YesNo},
                           answer);
      Press(user, shown, "cmdOK");
      if (shown.Visible()) Press(user, shown, "cmdCancel");
    });
    Press(user, *window, "cmdShowHide");
  };
  choose(MessageAnswer::No);
  EXPECT_TRUE(isVisible(1) && !isVisible(2));
  EXPECT_EQ("Show or hide: nothing chosen", LastLine());
  // The terrain, which the window is about, was selected at first; the quarters were hidden.
  choose(MessageAnswer::Yes);
  EXPECT_TRUE(!isVisible(1) && isVisible(2));
  EXPECT_NE(before, Drawn().size());
  EXPECT_EQ("Quarters: shown", LastLine());
  choose(MessageAnswer::Yes);
  EXPECT_TRUE(isVisible(1) && !isVisible(2));
  EXPECT_EQ(before, Drawn().size());
}

TEST_F(ExamplesHost, TheTabKeyWalksTheButtonsAsTheyStandRowByRow) {
  user.Choose(window->cboLayer, 1);
  std::pair above{0, 0};
  for (const maphost::DialogButton& button : window->Buttons) {
    user.Press(*window, kTab);
    EXPECT_EQ(&button.Face, window->ActiveControl()) << button.Face.Name();
    const std::pair place{button.Face.Top(), button.Face.Left()};
    EXPECT_LT(std::exchange(above, place), place) << button.Face.Name();
  }
}

TEST_F(ExamplesHost, NothingOverlapsInTheLowestWindow) {
  window->ClientSize({9000, 6000});
  EXPECT_GE(window->txtLog.Top(), window->cboLanguage.Place().Bottom());
  EXPECT_GT(window->txtLog.Place().Height, 600);
}

TEST_F(ExamplesHost, AsksForALayerWhoseFileIsGone) {
  script.ExpectForm("frmMsgBox", [&](Form& shown) { Press(user, shown, "cmdCancelAll"); });
  Press(user, *window, "cmdLost");
  EXPECT_EQ("Missing file: all skipped", LastLine());
}

TEST_F(ExamplesHost, TheContoursOfALargeAreaAreCounted) {
  window->TilesAcross(1);
  Press(user, *window, "cmdContours");
  EXPECT_EQ(1U, desktop().OpenForms().size());
  const auto numberAfter = [line = LastLine()](const std::string& mark) {
    return std::stoul(line.substr(line.find(mark) + mark.size()));
  };
  EXPECT_TRUE(LastLine().starts_with("Contours of Terrain: ")) << LastLine();
  EXPECT_TRUE(LastLine().ends_with(" points")) << LastLine();
  EXPECT_GT(numberAfter("Terrain: "), 100U);
  EXPECT_GT(numberAfter("lines, "), 10000U);
}

TEST_F(ExamplesHost, CancelStopsTheContoursAndTheWindowWaitsMeanwhile) {
  int acts = 0;
  script.WhenEventsPend = [&] {
    // As soon as the first level has been counted.
    if (desktop().OpenForms().size() < 2 || window->Enabled()) return;
    Form& progress = *desktop().OpenForms().back();
    if (Get<ProgressBar>(progress, "prgBar").Value() < 1 || acts++ > 0) return;
    Press(user, *window, "cmdSettings");
    user.CloseBox(*window);
    Press(user, progress, "cmdCancel");
  };
  Press(user, *window, "cmdContours");
  EXPECT_GE(acts, 1);
  EXPECT_TRUE(LastLine().starts_with("Contours of Terrain: ")) << LastLine();
  EXPECT_TRUE(LastLine().ends_with(", cancelled")) << LastLine();
  EXPECT_TRUE(window->Visible());
  EXPECT_TRUE(window->Enabled());
}

}  // namespace
}  // namespace orx::test
