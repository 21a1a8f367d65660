#include "service/modMain.h"

#include "forms/CharacterCount.h"
#include "forms/Desktop.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/TextBox.h"
#include "hostobjects/ErrorTrap.h"

namespace orx::modMain {
namespace {

std::string& HelpFileOfTheProcess() {
  static std::string file;
  return file;
}

}  // namespace

const std::string& HelpFile() {
  return HelpFileOfTheProcess();
}

void HelpFile(const std::string& value) {
  HelpFileOfTheProcess() = value;
}

void DrawInsetFocusRect(PictureBox& box, std::int32_t inset) noexcept {
  ErrorTrap trap;
  trap.Step([&] {
    if (!box.AutoRedraw()) box.AutoRedraw(true);
  });
  trap.Step([&] {
    const Size client = box.PixelSize();
    box.Drawing().ToggleFocus({inset, inset, client.Width - 2 * inset, client.Height - 2 * inset});
  });
  trap.Step([&] { box.Refresh(); });
}

void DrawEdge(PictureBox& box) {
  constexpr Color kEdge{122, 122, 122};
  const Size size = box.PixelSize();
  const Point last{size.Width - 1, size.Height - 1};
  box.Drawing().Clear();
  box.Drawing().Draw(LineMark{{{0, 0}, {last.X, 0}, last, {0, last.Y}, {0, 0}}, kEdge});
}

void SelectAllText(TextBox& box) noexcept {
  ErrorTrap trap;
  trap.Step([&] { box.SelStart(0); });
  trap.Step([&] { box.SelLength(CharacterCount(box.Text())); });
}

void ShowHelpFinder(Form& form, const std::string& helpFile, std::int32_t helpContextId) {
  Desktop& desktop = form.OwnerDesktop();
  if (helpFile.empty()) {
    desktop.ShowMessage(
        {"Unable to display Help. There is no Help associated with this project.", "Help", MessageIcon::Information});
    return;
  }
  ErrorTrap trap;
  trap.Step([&] {
    const std::uintptr_t handle = form.Window() ? form.Window()->NativeHandle() : 0;
    desktop.ShowHelp({handle, helpFile, kHelpFinder, helpContextId});
  });
}

bool PointInRect(std::int16_t x, std::int16_t y, const PixelEdges& rectangle) {
  return rectangle.Left <= x && x <= rectangle.Right && rectangle.Top <= y && y <= rectangle.Bottom;
}

}  // namespace orx::modMain
