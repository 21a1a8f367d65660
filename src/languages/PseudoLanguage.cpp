#include "languages/PseudoLanguage.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace orx::languages {
namespace {

constexpr double kGrowth = 1.35;
constexpr std::string_view kPlain = "aceinosuyACEINOSUY";
constexpr std::string_view kAccented[] = {"á", "ç", "é", "í", "ñ", "ö", "š", "ü", "ý",
                                          "Å", "Ç", "É", "Í", "Ñ", "Ö", "Š", "Ü", "Ý"};
static_assert(kPlain.size() == std::size(kAccented));

bool IsMarked(std::string_view key, std::size_t i, char mark) {
  return i > 0 && key[i - 1] == mark;
}

}  // namespace

std::string PseudoLanguage::TranslateText(const std::string& key) {
  if (key.empty() || key.front() == '_') return {};
  if (key.front() == '[' && key.back() == ']') return key;
  std::string text = "[";
  std::size_t characters = 2;
  for (std::size_t i = 0; i < key.size(); ++i) {
    const std::size_t letter = kPlain.find(key[i]);
    const bool stays = letter == std::string_view::npos || IsMarked(key, i, '&') || IsMarked(key, i, '{');
    text += stays ? std::string_view(key).substr(i, 1) : kAccented[letter];
    const bool isTail = (static_cast<unsigned char>(key[i]) & 0xC0) == 0x80;
    if (!isTail && key[i] != '&') ++characters;
  }
  const auto wanted = static_cast<std::size_t>(std::ceil(kGrowth * static_cast<double>(characters - 2)));
  for (; characters < wanted; ++characters) text += "ö";
  return text + "]";
}

}  // namespace orx::languages
