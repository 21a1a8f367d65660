#include "tests/architecture/Rules.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

namespace orx::test {
namespace {

/// From the ground up. An entry that ends with "/" is a folder with all below it, "*" stands for any ending of a file
/// name. `service` is split: helpers stand below the dialogs, open-and-collect routines and public classes above them.
const std::vector<std::vector<std::string>> kFloors = {
    {"numbers/"},
    {"forms/"},
    {"hostobjects/"},
    {"service/modDialog.*", "service/modMain.*", "service/DialogForm.*", "service/Glyphs.*"},
    {"pickers/", "datadialogs/", "griddialogs/"},
    {"service/modMain*"},
    {"propertydialogs/"},
    {"service/CCommon*"},
    {"desktops/"},
    {"maplibrary/"},
    {"com/"},
};

bool Matches(const std::string& path, const std::string& pattern) {
  if (pattern.ends_with('*')) return path.starts_with(pattern.substr(0, pattern.size() - 1));
  return path.starts_with(pattern);
}

/// "src/forms/Form.h" is included as "forms/Form.h".
std::string IncludeName(const std::string& path) {
  return path.starts_with("src/") ? path.substr(4) : path;
}

/// The folder of a file, of a desktop its own: "forms", "desktops/qt".
std::string FolderOf(const std::string& name) {
  const std::size_t first = name.find('/');
  if (!name.starts_with("desktops/")) return name.substr(0, first);
  return name.substr(0, name.find('/', first + 1));
}

bool MayInclude(const std::string& from, const std::string& to) {
  const std::optional<int> fromFloor = FloorOf(from);
  const std::optional<int> toFloor = FloorOf(to);
  if (!fromFloor || !toFloor) return false;
  if (from.starts_with("desktops/")) return FolderOf(from) == FolderOf(to) || *toFloor <= *FloorOf("forms/");
  // The dialogs know no desktop, and neither does the map library; what puts all together does.
  if (to.starts_with("desktops/")) return from.starts_with("com/");
  if (*fromFloor == *toFloor) return FolderOf(from) == FolderOf(to);
  return *toFloor < *fromFloor;
}

bool IsNativePlace(const std::string& path) {
  return path.starts_with("src/desktops/") || path.starts_with("src/com/");
}

/// Q, a capital and a small letter: QString, QWidget.
bool IsQtName(std::string_view word) {
  const auto isBetween = [](char c, char low, char high) { return c >= low && c <= high; };
  return word.size() > 2 && word[0] == 'Q' && isBetween(word[1], 'A', 'Z') && isBetween(word[2], 'a', 'z');
}

bool IsNativeWord(std::string_view word) {
  static const std::set<std::string_view> kWords = {
      "HWND",      "HDC",      "HINSTANCE", "HFONT",  "HRESULT",   "BSTR",      "VARIANT",
      "IDispatch", "IUnknown", "LPARAM",    "WPARAM", "LRESULT",   "COLORREF",  "_WIN32",
      "_WIN64",    "WIN32",    "Q_OBJECT",  "Qt",     "__linux__", "__APPLE__", "_MSC_VER"};
  return kWords.contains(word) || IsQtName(word);
}

bool IsNativeHeader(const std::string& name) {
  static const std::set<std::string> kHeaders = {"windows.h", "commctrl.h", "commdlg.h", "objbase.h",
                                                 "oleauto.h", "unistd.h",   "X11/Xlib.h"};
  return kHeaders.contains(name) || IsQtName(name) || name.starts_with("Qt");
}

/// A call that gives a resource back, and the beginning of the only files that may make it; none may where it is empty.
struct Freeing {
  std::string_view Call;
  std::string_view Owner;
};

constexpr Freeing kFreeings[] = {
    {"->Release", "src/com/Handles."},
    {".Release", "src/com/Handles."},
    {"SysFreeString", "src/com/Handles."},
    {"VariantClear", "src/com/Handles."},
    {"LocalFree", "src/com/Handles."},
    {"CoTaskMemFree", ""},
    {"GlobalFree", ""},
    {"HeapFree", ""},
    {"free", ""},
    {"SafeArrayDestroy", "src/com/SafeArray."},
    {"SafeArrayUnaccessData", "src/com/SafeArray."},
    {"SafeArrayUnlock", ""},
    {"ReleaseTypeAttr", "src/com/TypeDescriptions."},
    {"ReleaseFuncDesc", "src/com/TypeDescriptions."},
    {"ReleaseVarDesc", ""},
    {"ReleaseTLibAttr", ""},
    {"Unadvise", "src/com/PageEvents."},
    {"RegCloseKey", ""},
    {"CloseHandle", ""},
    {"FreeLibrary", ""},
    {"ReleaseDC", ""},
    {"DeleteDC", ""},
    {"DeleteObject", ""},
    {"delete this", "src/com/Counted."},
};

/// True when the text stands there as whole words, called where it is the name of a function.
bool Calls(const std::string& code, std::string_view call) {
  const auto isWordPart = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; };
  const bool isFunction = call != "delete this";
  for (std::size_t at = code.find(call); at != std::string::npos; at = code.find(call, at + 1)) {
    const bool beginsHere = at == 0 || !isWordPart(call.front()) || !isWordPart(code[at - 1]);
    const std::size_t end = at + call.size();
    if (beginsHere && end < code.size() && (isFunction ? code[end] == '(' : !isWordPart(code[end]))) return true;
  }
  return false;
}

/// Walks the includes depth first and notes each way back to a file that is being walked.
class CircleSearch {
 public:
  explicit CircleSearch(const std::vector<SourceFile>& sources) {
    for (const SourceFile& file : sources) mIncludes[IncludeName(file.Path)] = file.QuotedIncludes();
  }

  Breaches Run() {
    for (const auto& [name, includes] : mIncludes) Visit(name);
    return mFound;
  }

 private:
  void Visit(const std::string& name) {
    if (const auto open = std::ranges::find(mPath, name); open != mPath.end()) return Note(open);
    const auto known = mIncludes.find(name);
    if (known == mIncludes.end() || !mVisited.insert(name).second) return;
    mPath.push_back(name);
    for (const std::string& include : known->second) Visit(include);
    mPath.pop_back();
  }

  void Note(std::vector<std::string>::const_iterator from) {
    std::string circle;
    for (auto at = from; at != mPath.end(); ++at) circle += *at + " -> ";
    mFound.push_back(circle + *from);
  }

  std::map<std::string, std::vector<std::string>> mIncludes;
  std::set<std::string> mVisited;
  std::vector<std::string> mPath;
  Breaches mFound;
};

}  // namespace

std::optional<int> FloorOf(const std::string& path) {
  const std::string name = IncludeName(path);
  for (std::size_t floor = 0; floor < kFloors.size(); ++floor)
    if (std::ranges::any_of(kFloors[floor], [&](const std::string& pattern) { return Matches(name, pattern); }))
      return static_cast<int>(floor);
  return {};
}

Breaches IncludesAgainstTheFloors(const std::vector<SourceFile>& sources) {
  Breaches found;
  for (const SourceFile& file : sources) {
    if (!FloorOf(file.Path)) found.push_back(file.Path + " has no floor in the table");
    for (const std::string& include : file.QuotedIncludes())
      if (!MayInclude(IncludeName(file.Path), include)) found.push_back(file.Path + " includes " + include);
  }
  return found;
}

Breaches IncludeCircles(const std::vector<SourceFile>& sources) {
  return CircleSearch(sources).Run();
}

Breaches NativeNames(const std::vector<SourceFile>& sources) {
  Breaches found;
  for (const SourceFile& file : sources) {
    if (IsNativePlace(file.Path)) continue;
    for (const std::string& header : file.AngledIncludes())
      if (IsNativeHeader(header)) found.push_back(file.Path + " includes <" + header + ">");
    for (const std::string& word : file.Words())
      if (IsNativeWord(word)) found.push_back(file.Path + " uses " + word);
  }
  return found;
}

Breaches FreesOutsideTheirOwner(const std::vector<SourceFile>& sources) {
  Breaches found;
  for (const SourceFile& file : sources) {
    if (!file.Path.starts_with("src/com/")) continue;
    const std::string code = WithoutCommentsAndTexts(file.Text);
    for (const auto& [call, owner] : kFreeings)
      if ((owner.empty() || !file.Path.starts_with(owner)) && Calls(code, call))
        found.push_back(file.Path + " calls " + std::string(call));
  }
  return found;
}

Breaches FilesLongerThan(std::size_t lines, const std::vector<SourceFile>& files) {
  Breaches found;
  for (const SourceFile& file : files)
    if (file.LineCount() > lines) found.push_back(file.Path + " has " + std::to_string(file.LineCount()) + " lines");
  return found;
}

Breaches FilesContaining(const std::string& word, const std::vector<SourceFile>& files) {
  Breaches found;
  for (const SourceFile& file : files)
    if (file.Text.find(word) != std::string::npos) found.push_back(file.Path + " contains " + word);
  return found;
}

}  // namespace orx::test
