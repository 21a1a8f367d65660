#include "desktops/win32/Win32Desktop.h"

#include <windows.h>

#include <commctrl.h>

#include "desktops/win32/Characters.h"
#include "desktops/win32/ColorDialog.h"
#include "desktops/win32/DialogWindow.h"
#include "desktops/win32/FileDialog.h"
#include "desktops/win32/FontDialog.h"
#include "desktops/win32/Fonts.h"
#include "desktops/win32/GuestScope.h"
#include "desktops/win32/MessageBox.h"
#include "desktops/win32/MousePointers.h"
#include "desktops/win32/Owners.h"
#include "desktops/win32/PlatformDialog.h"
#include "desktops/win32/RegistrySettings.h"
#include "desktops/win32/Text.h"
#include "desktops/win32/WindowPicture.h"
#include "forms/Form.h"

namespace orx::win32 {
namespace {

/// The font size, in points, and the resolution for which the dialogs are designed.
constexpr double kDesignPoints = 9;
constexpr double kDesignDotsPerInch = 96;

std::string LocaleText(LCTYPE what) {
  wchar_t text[16] = {};
  GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, what, text, static_cast<int>(std::size(text)));
  return Narrowed(text);
}

/// The size that the frame adds to a client area.
SIZE FrameSize(BorderStyle border) {
  RECT frame = {};
  const bool isFixed = border == BorderStyle::Fixed;
  AdjustWindowRectEx(&frame, WS_POPUP | WS_CAPTION | WS_SYSMENU | (isFixed ? 0 : WS_THICKFRAME), FALSE,
                     isFixed ? WS_EX_DLGMODALFRAME : 0);
  return {frame.right - frame.left, frame.bottom - frame.top};
}

/// The help engine takes the name of the file in the 8-bit code page.
void AskHelpEngine(const HelpRequest& request) {
  const std::wstring wide = Widened(request.FileName);
  const int length = WideCharToMultiByte(CP_ACP, 0, wide.c_str(), -1, nullptr, 0, nullptr, nullptr);
  std::string file(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_ACP, 0, wide.c_str(), -1, file.data(), length, nullptr, nullptr);
  WinHelpA(reinterpret_cast<HWND>(request.WindowHandle), file.c_str(), static_cast<UINT>(request.Command),
           static_cast<ULONG_PTR>(request.ContextId));
}

double MeasureScale() {
  const GuestScope guest;
  return SystemDpi() / kDesignDotsPerInch * (DialogFontPoints() / kDesignPoints);
}

/// Runs a dialog of the platform as a guest. What it is to call once it is up runs in the host's surroundings.
template <class Show>
auto AsGuest(const std::function<void()>& isUp, Show&& show) {
  const Surroundings before = Surroundings::OfThread();
  const std::function<void()> running = [&] {
    const SurroundingsScope host(before);
    isUp();
  };
  const GuestScope guest;
  return show(running);
}

/// Adds the work area of a screen that is not the main one.
BOOL CALLBACK AddMonitor(HMONITOR monitor, HDC, RECT*, LPARAM areas) {
  MONITORINFO info = {};
  info.cbSize = sizeof(info);
  if (GetMonitorInfoW(monitor, &info) && !(info.dwFlags & MONITORINFOF_PRIMARY))
    reinterpret_cast<std::vector<RECT>*>(areas)->push_back(info.rcWork);
  return TRUE;
}

}  // namespace

struct Win32Desktop::State {
  RegistrySettings Settings;
  std::function<void(const HelpRequest&)> HelpEngine = AskHelpEngine;
  double Scale = MeasureScale();
};

Win32Desktop::Win32Desktop() : mState(std::make_unique<State>()) {
}

Win32Desktop::~Win32Desktop() {
  CloseOpenForms();
}

ScreenMetrics Win32Desktop::SystemMetrics(BorderStyle border) const {
  const GuestScope guest;
  RECT area = {};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  const auto twips = [this](LONG pixels) { return ToTwips(static_cast<int>(pixels)); };
  ScreenMetrics metrics;
  metrics.Screen = {twips(GetSystemMetrics(SM_CXSCREEN)), twips(GetSystemMetrics(SM_CYSCREEN))};
  metrics.WorkArea = {twips(area.left), twips(area.top), twips(area.right - area.left), twips(area.bottom - area.top)};
  const SIZE frame = FrameSize(border);
  metrics.Frame = {twips(frame.cx), twips(frame.cy)};
  return metrics;
}

std::vector<Rect> Win32Desktop::FurtherWorkAreas() const {
  std::vector<Rect> areas;
  const GuestScope guest;
  std::vector<RECT> further;
  EnumDisplayMonitors(nullptr, nullptr, AddMonitor, reinterpret_cast<LPARAM>(&further));
  const auto twips = [this](LONG pixels) { return ToTwips(static_cast<int>(pixels)); };
  for (const RECT& area : further)
    areas.push_back({twips(area.left), twips(area.top), twips(area.right - area.left), twips(area.bottom - area.top)});
  return areas;
}

double Win32Desktop::Scale() const {
  return mState->Scale;
}

std::vector<std::string> Win32Desktop::ScreenFonts() const {
  return ScreenFontNames();
}

Color Win32Desktop::SystemColor(orx::SystemColor which) const {
  const COLORREF color = GetSysColor(static_cast<int>(which));
  return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

CharacterCodes Win32Desktop::CharactersOf(const Font& face) const {
  const GuestScope guest;
  return CodesOf(face);
}

numbers::Separators Win32Desktop::LocaleSeparators() const {
  return {LocaleText(LOCALE_SDECIMAL), LocaleText(LOCALE_STHOUSAND), LocaleText(LOCALE_SCURRENCY)};
}

std::string Win32Desktop::LowerCase(const std::string& text) const {
  std::wstring wide = Widened(text);
  CharLowerBuffW(wide.data(), static_cast<DWORD>(wide.size()));
  return Narrowed(wide);
}

SettingsStore& Win32Desktop::Settings() {
  return mState->Settings;
}

void Win32Desktop::HelpEngine(std::function<void(const HelpRequest&)> engine) {
  mState->HelpEngine = std::move(engine);
}

void Win32Desktop::DoProcessPendingEvents() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
    if (!HandleOneMessage(message)) return;
}

bool Win32Desktop::SavePicture(const Form& form, const std::string& pngPath) const {
  const GuestScope guest;
  return form.Visible() && win32::SavePicture(reinterpret_cast<HWND>(form.Window()->NativeHandle()), pngPath);
}

bool Win32Desktop::SaveMessagePicture(const std::string& pngPath) const {
  const GuestScope guest;
  return win32::SavePicture(OpenPlatformDialog(), pngPath);
}

std::unique_ptr<FormWindow> Win32Desktop::OpenWindow(Form& form) {
  const GuestScope guest;
  INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_STANDARD_CLASSES | ICC_TAB_CLASSES | ICC_BAR_CLASSES |
                                                         ICC_LISTVIEW_CLASSES | ICC_PROGRESS_CLASS};
  InitCommonControlsEx(&controls);
  return std::make_unique<DialogWindow>(form);
}

MessageAnswer Win32Desktop::DoShowMessage(const Message& message, FormWindow* owner) {
  const std::uintptr_t window = owner ? owner->NativeHandle() : 0;
  return AsGuest([&] { ModalIsRunning({.ShownMessage = &message}); },
                 [&](const auto& running) { return RunMessageBox(message, ModalOwner(window), running); });
}

bool Win32Desktop::DoOpenFiles(OpenFileRequest& request) {
  return AsGuest([&] { ModalIsRunning({.ShownFiles = &request}); },
                 [&](const auto& running) { return RunFileDialog(request, running); });
}

bool Win32Desktop::DoChooseColor(ColorRequest& request) {
  return AsGuest([&] { ModalIsRunning({.ShownColor = &request}); },
                 [&](const auto& running) { return RunColorDialog(request, running); });
}

bool Win32Desktop::DoChooseFont(FontRequest& request) {
  return AsGuest([&] { ModalIsRunning({.ShownFont = &request}); },
                 [&](const auto& running) { return RunFontDialog(request, running); });
}

void Win32Desktop::DoBeep() {
  MessageBeep(MB_OK);
}

void Win32Desktop::DoSetPointer(orx::Pointer value) {
  const GuestScope guest;
  ShowPointer(value);
}

void Win32Desktop::DoShowHelp(const HelpRequest& request) {
  mState->HelpEngine(request);
}

}  // namespace orx::win32
