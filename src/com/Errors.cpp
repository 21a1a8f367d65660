#include "com/Errors.h"

#include <new>

#include "forms/Desktop.h"

namespace orx::com {
namespace {

/// The error code of a run-time error is this plus its number.
constexpr HRESULT kAutomationErrors = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, 0);
constexpr std::int32_t kGreatestNumber = 0xFFFF;

HRESULT CodeOf(std::int32_t number) {
  if (number > 0 && number <= kGreatestNumber) return kAutomationErrors + number;
  return number < 0 ? static_cast<HRESULT>(number) : E_FAIL;
}

std::int32_t NumberOf(HRESULT code) {
  return (code & ~kGreatestNumber) == kAutomationErrors ? code & kGreatestNumber : code;
}

void LeaveErrorInfo(const IID& interfaceId, const ErrorTexts& texts) {
  ComPtr<ICreateErrorInfo> made;
  if (FAILED(CreateErrorInfo(made.Out()))) return;
  made->SetGUID(interfaceId);
  made->SetDescription(Widened(texts.Description).data());
  made->SetSource(Widened(texts.Source).data());
  SetErrorInfo(0, made.As<IErrorInfo>().Get());
}

std::string SystemText(HRESULT code) {
  wchar_t* made = nullptr;
  const DWORD length =
      FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                     nullptr, static_cast<DWORD>(code), 0, reinterpret_cast<wchar_t*>(&made), 0, nullptr);
  const LocalText text(made);
  std::string narrow = Narrowed({text.get(), length});
  while (!narrow.empty() && (narrow.back() == '\n' || narrow.back() == '\r')) narrow.pop_back();
  return narrow;
}

ErrorTexts TakeErrorInfo() {
  ComPtr<IErrorInfo> info;
  Bstr description;
  Bstr source;
  if (GetErrorInfo(0, info.Out()) != S_OK || FAILED(info->GetDescription(description.Out()))) return {};
  info->GetSource(source.Out());
  return {description.Text(), source.Text()};
}

std::string Hex(HRESULT code) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text = "0x";
  for (int shift = 28; shift >= 0; shift -= 4) text += kDigits[(static_cast<unsigned>(code) >> shift) & 0xFU];
  return text;
}

}  // namespace

HRESULT ReturnError(const ErrorPlace& place) noexcept {
  HRESULT code = E_FAIL;
  try {
    ErrorTexts texts{"Unknown error.", std::string("OrvexMapDialogs2.") + place.Name};
    std::string& description = texts.Description;
    try {
      throw;
    } catch (const HostError& error) {
      code = CodeOf(error.Number());
      description = error.what();
      if (!error.Source().empty()) texts.Source = error.Source();
    } catch (const RunTimeError& error) {
      code = CodeOf(error.Number());
      description = error.what();
    } catch (const WrongThread& error) {
      code = RPC_E_WRONG_THREAD;
      description = error.what();
    } catch (const std::bad_alloc&) {
      code = E_OUTOFMEMORY;
      description = "Not enough memory.";
    } catch (const std::exception& error) {
      description = error.what();
    } catch (...) {
      // Nothing is known of it.
    }
    LeaveErrorInfo(place.Interface, texts);
  } catch (...) {
    // There was no memory for the description, so only the code is returned.
    SetErrorInfo(0, nullptr);
  }
  return code;
}

void Check(HRESULT result, const std::string& what, ErrorTexts told) {
  if (SUCCEEDED(result)) return;
  if (told.Description.empty()) told = TakeErrorInfo();
  if (told.Description.empty()) told.Description = what + ": " + SystemText(result) + " (" + Hex(result) + ")";
  throw HostError(NumberOf(result), told);
}

void RequirePlaces(std::initializer_list<NamedPlace> places) {
  for (const NamedPlace& place : places)
    if (!place.Place) throw RunTimeError(E_POINTER, std::string(place.Name) + " is a null pointer.");
}

}  // namespace orx::com
