// Texts of any bytes where UTF-8 is expected: counted, compared, trimmed, turned into paths and back.
#include "tests/fuzz/Fuzz.h"
#include "text/AnsiCharacters.h"
#include "text/CharacterCount.h"
#include "text/CharacterText.h"
#include "text/Paths.h"
#include "text/Trimmed.h"
#include "text/Utf8Text.h"

using orx::fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedDataProvider data(bytes, size);
  const auto code = data.ConsumeIntegral<std::int32_t>();
  const std::string drawn = orx::CharacterText(code);
  Require(drawn.empty() != orx::IsCharacter(code));
  if (orx::IsCharacter(code)) Require(orx::FirstCharacter(drawn) == static_cast<char32_t>(code));
  const std::int32_t fontCode = orx::FontCode(code);
  Require(fontCode >= 0 && fontCode <= 255);
  Require(orx::CharacterOf(fontCode, code) == code || !orx::IsCharacter(code));

  const std::string text = data.ConsumeRemainingBytesAsString();
  const int count = orx::CharacterCount(text);
  Require(count >= 0 && static_cast<std::size_t>(count) <= text.size());
  Require(orx::EqualInAnyCase(text, text));
  Require(orx::BeginsWith(text, {}));
  const std::string_view trimmed = orx::Trimmed(text);
  Require(orx::Trimmed(trimmed) == trimmed && text.find(trimmed) != std::string::npos);
  if (const auto path = orx::PathFrom(text)) {
    Require(orx::Utf8(*path) == text);
    Require(orx::ExtensionOf(*path).size() <= text.size());
  }
  return 0;
}
