// The requests to the platform's dialogs for choosing files, a colour or a font, with their answers, and to its help
// engine.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "forms/Appearance.h"

namespace orx {

/// A request with the meaning of the platform's OPENFILENAME on every desktop. Texts are UTF-8.
struct OpenFileRequest {
  /// The window that the dialog belongs to: HWND on Windows, WId on Qt; 0 for none.
  std::uintptr_t OwnerHandle = 0;
  std::string Title;
  std::uint32_t Flags = 0;
  /// Pairs of a text and its patterns ("*.a;*.b"), each followed by a NUL, the whole by two more.
  std::string Filter;
  /// The selected filter, counted from 1. In and out.
  std::int32_t FilterIndex = 0;
  std::string InitialFolder;
  /// In: the initial name, filled with blanks to the length that an answer may have, and a NUL. Out: a path, or a
  /// folder and the names of files in it, each followed by a NUL, the whole by one more. Unchanged when nothing was
  /// chosen.
  std::string Buffer;
  std::string DefaultExtension;
  /// Room for the name of the chosen file; no dialog of this library reads it.
  std::string FileTitle;
  /// Out: the folder that the dialog was left in.
  std::string LastFolder;
};

/// Thrown by a desktop when the user's choice cannot be returned; Desktop::OpenFiles tells the user.
class AnswerRefused final : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The values of OpenFileRequest::Flags that a desktop has to know.
inline constexpr std::uint32_t kAllowMultiselect = 0x200;
inline constexpr std::uint32_t kCreatePrompt = 0x2000;

/// A filter of a request.
struct FileFilter {
  std::string Text;
  std::vector<std::string> Patterns;
};

/// The filters, patterns without the blanks around them.
std::vector<FileFilter> FiltersOf(const OpenFileRequest& request);

/// The name that the dialog opens on: the buffer without the blanks that fill it.
std::string InitialName(const OpenFileRequest& request);

/// The separator between the names of a path in that folder.
char SeparatorOf(const std::string& folder);

/// Puts an answer into the buffer: a path when there is one name, else the folder and the names. Throws AnswerRefused,
/// with the buffer as it was, when it has no room for them.
void PutAnswer(OpenFileRequest& request, const std::string& folder, const std::vector<std::string>& names);

/// The value of ColorRequest::Flags that has the dialog start from the given colour.
inline constexpr std::uint32_t kStartFromColor = 1;

/// A request with the meaning of the platform's CHOOSECOLOR on every desktop.
struct ColorRequest {
  /// The window that the dialog belongs to: HWND on Windows, WId on Qt; 0 for none.
  std::uintptr_t OwnerHandle = 0;
  std::uint32_t Flags = 0;
  /// In: the colour to start from. Out: the one chosen; unchanged when none was.
  orx::Color Color;
  /// The hook's answer where the platform has no such dialog; without one, nothing is chosen.
  std::optional<orx::Color> Answer = {};
};

/// The value of FontRequest::Flags that asks for the fonts of screen and printer.
inline constexpr std::uint32_t kScreenAndPrinterFonts = 3;

/// A font with its colour.
struct ColoredFont {
  Font Face;
  orx::Color Color;
  bool operator==(const ColoredFont&) const = default;
};

/// A request with the meaning of the platform's CHOOSEFONT on every desktop.
struct FontRequest {
  /// The window that the dialog belongs to: HWND on Windows, WId on Qt; 0 for none.
  std::uintptr_t OwnerHandle = 0;
  std::uint32_t Flags = kScreenAndPrinterFonts;
  /// In: the font to start from. Out: the one chosen; unchanged when none was.
  ColoredFont Chosen;
  /// The hook's answer where the platform has no such dialog; without one, nothing is chosen.
  std::optional<ColoredFont> Answer = {};
};

/// What the help engine is to show. `WindowHandle` is the native window that asks (0: none).
struct HelpRequest {
  std::uintptr_t WindowHandle = 0;
  std::string FileName;
  int Command = 0;
  std::int32_t ContextId = 0;
};

/// The command that opens the Help Topics window.
inline constexpr int kHelpFinder = 11;

}  // namespace orx
