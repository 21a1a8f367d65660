// A host in C++ that knows the dialogs by their type library: shows the properties of a layer and prints the result.
#include <windows.h>

#include <initguid.h>

#include <cstdio>

#include "Layer.h"

namespace {

int ShowLayer(_CCommonMapDialogs& dialogs) {
  Layer layer;
  CallBack callBack;
  IDispatch* heard = &callBack;
  dialogs.putref_CallBack(&heard);

  // Arguments are handed over by reference; the type library's defaults are for late-bound callers.
  IDispatch* object = &layer;
  BSTR caption = SysAllocString(L"Layer of a C++ host");
  FormShowMode mode = static_cast<FormShowMode>(1);
  VARIANT noOwner = {};
  noOwner.vt = VT_ERROR;
  noOwner.scode = DISP_E_PARAMNOTFOUND;
  LONG changed = 0;
  const HRESULT result = dialogs.ShowProperties(&object, &caption, &mode, &noOwner, &changed);
  SysFreeString(caption);

  heard = nullptr;
  dialogs.putref_CallBack(&heard);
  if (FAILED(result)) {
    std::fprintf(stderr, "comhost: the dialog failed (0x%08lX)\n", static_cast<unsigned long>(result));
    return 1;
  }
  std::printf("%ls: %s\n", layer.Name.c_str(), changed ? "changed" : "not changed");
  std::printf("OK %d, Apply %d, Cancel %d\n", callBack.Confirmed, callBack.Applied, callBack.Canceled);
  return 0;
}

}  // namespace

int main() {
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
  int exitCode = 1;
  _CCommonMapDialogs* dialogs = nullptr;
  const HRESULT made = CoCreateInstance(CLSID_CCommonMapDialogs, nullptr, CLSCTX_INPROC_SERVER, IID__CCommonMapDialogs,
                                        reinterpret_cast<void**>(&dialogs));
  if (SUCCEEDED(made)) {
    exitCode = ShowLayer(*dialogs);
    dialogs->Release();
  } else {
    std::fprintf(stderr, "comhost: the dialogs cannot be made (0x%08lX); register them: regsvr32 orxMDlg.dll\n",
                 static_cast<unsigned long>(made));
  }
  CoUninitialize();
  return exitCode;
}
