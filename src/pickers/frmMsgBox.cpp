#include "pickers/frmMsgBox.h"

#include <algorithm>

#include "forms/Desktop.h"
#include "forms/TextBox.h"
#include "text/CharacterCount.h"

namespace orx {
namespace {

constexpr char kApplicationTitle[] = "OrvexMapDialogs2";
constexpr char kEllipsis[] = "\xE2\x80\xA6";
/// How many characters of a path fit in the label beside the longest prefix.
constexpr int kShownPath = 48;

/// Draws a yellow warning sign that fills the box.
void DrawSign(PictureBox& box) {
  const Size size = box.PixelSize();
  const Color yellow{255, 200, 40};
  const Color edge{120, 90, 10};
  Canvas& canvas = box.Drawing();
  canvas.Clear();
  const int middle = size.Width / 2;
  const int bottom = size.Height - 3;
  for (int y = 3; y < bottom; ++y) {
    const int half = (y - 2) * (middle - 2) / bottom;
    canvas.Draw(FillMark{{middle - half, y, 2 * half + 1, 1}, yellow});
  }
  const int width = std::max(size.Width / 16, 1);
  const LineMark rim{{{middle, 2}, {size.Width - 3, bottom}, {2, bottom}, {middle, 2}}, edge, width};
  canvas.Draw(rim);
  const int bar = std::max(size.Width / 10, 2);
  canvas.Draw(FillMark{{middle - bar / 2, size.Height * 3 / 8, bar, size.Height / 4}, edge});
  canvas.Draw(FillMark{{middle - bar / 2, size.Height * 3 / 4 - bar / 2, bar, bar}, edge});
  box.Refresh();
}

/// Where the n-th character of a UTF-8 text starts.
std::size_t OffsetOf(const std::string& text, int character) {
  std::size_t at = 0;
  for (; character > 0 && at < text.size(); --character) do
      ++at;
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80);
  return at;
}

/// A path that is too long loses its middle, since its ends say the most.
std::string Shortened(const std::string& path) {
  const int length = CharacterCount(path);
  if (length <= kShownPath) return path;
  const int head = kShownPath / 3;
  const int tail = kShownPath - head - 1;
  return path.substr(0, OffsetOf(path, head)) + kEllipsis + path.substr(OffsetOf(path, length - tail));
}

}  // namespace

frmMsgBox::frmMsgBox(Desktop& desktop)
    : DialogForm(desktop,
                 {.Name = "frmMsgBox", .Caption = "MsgBox", .HelpKey = "_HelpMapMsgBox", .Client = {6600, 1800}}) {
  cmdBrowse.Click = [this] { cmdBrowse_Click(); };
  cmdCancel.Click = [this] {
    mCancelAll = false;
    Unload();
  };
  cmdCancelAll.Click = [this] {
    mCancelAll = true;
    Unload();
  };
  cmdHelp.Click = [this] { ShowHelp(); };
}

void frmMsgBox::Fill() {
  if (mCaption.empty()) mCaption = kApplicationTitle;
  Form::Caption(mCaption);
  if (mMessage.empty()) mMessage = "File not found...";
  ShowMessageText();
  mCancelAll = false;
}

void frmMsgBox::Ready() {
  imgIcon.BackColor(OwnerDesktop().SystemColor(SystemColor::DialogFace));
  DrawSign(imgIcon);
}

void frmMsgBox::ShowMessageText() {
  std::string shown = mMessage;
  const std::string shortened = Shortened(mFileName);
  const std::size_t at = mFileName.empty() || shortened == mFileName ? std::string::npos : shown.find(mFileName);
  if (at != std::string::npos) {
    shown.replace(at, mFileName.size(), shortened);
    lblMsg.ToolTipText(mFileName);
  }
  lblMsg.Caption(AsCaption(shown));
}

void frmMsgBox::cmdBrowse_Click() {
  std::vector<std::string> files{OwnerDesktop().LowerCase(mFileName)};
  const bool chosen = modDialog::ChooseFiles({OwnerDesktop(), NativeHandle(), mKind, Language()}, false, files);
  // A prompt that was closed meanwhile has nobody left to be told.
  if (IsRetired()) return;
  mNewFileName = chosen ? files.front() : std::string();
  if (chosen) Unload();
}

}  // namespace orx
