// The demo host as its user works with it: dialogs from its buttons, the map redrawn behind them, results, languages.
#include "examples/maphost/HostWindow.h"

#include <algorithm>
#include <utility>

#include "forms/TreeList.h"
#include "maplibrary/model/SampleMap.h"
#include "pickers/CharacterGrid.h"
#include "tests/files/FilesTest.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/MapText.h"

namespace orx::test {
namespace {

class ExamplesHost : public DesktopTest {
 protected:
  ExamplesHost() {
    modDialog::ResetRememberedChoices();
    window->Show(ShowMode::Modeless);
  }
  ~ExamplesHost() override { desktop().CloseOpenForms(); }

  template <class Kind>
  static Kind& Get(Form& form, const std::string& name) {
    return dynamic_cast<Kind&>(*form.Find(name));
  }
  static void Press(User& person, Form& form, const std::string& name) { person.Click(Get<Button>(form, name)); }
  std::string LastLine() const {
    const std::string& text = window->txtLog.Text();
    return text.substr(text.rfind('\n') + 1);
  }
  const std::vector<Mark>& Drawn() const { return window->pctMap.Drawing().Marks(); }

  std::unique_ptr<maplibrary::Map> map = maplibrary::MakeSampleMap(ORX_DATA_DIR "/jacksboro.bil");
  maphost::Languages languages{std::filesystem::path(ORX_DATA_DIR "/languages")};
  std::shared_ptr<maphost::HostWindow> window = std::make_shared<maphost::HostWindow>(desktop(), *map, languages);
};

TEST_F(ExamplesHost, ListsTheMapItsLayersAndTheirTiles) {
  std::vector<std::string> names;
  for (int i = 0; i < window->cboLayer.ListCount(); ++i) names.push_back(window->cboLayer.List(i));
  ASSERT_EQ(7U, names.size());
  EXPECT_EQ((std::vector<std::string>{"Whole map", "Terrain", "Quarters"}),
            (std::vector<std::string>{names.begin(), names.begin() + 3}));
  EXPECT_TRUE(names[3].starts_with("Quarters / "));
  EXPECT_EQ("Terrain", user.See(window->cboLayer).Text);
}

TEST_F(ExamplesHost, OKUntouchedInEveryDialogLeavesEveryBitOfTheMap) {
  const std::string before = Serialise(*map);
  for (int entry = 0; entry < window->cboLayer.ListCount(); ++entry) {
    user.Choose(window->cboLayer, entry);
    for (const auto& [button, form] : {std::pair{"cmdProperties", "frmProperties"},
                                       {"cmdLabels", "frmLabels"},
                                       {"cmdCoordinates", "frmCoordinates"},
                                       {"cmdLegends", "frmLegend"}}) {
      if (!Get<Button>(*window, button).Enabled()) continue;
      script.ExpectForm(form, [&](Form& shown) { Press(user, shown, "cmdOK"); });
      Press(user, *window, button);
      EXPECT_TRUE(LastLine().ends_with("not changed (0)")) << LastLine();
      EXPECT_EQ(before, Serialise(*map)) << form << " of " << window->cboLayer.Text();
    }
  }
}

TEST_F(ExamplesHost, TheLayerManagerMovesAndRemovesLayersWhileTheMapIsRedrawn) {
  script.ExpectForm("frmMapSettings", [&](Form& shown) {
    auto& list = Get<TreeList>(shown, "sftLayers");
    EXPECT_EQ((std::vector<std::string>{"jacksboro", "Terrain", "Quarters"}), user.SeeRows(list));
    const std::vector<Mark> before = Drawn();
    user.Click(list, 1);
    Press(user, shown, "cmdDown");
    EXPECT_NE(before, Drawn());
    EXPECT_EQ("Quarters", window->cboLayer.List(1));
    const std::vector<Mark> moved = Drawn();
    Press(user, shown, "cmdRemove");
    EXPECT_NE(moved, Drawn());
    EXPECT_EQ(6, window->cboLayer.ListCount());
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdManager");
  EXPECT_EQ("Layer manager: changed (-1)", LastLine());
}

TEST_F(ExamplesHost, TheSettingsAndTheDataOfTheChosenLayerAreEdited) {
  script.ExpectForm("frmSettings", [&](Form& shown) {
    user.Type(Get<TextBox>(shown, "txtName"), "Hills");
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdSettings");
  EXPECT_EQ("Settings of Terrain: changed (-1)", LastLine());
  EXPECT_EQ("Hills", user.See(window->cboLayer).Text);
  script.ExpectForm("frmDataDialog", [&](Form& shown) { Press(user, shown, "cmdOK"); });
  Press(user, *window, "cmdData");
  EXPECT_EQ("Data of Hills: not changed (0)", LastLine());
  user.Choose(window->cboLayer, 2);
  EXPECT_FALSE(user.See(Get<Button>(*window, "cmdData")).Enabled);
}

TEST_F(ExamplesHost, ApplyRedrawsTheMapBehindTheOpenDialog) {
  script.ExpectForm("frmProperties", [&](Form& shown) {
    const std::vector<Mark> before = Drawn();
    user.Toggle(Get<CheckBox>(shown, "chkVisible"));
    EXPECT_EQ(before, Drawn());
    Press(user, shown, "cmdApply");
    EXPECT_EQ("Call-back: Apply, changed", LastLine());
    EXPECT_NE(before, Drawn());
    EXPECT_TRUE(shown.Visible());
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdProperties");
  EXPECT_EQ("Properties of Terrain: changed (-1)", LastLine());
}

TEST_F(ExamplesHost, ARenamedLayerIsListedUnderItsNewName) {
  script.ExpectForm("frmProperties", [&](Form& shown) {
    user.Type(Get<TextBox>(shown, "txtName"), "Hills");
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdProperties");
  EXPECT_EQ("Hills", user.See(window->cboLayer).Text);
}

TEST_F(ExamplesHost, TheMapIsRedrawnInTheClassesThatTheUserSets) {
  const std::vector<Mark> before = Drawn();
  script.ExpectForm("frmDataClassify", [&](Form& shown) {
    EXPECT_TRUE(Get<CheckBox>(shown, "chkAutoClassify").IsChecked());
    EXPECT_EQ("236", user.See(Get<TextBox>(shown, "txtMin")).Text);
    user.Toggle(Get<CheckBox>(shown, "chkAutoClassify"));
    user.Type(Get<ComboBox>(shown, "cboClasses"), "5");
    user.Choose(Get<ComboBox>(shown, "cboFormat"), 2);
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdClassify");
  EXPECT_EQ("Classification of Terrain: changed (-1)", LastLine());
  EXPECT_NE(before, Drawn());
  const auto says = [&](const std::string& text) {
    return std::ranges::any_of(Drawn(), [&](const Mark& mark) {
      const auto* const words = std::get_if<TextMark>(&mark);
      return words && words->Text == text;
    });
  };
  EXPECT_TRUE(says("236.0 – 404.0"));
  EXPECT_TRUE(says("908.0 – 1076.0"));
}

TEST_F(ExamplesHost, SpecialValuesAreDrawnAsSet) {
  const std::vector<Mark> before = Drawn();
  script.ExpectForm("frmDataOptions", [&](Form& shown) {
    user.Toggle(Get<CheckBox>(shown, "chkEnabled(0)"));
    user.Type(Get<TextBox>(shown, "txtMinValue(0)"), "300");
    user.Type(Get<TextBox>(shown, "txtMaxValue(0)"), "350");
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdOptions");
  EXPECT_EQ("Data options of Terrain: changed (-1)", LastLine());
  EXPECT_NE(before, Drawn());
}

TEST_F(ExamplesHost, OKUntouchedInTheDialogsOfTheDataLeavesEveryBitOfTheMap) {
  const std::string before = Serialise(*map);
  for (const auto& [button, form] : {std::pair{"cmdClassify", "frmDataClassify"},
                                     {"cmdOptions", "frmDataOptions"},
                                     {"cmdShade", "frmDataShade"},
                                     {"cmdIsolines", "frmDataIsoline"}}) {
    script.ExpectForm(form, [&](Form& shown) { Press(user, shown, "cmdOK"); });
    Press(user, *window, button);
    EXPECT_TRUE(LastLine().ends_with("not changed (0)")) << LastLine();
    EXPECT_EQ(before, Serialise(*map)) << form;
  }
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

TEST_F(ExamplesHost, TheTerrainIsShadedAndContouredAsSet) {
  std::vector<Mark> before = Drawn();
  script.ExpectForm("frmDataShade", [&](Form& shown) {
    user.Choose(Get<ComboBox>(shown, "cmbCombine"), 1);
    user.Click(Get<Button>(shown, "cmdScaleFactor"));
    EXPECT_EQ("1.08E-05", user.See(Get<TextBox>(shown, "txtScaleFactor")).Text);
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdShade");
  EXPECT_EQ("Relief shading of Terrain: changed (-1)", LastLine());
  EXPECT_NE(before, Drawn());
  const auto lines = [&] {
    return std::ranges::count_if(Drawn(), [](const Mark& mark) { return std::holds_alternative<LineMark>(mark); });
  };
  const auto few = lines();
  script.ExpectForm("frmDataIsoline", [&](Form& shown) {
    user.Choose(Get<ComboBox>(shown, "cmbLineStyle"), 0);
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdIsolines");
  EXPECT_EQ("Isolines of Terrain: changed (-1)", LastLine());
  EXPECT_GT(lines(), few + 100);
}

TEST_F(ExamplesHost, TheColorSchemesOpen) {
  script.ExpectForm("frmManageColors", [&](Form& shown) { Press(user, shown, "cmdOK"); });
  Press(user, *window, "cmdColors");
  EXPECT_EQ("Color schemes: closed", LastLine());
}

TEST_F(ExamplesHost, TheMapIsGeoreferencedWhateverIsChosen) {
  user.Choose(window->cboLayer, 3);
  const std::string before = Serialise(*map);
  script.ExpectForm("frmGeoreference", [&](Form& shown) { Press(user, shown, "cmdOK"); });
  Press(user, *window, "cmdGeoreference");
  EXPECT_EQ("Georeference: done (-1)", LastLine());
  EXPECT_EQ(before, Serialise(*map));
  const std::vector<Mark> drawn = Drawn();
  const double top = map->Extent()->Top();
  script.ExpectForm("frmGeoreference", [&](Form& shown) {
    user.Type(Get<TextBox>(shown, "txtInput(1)"), "-80");
    EXPECT_EQ("-80", user.See(*shown.Find("txtInput(1)")).Text);
    EXPECT_TRUE(user.See(*shown.Find("txtInput(1)")).Focused);
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdGeoreference");
  EXPECT_EQ(-80, map->Extent()->Right());
  EXPECT_GT(map->Extent()->Top(), top);
  EXPECT_NE(drawn, Drawn());
}

TEST_F(ExamplesHost, TheSymbolOfTheChosenLayerIsPickedAndDrawn) {
  const std::string before = Serialise(*map);
  script.ExpectForm("frmTrueType", [&](Form& shown) { Press(user, shown, "cmdOK"); });
  Press(user, *window, "cmdSymbol");
  EXPECT_EQ("Symbol of Terrain: not changed (0)", LastLine());
  EXPECT_EQ(before, Serialise(*map));
  const std::vector<Mark> drawn = Drawn();
  script.ExpectForm("frmTrueType", [&](Form& shown) {
    user.DoubleClickAt(Get<PictureBox>(shown, "picFont"), CharacterGrid(desktop().Scale()).PlaceOf(0xA4));
  });
  Press(user, *window, "cmdSymbol");
  EXPECT_EQ("Symbol of Terrain: changed (-1)", LastLine());
  EXPECT_EQ(0xA4, map->Layer(1)->SymbolCharacter());
  EXPECT_NE(drawn, Drawn());
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
  user.Choose(window->cboLanguage, 1);
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
    EXPECT_NE(caption, languages.Language(1)->TranslateText(caption)) << control->Name();
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
