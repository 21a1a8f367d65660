// How many GDI objects the process has, by the table in which the system keeps them.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace orx::test {

/// An entry of the table, which has the layout of 64-bit programs everywhere but in 32-bit systems of old.
struct GdiEntry {
  std::uint64_t Object;
  std::uint16_t Process;
  std::uint16_t Count;
  std::uint16_t Upper;
  std::uint16_t Type;
  std::uint64_t User;
};

inline const GdiEntry* GdiTable() {
#ifdef _WIN64
  constexpr int kProcessBlock = 0x60;
  constexpr std::size_t kTable = 0xF8;
  const auto* const block = reinterpret_cast<const std::byte*>(__readgsqword(kProcessBlock));
#else
  constexpr int kProcessBlock = 0x30;
  constexpr std::size_t kTable = 0x94;
  const auto* const block = reinterpret_cast<const std::byte*>(__readfsdword(kProcessBlock));
#endif
  return *reinterpret_cast<const GdiEntry* const*>(block + kTable);
}

/// GetGuiResources does not count on all systems: under Wine it always answers 0. Entries without a process belong to
/// all, and under Wine, where every process has a table of its own, to this one.
inline int GdiObjects() {
  const GdiEntry* const table = GdiTable();
  MEMORY_BASIC_INFORMATION memory = {};
  VirtualQuery(table, &memory, sizeof(memory));
  const std::size_t whole =
      memory.RegionSize - static_cast<std::size_t>(reinterpret_cast<const std::byte*>(table) -
                                                   static_cast<const std::byte*>(memory.BaseAddress));
  const std::size_t size = std::min<std::size_t>(0x10000, whole / sizeof(GdiEntry));
  const auto own = static_cast<std::uint16_t>(GetCurrentProcessId());
  return static_cast<int>(std::count_if(table, table + size, [own](const GdiEntry& at) {
    return at.Type != 0 && (at.Process == own || at.Process == 0);
  }));
}

}  // namespace orx::test
