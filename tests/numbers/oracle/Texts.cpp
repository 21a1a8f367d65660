// Texts are written with ".", "," and "$", which the separators of the locale then replace.
#include "tests/numbers/oracle/Texts.h"

#include <random>

namespace orx::numbers::oracle {
namespace {

const std::vector<std::string> kFronts{"",   " ",  "\t", "  ", "-",  "+",  "- ", " -", "+ ", "(",    "( ",   "-(", "(-",
                                       "((", "--", "+-", "$",  "$ ", "-$", "$-", "($", "$(", " $ -", "- $ ", "$$", "&"};
const std::vector<std::string> kNumbers{"",
                                        "0",
                                        "7",
                                        "007",
                                        "42",
                                        "12.5",
                                        ".5",
                                        "5.",
                                        ".",
                                        "1,234",
                                        "12,345,678",
                                        "1,5",
                                        "1,2345",
                                        "1234,567",
                                        "1,23,456",
                                        ",123",
                                        "123,",
                                        "1,,234",
                                        "1.234,5",
                                        "1,234.5",
                                        "0,001",
                                        "1 234",
                                        "1.2.3",
                                        "1e",
                                        "12345678901234567890",
                                        "0.00000000000000000001",
                                        "179769313486231570000",
                                        "x",
                                        "1x2"};
const std::vector<std::string> kExponents{"",      "E5",   "e-5",  "E+05",   "D3",  "d-3", "E",
                                          "E+",    "E308", "E309", "E-400",  "E 5", " E5", "E99999999999",
                                          "D+400", "E1.5", "E+-5", "E1,000", "E5E5"};
const std::vector<std::string> kBacks{"",   " ",  "\t", "-",  "+",  " -", "- ", ")",  " )", ")-",
                                      "-)", "))", "$",  " $", "$-", "-$", "$)", ")$", "--", "x"};

std::string Localized(const std::string& text, const Separators& separators) {
  std::string result;
  for (const char c : text) {
    if (c == '.') {
      result += separators.Decimal;
    } else if (c == ',') {
      result += separators.Group;
    } else if (c == '$') {
      result += separators.Currency;
    } else {
      result += c;
    }
  }
  return result;
}

/// One of so many combinations is tried. No list's length is a multiple of it, so all that is in the lists has its
/// turn.
constexpr std::size_t kStep = 7;

/// The entry that `number` stands for when its lowest "digit" counts the entries of the list; takes that digit away.
const std::string& Chosen(const std::vector<std::string>& list, std::size_t& number) {
  const std::string& chosen = list[number % list.size()];
  number /= list.size();
  return chosen;
}

class Dice {
 public:
  explicit Dice(unsigned seed) : mRandom(seed) {}

  int Below(int limit) { return static_cast<int>(mRandom() % static_cast<unsigned>(limit)); }
  bool Once(int times) { return Below(times) == 0; }
  char From(const std::string& characters) {
    return characters[static_cast<std::size_t>(Below(static_cast<int>(characters.size())))];
  }
  std::string Digits(int count) {
    std::string digits;
    while (count-- > 0) digits += From("0123456789");
    return digits;
  }

 private:
  std::mt19937 mRandom;
};

std::string RandomInteger(Dice& dice) {
  if (dice.Once(2)) return dice.Digits(dice.Below(20));
  std::string integer = dice.Digits(1 + dice.Below(3));
  for (int groups = dice.Below(4); groups > 0; --groups) integer += "," + dice.Digits(dice.Once(8) ? dice.Below(5) : 3);
  return integer;
}

std::string RandomNumber(Dice& dice) {
  std::string text = dice.Once(4) ? "-" : "";
  text += RandomInteger(dice);
  if (dice.Once(2)) text += "." + dice.Digits(dice.Below(20));
  if (dice.Once(3)) text += (dice.Once(2) ? "E" : "E-") + dice.Digits(1 + dice.Below(3));
  return text;
}

}  // namespace

std::vector<std::string> CombinedTexts(const Separators& separators) {
  const std::size_t count = kNumbers.size() * kExponents.size() * kFronts.size() * kBacks.size();
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < count; i += kStep) {
    std::size_t rest = i;
    const std::string number = Chosen(kNumbers, rest) + Chosen(kExponents, rest);
    const std::string front = Chosen(kFronts, rest);
    texts.push_back(Localized(front + number + Chosen(kBacks, rest), separators));
  }
  return texts;
}

std::vector<std::string> RandomNumbers(const Separators& separators, int count) {
  Dice dice(1);
  std::vector<std::string> texts;
  while (count-- > 0) texts.push_back(Localized(RandomNumber(dice), separators));
  return texts;
}

std::vector<std::string> RandomMixtures(const Separators& separators, int count) {
  Dice dice(2);
  std::vector<std::string> texts;
  while (count-- > 0) {
    std::string text;
    for (int length = 1 + dice.Below(9); length > 0; --length)
      text += dice.From("0123456789012345678912512  --+()$$..,,EeDdx&HhOo");
    texts.push_back(Localized(text, separators));
  }
  return texts;
}

std::vector<std::string> RandomRadixTexts(int count) {
  Dice dice(3);
  std::vector<std::string> texts{"&HFF",       "&o17",       "&H8000",     "&H7FFF",   "&HFFFF",       "&H10000",
                                 "&HFFFFFFFF", "&H80000000", "&H7FFFFFFF", "&O177777", "&O37777777777"};
  while (count-- > 0) {
    const bool hexadecimal = dice.Once(2);
    std::string text = dice.Once(8) ? " &" : "&";
    text += dice.From(hexadecimal ? "Hh" : "Oo");
    for (int length = dice.Below(hexadecimal ? 10 : 13); length > 0; --length)
      text += dice.From(dice.Once(40) ? "8Gg-. " : hexadecimal ? "0123456789ABCDEFabcdef" : "01234567");
    texts.push_back(dice.Once(8) ? text + " " : text);
  }
  return texts;
}

}  // namespace orx::numbers::oracle
