// Texts that are numbers, nearly numbers and nothing of the kind, for the comparison with the platform.
#pragma once

#include <string>
#include <vector>

#include "numbers/Numbers.h"

namespace orx::numbers::oracle {

/// Whatever stands around a number, combined with numbers of all kinds.
std::vector<std::string> CombinedTexts(const Separators& separators);

/// Numbers with groups, decimals and exponents of random lengths, with a sign now and then.
std::vector<std::string> RandomNumbers(const Separators& separators, int count);

/// Characters of numbers in random order. The same for every run.
std::vector<std::string> RandomMixtures(const Separators& separators, int count);

/// "&H" and "&O" with random digits, some of them wrong.
std::vector<std::string> RandomRadixTexts(int count);

}  // namespace orx::numbers::oracle
