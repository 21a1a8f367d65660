// Language files: lines of keys, texts and escapes. What was read answers for each of its keys.
#include <sstream>

#include "hostobjects/RunTimeError.h"
#include "languages/PseudoLanguage.h"
#include "languages/TextLanguage.h"
#include "tests/fuzz/Fuzz.h"
#include "text/Trimmed.h"

using orx::fuzz::Require;

namespace {

std::string LinesFrom(FuzzedDataProvider& data) {
  if (data.ConsumeBool()) return data.ConsumeRemainingBytesAsString();
  std::string text;
  while (data.remaining_bytes() > 0) {
    text += data.ConsumeIntegralInRange(0, 3) == 0
                ? data.ConsumeRandomLengthString(20)
                : std::string(data.PickValueInArray({"&OK", " = ", "=", "\\=", "\\n", "\\\\", "\\#", "#", "\n", "\r\n",
                                                     "_Help", "\xC3\xA4", "\xEF\xBB\xBF", "  ", "{1}", "\n"}));
  }
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedDataProvider data(bytes, size);
  std::istringstream lines(LinesFrom(data));
  try {
    orx::languages::TextLanguage language(lines, "fuzz.txt");
    Require(language.EntryCount() == static_cast<std::int32_t>(language.Texts().size()));
    for (const auto& [key, text] : language.Texts()) {
      Require(!key.empty() && !text.empty() && language.HasText(key));
      // A key with blanks of its own at the ends, by an escaped line break, cannot be told from one without.
      if (orx::Trimmed(key) == key) Require(language.TranslateText(key) == text);
      Require(!orx::languages::PseudoLanguage().TranslateText(key).empty() || key.starts_with('_'));
    }
  } catch (const orx::RunTimeError& refused) {
    Require(std::string(refused.what()).starts_with("fuzz.txt, line "));
  }
  return 0;
}
