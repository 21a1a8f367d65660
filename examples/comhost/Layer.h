// The host's objects: a layer of its map, and what hears of the user's buttons.
#pragma once

#include <string>

#include "Automation.h"

class Layer final : public AutomationObject<ILayer> {
 public:
  std::wstring Name = L"Relief";
  bool Visible = true;
  std::wstring SymbolFont = L"Wingdings";
  LONG SymbolCharacter = 0x6C;
  double SymbolRotation = 0;
  double SymbolSize = 12;

  HRESULT STDMETHODCALLTYPE get_Name(BSTR* value) override { return Give(Name, value); }
  HRESULT STDMETHODCALLTYPE put_Name(BSTR value) override { return Take(value, Name); }
  HRESULT STDMETHODCALLTYPE get_Visible(VARIANT_BOOL* value) override {
    *value = Visible ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE put_Visible(VARIANT_BOOL value) override {
    Visible = value != VARIANT_FALSE;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_Source(BSTR* value) override { return Give(L"relief.bil", value); }
  HRESULT STDMETHODCALLTYPE get_SymbolFont(BSTR* value) override { return Give(SymbolFont, value); }
  HRESULT STDMETHODCALLTYPE put_SymbolFont(BSTR value) override { return Take(value, SymbolFont); }
  HRESULT STDMETHODCALLTYPE get_SymbolCharacter(LONG* value) override { return Give(SymbolCharacter, value); }
  HRESULT STDMETHODCALLTYPE put_SymbolCharacter(LONG value) override { return Take(value, SymbolCharacter); }
  HRESULT STDMETHODCALLTYPE get_SymbolRotation(double* value) override { return Give(SymbolRotation, value); }
  HRESULT STDMETHODCALLTYPE put_SymbolRotation(double value) override { return Take(value, SymbolRotation); }
  HRESULT STDMETHODCALLTYPE get_SymbolSize(double* value) override { return Give(SymbolSize, value); }
  HRESULT STDMETHODCALLTYPE put_SymbolSize(double value) override { return Take(value, SymbolSize); }
  HRESULT STDMETHODCALLTYPE get_Data(IDispatch** value) override {
    *value = nullptr;
    return S_OK;
  }

 private:
  static HRESULT Give(const std::wstring& from, BSTR* to) {
    *to = SysAllocStringLen(from.data(), static_cast<UINT>(from.size()));
    return *to ? S_OK : E_OUTOFMEMORY;
  }
  static HRESULT Take(BSTR from, std::wstring& to) {
    to.assign(from ? from : L"", SysStringLen(from));
    return S_OK;
  }
  template <class Value>
  static HRESULT Give(Value from, Value* to) {
    *to = from;
    return S_OK;
  }
  template <class Value>
  static HRESULT Take(Value from, Value& to) {
    to = from;
    return S_OK;
  }
};

/// Counts what it hears; a map window would redraw itself here.
class CallBack final : public AutomationObject<IDialogCallBack> {
 public:
  int Applied = 0;
  int Confirmed = 0;
  int Canceled = 0;

  HRESULT STDMETHODCALLTYPE ApplyNotify(VARIANT_BOOL) override { return Count(Applied); }
  HRESULT STDMETHODCALLTYPE CancelNotify(VARIANT_BOOL) override { return Count(Canceled); }
  HRESULT STDMETHODCALLTYPE OKNotify(VARIANT_BOOL) override { return Count(Confirmed); }
  HRESULT STDMETHODCALLTYPE Reserved1() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE Reserved2() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE RegisterNotify(LONG* result) override {
    *result = 0;
    return S_OK;
  }

 private:
  static HRESULT Count(int& notes) {
    ++notes;
    return S_OK;
  }
};
