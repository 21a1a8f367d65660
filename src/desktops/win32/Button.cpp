#include "forms/Button.h"

#include "desktops/win32/Handles.h"
#include "desktops/win32/Peers.h"
#include "forms/Desktop.h"
#include "forms/Form.h"

namespace orx::win32 {
namespace {

/// An icon made of an image with transparent pixels.
GdiObject<HBITMAP> ColorsOf(const Image& image) {
  BITMAPINFO info = {};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), image.Width, -image.Height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  GdiObject<HBITMAP> bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  auto* to = static_cast<std::uint8_t*>(bits);
  for (std::size_t i = 0; bits && i < image.Pixels.size(); i += 4) {
    for (const std::size_t part : {2U, 1U, 0U, 3U}) *to++ = image.Pixels[i + part];
  }
  return bitmap;
}

/// One bit for each pixel, rows of whole words: set where the picture is transparent. A disabled button draws the
/// remaining shape.
GdiObject<HBITMAP> MaskOf(const Image& image) {
  const auto width = static_cast<std::size_t>(image.Width);
  const std::size_t stride = (width + 15) / 16 * 2;
  std::vector<std::uint8_t> bits(stride * static_cast<std::size_t>(image.Height), 0);
  for (std::size_t i = 0; i * 4 < image.Pixels.size(); ++i) {
    const std::size_t x = i % width;
    if (image.Pixels[i * 4 + 3] < 128) bits[i / width * stride + x / 8] |= static_cast<std::uint8_t>(0x80U >> (x % 8));
  }
  return GdiObject<HBITMAP>(CreateBitmap(image.Width, image.Height, 1, 1, bits.data()));
}

class Icon {
 public:
  explicit Icon(const Image& image) {
    const GdiObject<HBITMAP> colors = ColorsOf(image);
    const GdiObject<HBITMAP> mask = MaskOf(image);
    ICONINFO info = {TRUE, 0, 0, mask.get(), colors.get()};
    mIcon = CreateIconIndirect(&info);
  }
  ~Icon() { DestroyIcon(mIcon); }
  Icon(const Icon&) = delete;
  Icon& operator=(const Icon&) = delete;
  HICON Get() const { return mIcon; }

 private:
  HICON mIcon = nullptr;
};

class ButtonPeer final : public Peer {
 public:
  ButtonPeer(Button& control, Dialog& dialog, HWND window) : Peer(control, dialog, window), mControl(control) {
    ShowPicture();
  }

 private:
  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Text && mControl.ShowsCaption()) ShowText(Window(), mControl.Caption());
    Peer::Mirror(aspect);
  }

  void ShowPicture() {
    if (!mControl.Picture()) return;
    // The platform would draw it differently while the button is disabled.
    const int pixels = mControl.OwnerForm().OwnerDesktop().ToPixels(kGlyphGrid * kTwipsPerPixel);
    const COLORREF ink = GetSysColor(COLOR_BTNTEXT);
    auto icon = std::make_unique<Icon>(
        DrawGlyph(*mControl.Picture(), pixels, {GetRValue(ink), GetGValue(ink), GetBValue(ink)}));
    SendMessageW(Window(), BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon->Get()));
    mIcon = std::move(icon);
  }

  bool LeavesArrowKeys() const override { return true; }

  void OnCommand(int code) override {
    Button& control = mControl;
    if (code == BN_CLICKED) Report([&] { control.UserPress(); });
  }

  LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
    // Enter presses the button that has the focus, so it carries the mark of the default button while it has it.
    if (message == WM_SETFOCUS) MarkDefault(window);
    if (message == WM_KILLFOCUS) MarkDefault(nullptr);
    if (message == WM_SYSCOLORCHANGE) ShowPicture();
    return Peer::OnMessage(window, message, wParam, lParam);
  }

  void MarkDefault(HWND focused) const {
    const auto mark = [](HWND button, bool isDefault) {
      const LONG_PTR picture = GetWindowLongPtrW(button, GWL_STYLE) & BS_ICON;
      SendMessageW(button, BM_SETSTYLE, static_cast<WPARAM>((isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) | picture),
                   TRUE);
    };
    if (Owner().IsRetired()) return;
    const Button* const byEnter = mControl.OwnerForm().ButtonFor(ButtonRole::Default);
    if (byEnter && byEnter != &mControl && PeerOf(*byEnter)) mark(PeerOf(*byEnter)->Window(), !focused);
    if (byEnter != &mControl) mark(Window(), focused != nullptr);
  }

  Button& mControl;
  std::unique_ptr<Icon> mIcon;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(Button& control, Dialog& dialog, const WindowSite& site) {
  const DWORD style = control.Role() == ButtonRole::Default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
  const DWORD picture = control.Picture() ? BS_ICON : 0;
  return std::make_unique<ButtonPeer>(control, dialog, MakeWindow(L"BUTTON", style | picture | WS_TABSTOP, site));
}

}  // namespace orx::win32
