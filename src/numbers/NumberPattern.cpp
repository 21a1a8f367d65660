#include "numbers/NumberPattern.h"

#include "numbers/Scanner.h"

namespace orx::numbers {
namespace {

/// Takes a group separator between two digit places. Elsewhere it is left, which makes the text no pattern.
void TakeGroupMark(Scanner& in, NumberPattern& pattern) {
  Scanner ahead = in;
  if (pattern.IntegerPlaces == 0 || !ahead.Take(",") || !Scanner(ahead).TakeAny({"0", "#"})) return;
  pattern.Grouped = true;
  in = ahead;
}

void TakeIntegerPlaces(Scanner& in, NumberPattern& pattern) {
  while (true) {
    TakeGroupMark(in, pattern);
    const bool always = in.Take("0");
    if (!always && !in.Take("#")) return;
    ++pattern.IntegerPlaces;
    // Behind a place that is always filled, all are.
    if (always || pattern.LeastIntegers > 0) ++pattern.LeastIntegers;
  }
}

void TakeDecimalPlaces(Scanner& in, NumberPattern& pattern) {
  pattern.HasDecimal = in.Take(".");
  while (pattern.HasDecimal) {
    const bool always = in.Take("0");
    if (!always && !in.Take("#")) return;
    ++pattern.DecimalPlaces;
    if (always) pattern.LeastDecimals = pattern.DecimalPlaces;
  }
}

/// Takes an exponent with at least one place; a broken one is left, which makes the text no pattern.
void TakeExponentPlaces(Scanner& in, NumberPattern& pattern) {
  Scanner ahead = in;
  const bool plus = ahead.TakeAny({"E+", "e+"});
  if (!plus && !ahead.TakeAny({"E-", "e-"})) return;
  pattern.ShowsPlus = plus;
  pattern.ExponentLetter = in.Rest().front();
  while (ahead.Take("0")) ++pattern.ExponentDigits;
  if (pattern.ExponentDigits > 0) in = ahead;
}

}  // namespace

std::optional<NumberPattern> ToNumberPattern(std::string_view text) {
  Scanner in(text);
  NumberPattern pattern;
  in.TakeBlanks();
  TakeIntegerPlaces(in, pattern);
  TakeDecimalPlaces(in, pattern);
  TakeExponentPlaces(in, pattern);
  in.TakeBlanks();
  if (!in.AtEnd() || pattern.IntegerPlaces + pattern.DecimalPlaces == 0) return {};
  return pattern;
}

}  // namespace orx::numbers
