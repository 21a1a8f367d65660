// A request to the platform's help engine.
#pragma once

#include <cstdint>
#include <string>

namespace orx {

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
