#include "examples/maphost/HostWindow.h"

#include <algorithm>

#include "examples/maphost/LargeContours.h"
#include "hostobjects/IData.h"
#include "maplibrary/drawing/DrawMap.h"
#include "maplibrary/model/LayerData.h"
#include "service/CCommonProgressDialog.h"
#include "service/modMain.h"
#include "text/CharacterText.h"

namespace maphost {
namespace {

using orx::QueryKind;

// Places in twips.
constexpr int kMargin = 120;
constexpr int kSideWidth = 4500;
constexpr int kLogHeight = 1650;
constexpr orx::Size kSmallest{10200, 8490};
constexpr char kLostFile[] = "/maps/Tennessee/moved last year/ROADS.SHP";

}  // namespace

// What a dialog of the demo needs is a row here: the button, its handler, when it can be pressed, and the pictures that
// the gallery takes.
const std::vector<Dialog>& HostWindow::Dialogs() {
  using orx::CCommonMapDialogs;
  using Window = HostWindow;
  static const std::vector<Dialog> dialogs = {
      {0, "cmdManager", "Layer manage&r...", &Window::cmdManager_Click},
      {1, "cmdSettings", "&Settings...", &Window::cmdSettings_Click},
      {6, "cmdData", "Da&ta...", [](Window& it) { it.ShowFor("Data", &CCommonMapDialogs::ShowDataProperties); },
       Need::Data},
      {2, "cmdProperties", "&Properties...",
       [](Window& it) { it.ShowFor("Properties", &CCommonMapDialogs::ShowProperties); }, Need::Layer},
      {3, "cmdLabels", "&Labels...", [](Window& it) { it.ShowFor("Labels", &CCommonMapDialogs::ShowLabels); },
       Need::Labels},
      {4, "cmdSymbol", "Sym&bol...", &Window::cmdSymbol_Click, Need::Layer, "Picks the character that marks points"},
      {5, "cmdCoordinates", "&Coordinates...",
       [](Window& it) { it.ShowFor("Coordinates", &CCommonMapDialogs::ShowCoordinates); }},
      {12, "cmdLegends", "Le&gends...", &Window::cmdLegends_Click},
      {7, "cmdClassify", "Classi&fication...", &Window::cmdClassify_Click, Need::Data},
      {8, "cmdOptions", "Data &options...", &Window::cmdOptions_Click, Need::Data},
      {9, "cmdShade", "Relief s&hading...",
       [](Window& it) { it.ShowGridDialog("Relief shading", orx::modMain::ShowShadeDialog); }, Need::Data},
      {10, "cmdIsolines", "&Isolines...",
       [](Window& it) { it.ShowGridDialog("Isolines", orx::modMain::ShowIsolineDialog); }, Need::Data},
      {11, "cmdContours", "Contours o&ver tiles...", &Window::cmdContours_Click, Need::Data,
       "Computes the contours of a large area, with progress and Cancel", std::nullopt},
      {13, "cmdColors", "Color sche&mes...", &Window::cmdColors_Click},
      {14, "cmdGeoreference", "Georefere&nce...", &Window::cmdGeoreference_Click, Need::Nothing,
       "Moves the map on the ground"},
      {15, "cmdJump", "&Jump to layer...", &Window::cmdJump_Click},
      {18, "cmdLost", "Missing fil&e...", &Window::cmdLost_Click, Need::Nothing, "Opens a layer whose file is gone"},
      {17, "cmdAddLayer", "A&dd layer...", &Window::cmdAddLayer_Click, Need::Nothing, {}, std::nullopt},
      {16, "cmdShowHide", "Sho&w/hide...", &Window::cmdShowHide_Click, Need::Nothing, {}, "-several"}};
  return dialogs;
}

DialogButton::DialogButton(HostWindow& window, const Dialog& dialog)
    : Opens(dialog), Face(window, dialog.Button, {.Caption = dialog.Caption, .ToolTipText = dialog.ToolTip}) {
  Face.Click = [&window, &dialog] { dialog.Open(window); };
}

std::deque<DialogButton> HostWindow::MakeButtons() {
  std::vector<const Dialog*> dialogs;
  for (const Dialog& dialog : Dialogs()) dialogs.push_back(&dialog);
  std::ranges::sort(dialogs, {}, &Dialog::Cell);
  std::deque<DialogButton> buttons;
  for (const Dialog* const dialog : dialogs) buttons.emplace_back(*this, *dialog);
  return buttons;
}

HostWindow::HostWindow(orx::Desktop& desktop, orx::maplibrary::Map& map, const Languages& languages)
    : Form(desktop, "frmHost", {.Caption = "Map", .Client = {15600, 10800}, .Border = orx::BorderStyle::Sizable}),
      mMap(map),
      mLanguages(languages) {
  cboLayer.Click = [this] { EnableDialogs(); };
  cboLanguage.Click = [this] { cboLanguage_Click(); };
  mMap.Changed = [this] {
    FillLayers();
    DrawMap();
  };
}

void HostWindow::Form_Load() {
  mDialogs.CallBack(&mCallBack);
  mDialogs.RegistryKey("OrvexMapHost");
  ClientSize(ShownClientSize());
  Center();
  FillLayers();
  FillLanguages();
}

void HostWindow::FillLayers() {
  const int before = cboLayer.ListIndex();
  mChoices = {{"Whole map", &mMap}};
  for (std::int32_t i = 1; i <= mMap.LayerCount(); ++i) {
    orx::HostObject* const layer = mMap.Layer(i);
    mChoices.push_back({mMap.LayerName(i), layer});
    auto* const inner = QueryKind<orx::IMap>(layer);
    for (std::int32_t j = 1; inner && j <= inner->LayerCount(); ++j)
      mChoices.push_back({mMap.LayerName(i) + " / " + inner->LayerName(j), inner->Layer(j)});
  }
  cboLayer.Clear();
  for (const Choice& choice : mChoices) cboLayer.AddItem(choice.Name);
  cboLayer.ListIndex(std::min(before < 0 ? 1 : before, cboLayer.ListCount() - 1));
}

void HostWindow::FillLanguages() {
  for (int i = 0; i < mLanguages.Count(); ++i) cboLanguage.AddItem(mLanguages.Name(i));
  cboLanguage.ListIndex(0);
}

void HostWindow::EnableDialogs() {
  for (DialogButton& button : Buttons) button.Face.Enabled(ChosenHas(button.Opens.Needs));
}

bool HostWindow::ChosenHas(Need need) const {
  switch (need) {
    case Need::Layer:
      return QueryKind<orx::ILayer>(Chosen().Object) != nullptr;
    case Need::Labels:
      return QueryKind<orx::ILabels>(Chosen().Object) != nullptr;
    case Need::Data:
      return ChosenData() != nullptr;
    case Need::Nothing:
      break;
  }
  return true;
}

void HostWindow::Form_Resize() {
  const int width = std::max(ClientSize().Width, kSmallest.Width);
  const int height = std::max(ClientSize().Height, kSmallest.Height);
  const int side = width - kSideWidth - kMargin;
  int top = kMargin;
  const auto stack = [&](orx::Control& control, int controlHeight, int gap) {
    control.Place({side, top, kSideWidth, controlHeight});
    top += controlHeight + gap;
  };
  stack(lblLayer, 240, 60);
  stack(cboLayer, 360, 240);
  constexpr int kGap = 60;
  constexpr int kButtonHeight = 375;
  const int half = (kSideWidth - kGap) / 2;
  bool isLeft = true;
  for (DialogButton& button : Buttons) {
    button.Face.Place({isLeft ? side : side + half + kGap, top, half, kButtonHeight});
    if (!isLeft || &button == &Buttons.back()) top += kButtonHeight + kGap;
    isLeft = !isLeft;
  }
  top += 60;
  stack(chkModeless, 330, 180);
  stack(lblLanguage, 240, 60);
  stack(cboLanguage, 360, kMargin);
  // In a low window the log is what gets smaller.
  const int logTop = std::max(height - kMargin - kLogHeight, top);
  pctMap.Place({kMargin, kMargin, side - 2 * kMargin, logTop - 3 * kMargin - 240});
  lblLog.Place({kMargin, logTop - 300, 6000, 240});
  txtLog.Place({kMargin, logTop, width - 2 * kMargin, height - kMargin - logTop});
  DrawMap();
}

void HostWindow::DrawMap() {
  constexpr double kPixelsPerPoint = 96.0 / 72.0;
  orx::maplibrary::DrawMap(mMap, pctMap.Drawing(), pctMap.PixelSize(), kPixelsPerPoint * OwnerDesktop().Scale());
  pctMap.Refresh();
}

orx::ShowMode HostWindow::Mode() const {
  return chkModeless.IsChecked() ? orx::ShowMode::Modeless : orx::ShowMode::Modal;
}

void HostWindow::ShowFor(const std::string& what, Member member) {
  const Choice choice = Chosen();
  const std::int32_t result = (mDialogs.*member)(choice.Object, {}, Mode(), {this, 0});
  ReportPages(what + " of " + choice.Name, result);
}

void HostWindow::cmdManager_Click() {
  ReportPages("Layer manager", mDialogs.Show(&mLayers, 0, {}, Mode(), {this, 0}));
}

void HostWindow::cmdSettings_Click() {
  const Choice choice = Chosen();
  ReportPages("Settings of " + choice.Name, mDialogs.Show(choice.Object, 0, {}, Mode(), {this, 0}));
}

void HostWindow::cmdLegends_Click() {
  ReportPages("Legends", mDialogs.ShowLegends(&mMap, 0, {}, Mode(), {this, 0}));
}

void HostWindow::cmdGeoreference_Click() {
  const std::int32_t result = mDialogs.ShowGeoReference(&mMap, orx::CheckState::Grayed, "0.0000", {}, {this, 0});
  mLog.Write(std::string("Georeference: ") + (result != 0 ? "done (" : "failed (") + std::to_string(result) + ")");
  Redraw();
}

void HostWindow::cmdSymbol_Click() {
  const Choice choice = Chosen();
  auto& layer = *QueryKind<orx::ILayer>(choice.Object);
  const std::int32_t before = layer.SymbolCharacter();
  std::string font = layer.SymbolFont();
  std::int32_t code = orx::FontCode(before);
  double rotation = layer.SymbolRotation();
  bool changed = false;
  mDialogs.ShowCharacterSelection(font, code, rotation, changed, {}, {this, 0});
  if (changed) {
    layer.SymbolFont(font);
    layer.SymbolCharacter(orx::CharacterOf(code, before));
    layer.SymbolRotation(rotation);
  }
  Report("Symbol of " + choice.Name, changed ? -1 : 0);
}

orx::HostObject* HostWindow::ChosenData() const {
  auto* const layer = QueryKind<orx::ILayer>(Chosen().Object);
  return layer ? layer->Data() : nullptr;
}

void HostWindow::cmdClassify_Click() {
  const Choice choice = Chosen();
  auto& data = *QueryKind<orx::IData>(ChosenData());
  bool isDirty = false;
  const std::int32_t result = mDialogs.ShowDataClassify(ChosenData(), data.MinimumOfData(), data.MaximumOfData(),
                                                        orx::kMayChangeClassCount, isDirty);
  Report("Classification of " + choice.Name, result);
}

void HostWindow::cmdOptions_Click() {
  const Choice choice = Chosen();
  Report("Data options of " + choice.Name, mDialogs.ShowDataOptions(ChosenData()));
}

void HostWindow::ShowGridDialog(const std::string& what, GridDialog dialog) {
  const Choice choice = Chosen();
  bool changed = false;
  dialog(OwnerDesktop(), ChosenData(), changed, mDialogs.Language());
  Report(what + " of " + choice.Name, changed ? -1 : 0);
}

void HostWindow::cmdContours_Click() {
  const Choice choice = Chosen();
  const auto* const data = dynamic_cast<orx::maplibrary::LayerData*>(ChosenData());
  if (!data) return;
  constexpr double kInterval = 10;
  LargeContours contours(*data->Grid(), mTilesAcross, kInterval);
  orx::CCommonProgressDialog progress(OwnerDesktop());
  progress.Caption(choice.Name);
  progress.Init(0, contours.Levels(), 0);
  // While events are handled nothing else may be started; only the progress window is for the user.
  Enabled(false);
  progress.Show({this, 0});
  while (contours.Done() < contours.Levels() && !progress.CancelAction()) {
    progress.Message(orx::numbers::ShortestText(contours.NextLevel()) + " m (" + std::to_string(contours.Done() + 1) +
                     " / " + std::to_string(contours.Levels()) + ")");
    contours.Next();
    progress.Value(contours.Done());
    OwnerDesktop().ProcessPendingEvents();
  }
  Enabled(true);
  progress.Hide();
  mLog.Write("Contours of " + choice.Name + ": " + std::to_string(contours.Lines()) + " lines, " +
             std::to_string(contours.Points()) + " points" + (progress.CancelAction() ? ", cancelled" : ""));
}

void HostWindow::cmdColors_Click() {
  const bool isDone = orx::modMain::ShowColorsDialog(OwnerDesktop(), mDialogs.Language(), {this, 0});
  mLog.Write(isDone ? "Color schemes: closed" : "Color schemes: failed");
}

std::string HostWindow::Translated(const std::string& text) const {
  orx::ILanguage* const language = mDialogs.Language();
  return language ? language->TranslateText(text) : text;
}

std::vector<std::int32_t> HostWindow::ChooseLayers(const std::string& caption, bool several,
                                                   const std::string& question) {
  // The whole map is no layer, so the first layer has the index 1.
  orx::TextArray names{{}, 1};
  for (std::size_t i = 1; i < mChoices.size(); ++i) names.Items.push_back(mChoices[i].Name);
  std::vector<std::int32_t> chosen;
  mDialogs.ShowListSelection(names, several, cboLayer.ListIndex(), caption, !question.empty(), question, chosen);
  return chosen;
}

void HostWindow::cmdJump_Click() {
  const std::vector<std::int32_t> chosen = ChooseLayers("Jump to layer", false, {});
  if (chosen.empty()) return mLog.Write("Jump to layer: nothing chosen");
  cboLayer.ListIndex(chosen.front());
  mLog.Write("Jump to layer: " + Chosen().Name);
}

void HostWindow::cmdShowHide_Click() {
  const std::vector<std::int32_t> chosen =
      ChooseLayers("Show or hide layers", true, Translated("Show what is hidden, and hide what is shown?"));
  for (const std::int32_t index : chosen) {
    const Choice& choice = mChoices.at(static_cast<std::size_t>(index));
    auto& layer = *QueryKind<orx::ILayer>(choice.Object);
    layer.Visible(!layer.Visible());
    mLog.Write(choice.Name + (layer.Visible() ? ": shown" : ": hidden"));
  }
  if (chosen.empty()) mLog.Write("Show or hide: nothing chosen");
  DrawMap();
}

void HostWindow::cmdAddLayer_Click() {
  std::vector<std::string> files;
  const std::uintptr_t handle = Window() ? Window()->NativeHandle() : 0;
  if (mDialogs.ShowAddLayer(handle, true, files)) return AddLayers(files);
  mLog.Write("Add layer: nothing chosen");
}

void HostWindow::cmdLost_Click() {
  // As a host does it for each file of a map that is not where the map says.
  std::string found;
  bool cancelAll = false;
  mDialogs.ShowFileNotFound(kLostFile, found, cancelAll);
  if (!found.empty()) return AddLayers({found});
  mLog.Write(cancelAll ? "Missing file: all skipped" : "Missing file: skipped");
}

void HostWindow::AddLayers(const std::vector<std::string>& files) {
  for (const std::string& file : files) {
    try {
      mLog.Write("Added " + mMap.AddLayer(file, {})->Name());
    } catch (const std::exception& error) {
      OwnerDesktop().ShowMessage({error.what(), Caption(), orx::MessageIcon::Exclamation});
    }
  }
  Redraw();
}

void HostWindow::cboLanguage_Click() {
  orx::ILanguage* const language = mLanguages.Language(cboLanguage.ListIndex());
  mDialogs.Language(language);
  mDesigned.Translate(*this, language);
}

void HostWindow::ReportPages(const std::string& what, std::int32_t result) {
  if (Mode() == orx::ShowMode::Modeless) return mLog.Write(what + ": open");
  Report(what, result);
}

void HostWindow::Report(const std::string& what, std::int32_t result) {
  mLog.Write(what + (result != 0 ? ": changed (" : ": not changed (") + std::to_string(result) + ")");
  Redraw();
}

void HostWindow::Redraw() {
  FillLayers();
  DrawMap();
}

}  // namespace maphost
