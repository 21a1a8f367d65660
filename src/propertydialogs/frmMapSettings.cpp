#include "propertydialogs/frmMapSettings.h"

#include <algorithm>
#include <string_view>

#include "dialogframe/FileChoice.h"
#include "dialogframe/Help.h"
#include "forms/BusyScope.h"
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

/// The name of a layer, or a numbered one if it is blank.
std::string NameOr(std::string name, const char* otherwise, std::int32_t number) {
  if (Trimmed(name, kSpaces).empty()) name = otherwise + std::to_string(number);
  return name;
}

/// Suspends redrawing while the list is being filled, and resumes it even if the host throws.
class Filling {
 public:
  explicit Filling(TreeList& list) : mList(list) { mList.Redraw(false); }
  ~Filling() { mList.Redraw(true); }
  Filling(const Filling&) = delete;
  Filling& operator=(const Filling&) = delete;

 private:
  TreeList& mList;
};

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
    if (HasPages()) Pages().Select(ssTab.Tab());
  };
}

void frmMapSettings::RegisterClient(HostObject* client, const std::string& registryKey) {
  RegistryKey(registryKey);
  if (IMap* const map = QueryKind<IMap>(client)) {
    Hold(client);
    mClient = client;
    mMap = mCurrentMap = map;
    // An empty map has no first layer to ask for.
    mCurrentObject = map->LayerCount() > 0 ? map->Layer(1) : nullptr;
  } else if (ILayers* const layers = QueryKind<ILayers>(client)) {
    Hold(client);
    mLayers = layers;
    mClient = mCurrentObject = client;
    mMap = mCurrentMap = QueryKind<IMap>(layers->Map());
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
  if (!HasPages() || IsRetired()) return;
  Pages().Client(mCurrentObject);
  if (!IsRetired()) Pages().RefreshContents();
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
  const Filling filling(sftLayers);
  const BusyScope selecting(mIsSelecting);
  sftLayers.Clear();
  if (mLayers) {
    const std::string name = mLayers->Name();
    sftLayers.AddRow({Trimmed(name, kSpaces).empty() ? "Map" : name, 0, 0, kMapTag, true});
  }
  if (mMap && !IsRetired()) AddRows(*mMap, "Layer ", kLayerTag, mLayers ? 1 : 0);
}

void frmMapSettings::AddRows(IMap& map, const char* defaultName, const char* tag, int level) {
  const std::int32_t count = map.LayerCount();
  for (std::int32_t i = 1; i <= count && !IsRetired(); ++i) {
    sftLayers.AddRow({NameOr(map.LayerName(i), defaultName, i), level, i, tag});
    if (&map == mMap && !IsRetired()) AddTiles(map.Layer(i), level + 1);
  }
}

void frmMapSettings::AddTiles(HostObject* layer, int level) {
  IMap* const tiles = QueryKind<IMap>(layer);
  if (tiles && tiles->LayerCount() > 1) AddRows(*tiles, "Tile ", kTileTag, level);
}

void frmMapSettings::sftLayers_Click() {
  if (!mIsSelecting) SelectRow(sftLayers.ListIndex());
}

void frmMapSettings::sftLayers_KeyDown(int keyCode) {
  if (keyCode == kKeyCodeF1) return modMain::ShowHelpFinder(*this, modMain::HelpFile(), sftLayers.HelpContextId());
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
  // Whatever the user did in the meantime wins: another row may be selected, or the window closed.
  if (!IsLoaded() || turn != mSelections) return;
  mSelectedLayer = 0;
  mCurrentMap = mMap;
  mCurrentObject = nullptr;
  try {
    if (ShowSelection(row)) TakeObject();
  } catch (...) {
    // The pages must not keep an object that the map may have released.
    ShowObject();
    throw;
  }
  ShowObject();
}

void frmMapSettings::ShowObject() {
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

void frmMapSettings::TakeObject() {
  const TreeRow row = sftLayers.Row(mSelectedRow);
  if (Marks(row.Tag, "tile")) {
    HostObject* const layer = mMap->Layer(sftLayers.Row(sftLayers.ParentOf(mSelectedRow)).Data);
    if (IMap* const tiles = QueryKind<IMap>(layer)) {
      mCurrentMap = tiles;
      mCurrentObject = tiles->Layer(row.Data);
    }
  } else if (Marks(row.Tag, "layer")) {
    mCurrentObject = mMap->Layer(row.Data);
    mSelectedLayer = row.Data;
  } else {
    mCurrentObject = mClient;
  }
}

void frmMapSettings::EnableMoving() {
  for (Button* const button : {&cmdUp, &cmdDown, &cmdRemove}) button->Enabled(mSelectedLayer != 0);
}

void frmMapSettings::NameChanged(const std::string& name) {
  ErrorTrap trap;
  trap.Step([&] { sftLayers.Text(mSelectedRow, name); });
}

// The buttons beside the list. An error of the map counts as a refusal.

void frmMapSettings::MoveSelected(MoveLayer move, int rows) {
  ErrorTrap trap;
  if (!mCurrentMap || mSelectedLayer == 0) return;
  const int position = FoldedPosition() + rows;
  bool isMoved = false;
  trap.Step([&] { isMoved = (mCurrentMap->*move)(mSelectedLayer); });
  if (IsRetired()) return;
  if (!isMoved) return trap.Step([&] { OwnerDesktop().Beep(); });
  trap.Step([&] { FillList(); });
  trap.Step([&] { SelectPosition(position); });
  mListChanged = true;
}

void frmMapSettings::cmdRemove_Click() {
  ErrorTrap trap;
  if (!mCurrentMap || mSelectedLayer == 0) return;
  int position = sftLayers.PositionOf(mSelectedRow);
  bool isRemoved = false;
  trap.Step([&] { isRemoved = mCurrentMap->RemoveLayer(mSelectedLayer); });
  if (IsRetired()) return;
  if (isRemoved) {
    position = FoldedPosition();
    // The layer may no longer exist.
    mCurrentObject = nullptr;
    if (HasPages()) trap.Step([&] { Pages().Client(nullptr); });
    trap.Step([&] { FillList(); });
    mListChanged = true;
  }
  trap.Step([&] { SelectPosition(position - 1); });
}

void frmMapSettings::cmdAdd_Click() {
  if (!mMap) return;
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
  if (!mMap->AddLayer(path, {}) || IsRetired()) return;
  ErrorTrap trap;
  trap.Step([&] { FillList(); });
  trap.Step([&] { RefreshContents(); });
  mListChanged = true;
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
    ButtonStep([this] { IsDirty(false); });
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
