#include "propertydialogs/frmDataDialog.h"

#include <algorithm>
#include <limits>

#include "hostobjects/ErrorTrap.h"
#include "propertydialogs/PageRequests.h"

namespace orx {
namespace {

/// The margin around the controls, in twips, and the height of the strip, in pixels.
constexpr int kMargin = 8 * kTwipsPerPixel;
constexpr int kStripHeight = 3;

constexpr char kPageName[] = "DataProperties1";

/// Mouse positions are tested in 16 bits.
std::int16_t Narrow(int value) {
  using Limits = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(std::clamp<int>(value, Limits::min(), Limits::max()));
}

}  // namespace

frmDataDialog::frmDataDialog(Desktop& desktop, IPageFactory& pages)
    : PageHostForm(desktop, pages,
                   {.Name = "frmDataDialog",
                    .Caption = "Data Classify",
                    .HelpKey = "_HelpLayerDataProperties",
                    .Pages = {{PageKind::DataProperties, kPageName, "Data", AnswerDataRequests}},
                    .Layout = {.Client = {6465, 5910},
                               .Tab = {120, 120, 6255, 5175},
                               .ButtonTop = 5415,
                               .HelpLeft = 120,
                               .OKLeft = 2340,
                               .CancelLeft = 3720,
                               .ApplyLeft = 5100},
                    .Border = BorderStyle::SizableHeight}) {
}

Placement frmDataDialog::Kept() const {
  return {OwnerDesktop(), RegistryKey(), "DataDialog"};
}

void frmDataDialog::Arrange() {
  Kept().Restore(*this);
  const int frame = OwnerDesktop().Metrics(Border()).Frame.Height;
  // However small the stored height, the buttons stay in reach.
  const int smallest = 2 * kMargin + cmdHelp.Place().Height;
  if (const std::optional<int> height = Kept().Read("Height"))
    ClientSize({ClientSize().Width, std::max(smallest, *height - frame)});
}

void frmDataDialog::Form_Resize() {
  ErrorTrap trap;
  trap.Step([&] { CloseUpButtons(); });
  trap.Step([&] { LayOut(); });
  trap.Step([&] { RefreshContents(); });
}

void frmDataDialog::LayOut() {
  const Desktop& desktop = OwnerDesktop();
  const Size client = ShownClientSize();
  mStrip = {.Left = 0, .Right = desktop.ToPixels(client.Width), .Bottom = desktop.ToPixels(client.Height)};
  mStrip.Top = mStrip.Bottom - kStripHeight;
  const int top = ClientSize().Height - kMargin - cmdHelp.Place().Height;
  for (Button* const button : std::initializer_list<Button*>{&cmdHelp, &cmdOK, &cmdCancel, &cmdApply}) button->Top(top);
  // A window with room for little but the buttons leaves nothing for the page.
  const Rect tab = ssTab.Place();
  ssTab.Place({tab.Left, tab.Top, tab.Width, std::max(0, top - kMargin - tab.Top)});
  Control* const page = ssTab.Page(0).Find(kPageName);
  const int height = ssTab.Place().Height - tab.Top - TabControl::kStrip - kMargin;
  if (page) page->Place({0, 0, page->Place().Width, std::max(0, height)});
}

bool frmDataDialog::IsOnStrip(Point at) const {
  return modMain::PointInRect(Narrow(at.X), Narrow(at.Y), mStrip);
}

void frmDataDialog::Form_MouseMove(Point at) {
  Desktop& desktop = OwnerDesktop();
  if (IsOnStrip(at)) {
    if (desktop.Pointer() != Pointer::SizeNS) desktop.Pointer(Pointer::SizeNS);
  } else if (desktop.Pointer() != Pointer::Default) {
    desktop.Pointer(Pointer::Default);
  }
}

void frmDataDialog::Form_MouseDown(Point at) {
  if (!IsOnStrip(at)) return;
  DragBottomEdge();
  // The user may have closed the window in the meantime.
  if (!Visible()) return;
  Refresh();
  Form_Resize();
}

void frmDataDialog::Form_Unload() {
  // The mouse may still be where the strip was, if the user ended the dialog by a key.
  if (OwnerDesktop().Pointer() == Pointer::SizeNS) OwnerDesktop().Pointer(Pointer::Default);
  PageHostForm::Form_Unload();
  // A form whose page could not be made has never been put anywhere.
  if (!HasPages()) return;
  Kept().Keep(*this);
  Kept().Write("Height", Height());
}

}  // namespace orx
