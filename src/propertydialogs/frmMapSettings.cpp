#include "propertydialogs/frmMapSettings.h"

#include <algorithm>
#include <string_view>

#include "dialogframe/FileChoice.h"
#include "dialogframe/Help.h"
#include "forms/BusyScope.h"
#include "hostobjects/RunTimeError.h"
#include "text/Trimmed.h"

namespace orx {
namespace {

constexpr PropertyLayout kMapLayout{.Client = {9420, 5670},
                                    .Tab = {3075, 120, 6255, 4995},
                                    .ButtonTop = 5220,
                                    .HelpLeft = 120,
                                    .OKLeft = 5295,
                                    .CancelLeft = 6675,
                                    .ApplyLeft = 8055};

/// The tags that tell what a row is.
constexpr char kMapTag[] = "Map";
constexpr char kLayerTag[] = "Layer";
constexpr char kTileTag[] = "Tile";

bool Marks(const std::string& tag, const char* what) {
  std::string lower(tag);
  std::ranges::transform(lower, lower.begin(), [](unsigned char c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; });
  return lower.find(what) != std::string::npos;
}

/// A layer of a map. Throws if it has gone.
HostObject& LayerOf(IMap& map, std::int32_t index) {
  if (HostObject* const layer = map.Layer(index)) return *layer;
  throw RunTimeError(kErrorNotLoaded, "The map has no layer " + std::to_string(index) + ".");
}

/// The name of a layer, or a numbered one if it is blank.
std::string NameOr(std::string name, const char* otherwise, std::int32_t number) {
  if (Trimmed(name, kSpaces).empty()) name = otherwise + std::to_string(number);
  return name;
}

}  // namespace

Design frmMapSettings::PictureDesign(const char* toolTip, int position) {
  // The caption is not shown. It only provides the mnemonic: Alt with the number of the button.
  return {.Caption = "&" + std::to_string(position + 1),
          .Place = {2595, 120 + position * 465, 405, 405},
          .ToolTipText = toolTip};
}

frmMapSettings::frmMapSettings(Desktop& desktop, IPageFactory& pages)
    : PropertyDialog(desktop, pages,
                     {.Name = "frmMapSettings",
                      .Caption = "Map Layer Properties",
                      .HelpKey = "_HelpMapSettings",
                      .Pages = LayerPages(),
                      .Layout = kMapLayout}) {
  PutFirst({&sftLayers, &cmdAdd, &cmdUp, &cmdDown, &cmdRemove});
  sftLayers.Click = [this] { sftLayers_Click(); };
  sftLayers.KeyDown = [this](int keyCode) { sftLayers_KeyDown(keyCode); };
  cmdAdd.Click = [this] { cmdAdd_Click(); };
  cmdUp.Click = [this] { MoveSelected(&IMap::MoveLayerUp, -1); };
  cmdDown.Click = [this] { MoveSelected(&IMap::MoveLayerDown, 1); };
  cmdRemove.Click = [this] { cmdRemove_Click(); };
  ssTab.Click = [this](int) {
    if (HasPages()) ButtonStep([this] { Pages().Select(ssTab.Tab()); });
  };
}

void frmMapSettings::RegisterClient(HostObject* client, const std::string& registryKey) {
  RegistryKey(registryKey);
  if (IMap* const map = QueryKind<IMap>(client)) {
    Hold(client);
    mClient = client;
    mMap = map;
    // An empty map has no first layer to ask for.
    mCurrentObject = map->LayerCount() > 0 ? map->Layer(1) : nullptr;
  } else if (ILayers* const layers = QueryKind<ILayers>(client)) {
    Hold(client);
    mLayers = layers;
    mClient = mCurrentObject = client;
    mMap = QueryKind<IMap>(layers->Map());
  } else {
    OwnerDesktop().ShowMessage(
        {"Object does not support IMap or ILayers interface!", "Register", MessageIcon::Critical});
  }
}

void frmMapSettings::Take(const PropertyTask& task, ErrorTrap& trap) {
  PropertyDialog::Take(task, trap);
  trap.Step([&] { RegisterFlags(task.Number); });
}

void frmMapSettings::IsDirty(bool value) {
  Load();
  if (HasPages()) Pages().IsDirty(value);
  mListChanged = value;
}

void frmMapSettings::RefreshContents() {
  if (!mMap) return;
  Load();
  ShowObject(mCurrentObject);
  if (HasPages()) Do(&PropertyPage::RefreshContents);
}

void frmMapSettings::ShowObject(HostObject* object) {
  if (!HasPages()) return;
  ButtonStep([&] { Hold(object); });
  Pages().ForEach([&](PropertyPage& page) { ButtonStep([&] { page.Client(object); }); });
}

void frmMapSettings::Arrange() {
  Pages().Of(PageKind::Properties).NameChanged = [this](const std::string& name) { NameChanged(name); };
  Kept().Restore(*this);
  Pages().Select(ssTab.Tab());
  EnableMoving();
}

void frmMapSettings::Ready() {
  FillList();
  SelectRow(0);
}

// The list.

void frmMapSettings::FillList() {
  // While the host is asked, the list stays as it is: the host may let the user act, who may have it filled himself.
  const int filling = ++mFillings;
  std::vector<TreeRow> rows;
  ErrorTrap trap;
  if (mLayers) rows.push_back({CollectionName(), 0, 0, kMapTag, true});
  // What cannot be read ends the list.
  if (mMap) trap.Step([&] { ReadLayers(rows); });
  if (IsRetired() || filling != mFillings) return;
  const BusyScope selecting(mIsSelecting);
  sftLayers.Redraw(false);
  sftLayers.Clear();
  for (const TreeRow& row : rows) sftLayers.AddRow(row);
  sftLayers.Redraw(true);
}

std::string frmMapSettings::CollectionName() {
  std::string name;
  ErrorTrap trap;
  trap.Step([&] { name = mLayers->Name(); });
  return Trimmed(name, kSpaces).empty() ? "Map" : name;
}

void frmMapSettings::ReadLayers(std::vector<TreeRow>& rows) {
  const int level = mLayers ? 1 : 0;
  const std::int32_t count = mMap->LayerCount();
  for (std::int32_t i = 1; i <= count && !IsRetired(); ++i) {
    rows.push_back({NameOr(mMap->LayerName(i), "Layer ", i), level, i, kLayerTag});
    // A layer that fails is listed without its tiles.
    ErrorTrap trap;
    if (!IsRetired()) trap.Step([&] { ReadTiles(mMap->Layer(i), level + 1, rows); });
  }
}

void frmMapSettings::ReadTiles(HostObject* layer, int level, std::vector<TreeRow>& rows) {
  IMap* const tiles = QueryKind<IMap>(layer);
  const std::int32_t count = tiles ? tiles->LayerCount() : 0;
  if (count <= 1) return;
  // What is in a tile is not listed, so that a map may even contain itself.
  for (std::int32_t i = 1; i <= count && !IsRetired(); ++i)
    rows.push_back({NameOr(tiles->LayerName(i), "Tile ", i), level, i, kTileTag});
}

void frmMapSettings::sftLayers_Click() {
  if (!mIsSelecting) SelectRow(sftLayers.ListIndex());
}

void frmMapSettings::sftLayers_KeyDown(int keyCode) {
  if (keyCode == kKeyCodeF1) return modMain::ShowHelpFinder(*this, modMain::HelpFile(), sftLayers.HelpContextId());
  if (keyCode == kKeyCodeDelete) return cmdRemove_Click();
  const bool isArrow = keyCode >= kKeyCodeLeft && keyCode <= kKeyCodeDown;
  if (isArrow && !sftLayers.Redraw()) sftLayers.Redraw(true);
  // Other keys count if they moved to another row.
  if (isArrow || sftLayers.ListIndex() != mSelectedRow) SelectRow(sftLayers.ListIndex());
}

bool frmMapSettings::ShowSelection(int row) {
  const BusyScope selecting(mIsSelecting);
  mSelectedRow = std::clamp(row, -1, sftLayers.ListCount() - 1);
  if (mSelectedRow < 0 && sftLayers.ListCount() > 0) mSelectedRow = 0;
  sftLayers.ListIndex(mSelectedRow);
  return mSelectedRow >= 0;
}

void frmMapSettings::SelectRow(int row) {
  if (IsRetired()) return;
  // The list shows the row before pending events are handled.
  ShowSelection(row);
  const int turn = ++mSelections;
  OwnerDesktop().ProcessPendingEvents();
  // Whatever the user does in the meantime wins: another row may be selected, or the window closed.
  const auto isCurrent = [&] { return IsLoaded() && turn == mSelections; };
  Selection selection;
  if (isCurrent() && !TakeRow(row, selection) && isCurrent()) {
    // The layer has gone, or cannot be had. The nearest one takes its place.
    ButtonStep([this] { OwnerDesktop().Beep(); });
    FillList();
    if (isCurrent()) TakeRow(row, selection);
  }
  if (!isCurrent()) return;
  mCurrentObject = selection.Object;
  mSelectedLayer = selection.Layer;
  EnableMoving();
  RefreshContents();
}

void frmMapSettings::SelectPosition(int position) {
  const int count = sftLayers.ShownCount();
  SelectRow(count == 0 ? -1 : sftLayers.ShownRow(std::clamp(position, 0, count - 1)));
}

int frmMapSettings::FoldedPosition() const {
  return (mLayers ? 1 : 0) + mSelectedLayer - 1;
}

bool frmMapSettings::TakeRow(int row, Selection& selection) {
  ErrorTrap trap;
  selection = {};
  if (ShowSelection(row)) trap.Step([&] { selection = SelectionOf(mSelectedRow); });
  return !trap.IsPending();
}

frmMapSettings::Selection frmMapSettings::SelectionOf(int row) {
  const TreeRow chosen = sftLayers.Row(row);
  if (Marks(chosen.Tag, "tile")) {
    IMap* const tiles = QueryKind<IMap>(&LayerOf(*mMap, sftLayers.Row(sftLayers.ParentOf(row)).Data));
    return {tiles ? &LayerOf(*tiles, chosen.Data) : nullptr, 0};
  }
  if (Marks(chosen.Tag, "layer")) return {&LayerOf(*mMap, chosen.Data), chosen.Data};
  return {mClient, 0};
}

void frmMapSettings::EnableMoving() {
  for (Button* const button : {&cmdUp, &cmdDown, &cmdRemove}) button->Enabled(mSelectedLayer != 0);
}

void frmMapSettings::NameChanged(const std::string& name) {
  ErrorTrap trap;
  trap.Step([&] { sftLayers.Text(mSelectedRow, name); });
}

// The buttons beside the list. An error of the map counts as a refusal.

bool frmMapSettings::Change(const std::function<bool()>& change) {
  bool isDone = false;
  ErrorTrap trap;
  {
    const BusyScope changing(mIsChanging);
    trap.Step([&] { isDone = change(); });
  }
  mListChanged = mListChanged || isDone;
  // A map that refuses may have lost the layer.
  Selection selection;
  if (!IsRetired() && (isDone || !TakeRow(mSelectedRow, selection))) FillList();
  return isDone;
}

void frmMapSettings::MoveSelected(MoveLayer move, int rows) {
  if (!MayChange()) return;
  const int position = FoldedPosition();
  const int filled = mFillings;
  const bool isMoved = Change([&] { return (mMap->*move)(mSelectedLayer); });
  if (IsRetired()) return;
  if (!isMoved) ButtonStep([this] { OwnerDesktop().Beep(); });
  if (mFillings != filled) SelectPosition(position + (isMoved ? rows : 0));
}

void frmMapSettings::cmdRemove_Click() {
  if (!MayChange()) return;
  int position = sftLayers.PositionOf(mSelectedRow);
  const int filled = mFillings;
  Change([this] {
    const bool isRemoved = mMap->RemoveLayer(mSelectedLayer);
    if (isRemoved) {
      // The layer may no longer exist.
      mCurrentObject = nullptr;
      ShowObject(nullptr);
    }
    return isRemoved;
  });
  if (mFillings != filled) position = FoldedPosition();
  SelectPosition(position - 1);
}

void frmMapSettings::cmdAdd_Click() {
  if (!mMap || mIsChanging) return;
  ErrorTrap trap;
  Desktop& desktop = OwnerDesktop();
  Enabled(false);
  std::vector<std::string> files;
  trap.Step([&] {
    if (!modDialog::ChooseFiles({desktop, NativeHandle(), modDialog::FileKind::Layers, Language()}, true, files))
      files.clear();
  });
  for (const std::string& path : files) {
    if (IsRetired()) break;
    trap.Step([&] { desktop.Pointer(Pointer::Hourglass); });
    trap.Step([&] { AddFile(path); });
  }
  if (!files.empty()) trap.Step([&] { SelectPosition(sftLayers.ShownCount() - 1); });
  Enabled(true);
  trap.Step([&] { desktop.Pointer(Pointer::Default); });
}

void frmMapSettings::AddFile(const std::string& path) {
  {
    const BusyScope changing(mIsChanging);
    if (!mMap->AddLayer(path, {})) return;
  }
  mListChanged = true;
  FillList();
  if (!IsRetired()) RefreshContents();
}

// The buttons along the bottom. Errors of the pages and the call-back are skipped.

void frmMapSettings::ButtonStep(const std::function<void()>& step) {
  ErrorTrap trap;
  trap.Step(step);
}

void frmMapSettings::Relay(Act act, Notification notify) {
  if (HasPages()) PropertyDialog::Relay(act, notify);
}

void frmMapSettings::cmdApply_Click() {
  if (!HasPages()) return;
  Do(&PropertyPage::ApplyChanges);
  if (!CallBack()) return OwnerDesktop().Pointer(Pointer::Default);
  WithHourglass([this] {
    Tell(&IDialogCallBack::ApplyNotify);
    if (!IsRetired()) ButtonStep([this] { IsDirty(false); });
  });
}

void frmMapSettings::Accept() {
  WithHourglass([this] {
    Relay(&PropertyPage::SaveChanges, &IDialogCallBack::OKNotify);
    Close(Outcome::Confirmed);
  });
}

void frmMapSettings::cmdCancel_Click() {
  PropertyDialog::cmdCancel_Click();
  OwnerDesktop().Pointer(Pointer::Default);
}

void frmMapSettings::Form_Unload() {
  PropertyDialog::Form_Unload();
  // A form whose pages could not be made has never been put anywhere.
  if (HasPages()) Kept().Keep(*this);
}

}  // namespace orx
