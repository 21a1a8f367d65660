// Edits a layer that is written in this script:
//   cscript //nologo layer.js
var layer = {
  Name: "Relief",
  Visible: true,
  Source: "relief.bil",
  SymbolFont: "Wingdings",
  SymbolCharacter: 108,
  SymbolRotation: 0,
  SymbolSize: 12
};

var callBack = {
  RegisterNotify: function () { return 0; },
  ApplyNotify: function (changed) { WScript.Echo("Apply: " + changed); },
  CancelNotify: function (changed) { WScript.Echo("Cancel: " + changed); },
  OKNotify: function (changed) { WScript.Echo("OK: " + changed); }
};

var dialogs = new ActiveXObject("OrvexMapDialogs2.CCommonMapDialogs");
dialogs.RegistryKey = "LayerScript";
dialogs.CallBack = callBack;

var result = dialogs.ShowProperties(layer, "Layer of a script");
WScript.Echo("Properties: " + result + " " + layer.Name);

dialogs.CallBack = null;
WScript.Echo("DONE");
WScript.Quit(9);
