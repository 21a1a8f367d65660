#include "tests/numbers/oracle/Oracle.h"

#include <windows.h>

#include <oleauto.h>

#include <array>
#include <cstdlib>
#include <memory>

namespace orx::numbers::oracle {
namespace {

std::wstring Wide(const std::string& text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), size)));
  return wide;
}

std::string Narrow(const wchar_t* text, int size) {
  std::string narrow(static_cast<std::size_t>(size) * 3, '\0');
  const int room = static_cast<int>(narrow.size());
  const int used = WideCharToMultiByte(CP_UTF8, 0, text, size, narrow.data(), room, nullptr, nullptr);
  narrow.resize(static_cast<std::size_t>(used));
  return narrow;
}

std::optional<std::string> Taken(HRESULT result, BSTR text) {
  if (FAILED(result)) return {};
  const std::unique_ptr<wchar_t, decltype(&SysFreeString)> owner(text, SysFreeString);
  return Narrow(text, static_cast<int>(SysStringLen(text)));
}

std::string Mark(LCID locale, LCTYPE type) {
  std::array<wchar_t, 16> text{};
  const int size = GetLocaleInfoW(locale, type | LOCALE_NOUSEROVERRIDE, text.data(), static_cast<int>(text.size()));
  return Narrow(text.data(), size - 1);
}

Locale MakeLocale(LCID id) {
  return {static_cast<std::uint32_t>(id),
          {Mark(id, LOCALE_SDECIMAL), Mark(id, LOCALE_STHOUSAND), Mark(id, LOCALE_SCURRENCY)}};
}

/// A hexadecimal or octal number is an integer of 16 or 32 bits, any other text a double.
ULONG WantedTypes(const NUMPARSE& parsed) {
  return parsed.nBaseShift == 0 ? VTBIT_R8 : VTBIT_I2 | VTBIT_I4;
}

}  // namespace

const Locale& English() {
  static const Locale locale = MakeLocale(MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT));
  return locale;
}

const Locale& German() {
  static const Locale locale = MakeLocale(MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT));
  return locale;
}

std::optional<double> ToDouble(const std::string& text, const Locale& locale) {
  std::wstring wide = Wide(text);
  std::array<BYTE, 512> digits{};
  NUMPARSE parsed{};
  parsed.cDig = static_cast<INT>(digits.size());
  parsed.dwInFlags = NUMPRS_STD | NUMPRS_HEX_OCT;
  if (FAILED(VarParseNumFromStr(wide.data(), locale.Id, LOCALE_NOUSEROVERRIDE, &parsed, digits.data()))) return {};
  VARIANT number;
  VariantInit(&number);
  if (FAILED(VarNumFromParseNum(&parsed, digits.data(), WantedTypes(parsed), &number))) return {};
  if (FAILED(VariantChangeType(&number, &number, 0, VT_R8))) return {};
  return V_R8(&number);
}

std::optional<std::string> FormatNumber(double value, const std::string& pattern, const Locale& locale) {
  std::wstring wide = Wide(pattern);
  std::array<BYTE, 256> tokens{};
  const int room = static_cast<int>(tokens.size());
  if (FAILED(VarTokenizeFormatString(wide.data(), tokens.data(), room, 0, 0, locale.Id, nullptr))) return {};
  VARIANT number;
  VariantInit(&number);
  V_VT(&number) = VT_R8;
  V_R8(&number) = value;
  BSTR text = nullptr;
  const HRESULT result = VarFormatFromTokens(&number, wide.data(), tokens.data(), 0, &text, locale.Id);
  return Taken(result, text);
}

std::optional<std::int32_t> RoundToLong(double value) {
  LONG rounded = 0;
  if (FAILED(VarI4FromR8(value, &rounded))) return {};
  return rounded;
}

std::optional<std::string> TextOf(double value, const Locale& locale) {
  BSTR text = nullptr;
  const HRESULT result = VarBstrFromR8(value, locale.Id, LOCALE_NOUSEROVERRIDE, &text);
  return Taken(result, text);
}

bool HasFifteenDigits(double value) {
  const std::optional<std::string> text = TextOf(value, English());
  return text && std::strtod(text->c_str(), nullptr) == value;
}

}  // namespace orx::numbers::oracle
