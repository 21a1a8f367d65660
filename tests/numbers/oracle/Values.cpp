#include "tests/numbers/oracle/Values.h"

#include <cmath>
#include <cstdlib>
#include <random>
#include <string>

namespace orx::numbers::oracle {
namespace {

/// The double next to a decimal number, as a user's entry would be.
double Scaled(const std::string& digits, int power) {
  return std::strtod((digits + "e" + std::to_string(power)).c_str(), nullptr);
}

void AddBothSigns(std::vector<double>& values, double value) {
  values.push_back(value);
  values.push_back(-value);
}

void AddHalvesAndCarries(std::vector<double>& values, int power) {
  for (int place = -12; place < power - 7; ++place)
    for (const char* digits : {"5", "15", "25", "995", "99995", "999999", "12345", "1005", "2675", "1000005"})
      AddBothSigns(values, Scaled(digits, place));
}

void AddRandom(std::vector<double>& values, int power) {
  constexpr int kCount = 2'000;
  std::mt19937_64 random(4);
  std::uniform_real_distribution<double> magnitude(-power, power);
  for (int i = 0; i < kCount; ++i) {
    AddBothSigns(values, std::pow(10.0, magnitude(random)));
    // Few digits, many of them a half at some place.
    const int places = static_cast<int>(random() % 10);
    AddBothSigns(values, Scaled(std::to_string(random() % 10'000'000) + "5", -places));
  }
}

}  // namespace

std::vector<double> Values(int power) {
  std::vector<double> values{0.0, -0.0};
  for (int i = 1; i < 200; ++i) AddBothSigns(values, i);
  AddHalvesAndCarries(values, power);
  AddRandom(values, power);
  return values;
}

}  // namespace orx::numbers::oracle
