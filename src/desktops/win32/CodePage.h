// Texts of the platform's 8-bit interfaces, and the true names of files behind them.
#pragma once

#include <optional>
#include <string>

namespace orx::win32 {

/// UTF-16 to and from the 8-bit code page of the process; a character that it lacks becomes a similar one or "?", as
/// the platform's own dialogs do it.
std::string ToCodePage(const std::wstring& text);
std::wstring FromCodePage(const std::string& text);

/// True when nothing of the text is lost in the code page.
bool FitsCodePage(const std::wstring& text);

/// The entry of a folder that the 8-bit name stands for: the one whose name becomes it. A name that no entry has stands
/// for itself while it has lost nothing. None when that cannot be told.
std::optional<std::wstring> TrueName(const std::wstring& folder, const std::string& name);

}  // namespace orx::win32
