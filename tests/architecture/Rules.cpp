#include "tests/architecture/Rules.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

namespace orx::test {
namespace {

/// The folders under src/ from the ground up, each with all below it.
const std::vector<std::vector<std::string>> kFloors = {
    {"numbers/", "text/"},
    {"forms/"},
    {"hostobjects/"},
    {"dialogframe/"},
    {"pickers/", "datadialogs/", "griddialogs/"},
    {"openers/"},
    {"propertydialogs/"},
    {"service/"},
    {"desktops/"},
    {"maplibrary/files/"},
    {"maplibrary/model/"},
    {"maplibrary/drawing/"},
    {"pages/", "languages/"},
    {"com/"},
};

/// The floors of the embedded host, which stands beside the dialogs and includes none of them.
const std::vector<std::string> kEmbeddedHost = {"maplibrary/", "pages/", "languages/"};

bool IsEmbeddedHost(const std::string& name) {
  return std::ranges::any_of(kEmbeddedHost, [&](const std::string& folder) { return name.starts_with(folder); });
}

/// "src/forms/Form.h" is included as "forms/Form.h".
std::string IncludeName(const std::string& path) {
  return path.starts_with("src/") ? path.substr(4) : path;
}

/// The room of a file: its folder, of rooms within rooms the innermost: "forms", "desktops/qt", "maplibrary/files".
std::string FolderOf(const std::string& name) {
  const std::size_t first = name.find('/');
  const bool isNested = name.starts_with("desktops/") || name.starts_with("maplibrary/");
  return name.substr(0, isNested ? name.find('/', first + 1) : first);
}

bool MayInclude(const std::string& from, const std::string& to) {
  const std::optional<int> fromFloor = FloorOf(from);
  const std::optional<int> toFloor = FloorOf(to);
  if (!fromFloor || !toFloor) return false;
  if (from.starts_with("desktops/")) return FolderOf(from) == FolderOf(to) || *toFloor <= *FloorOf("forms/");
  if (IsEmbeddedHost(from) && !IsEmbeddedHost(to)) return *toFloor <= *FloorOf("hostobjects/");
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

/// What includes what, be it files or folders.
using IncludeGraph = std::map<std::string, std::set<std::string>>;

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
  explicit CircleSearch(const IncludeGraph& includes) : mIncludes(includes) {}

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

  const IncludeGraph& mIncludes;
  std::set<std::string> mVisited;
  std::vector<std::string> mPath;
  Breaches mFound;
};

}  // namespace

std::optional<int> FloorOf(const std::string& path) {
  const std::string name = IncludeName(path);
  for (std::size_t floor = 0; floor < kFloors.size(); ++floor)
    if (std::ranges::any_of(kFloors[floor], [&](const std::string& folder) { return name.starts_with(folder); }))
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
  IncludeGraph includes;
  for (const SourceFile& file : sources)
    for (const std::string& included : file.QuotedIncludes()) includes[IncludeName(file.Path)].insert(included);
  return CircleSearch(includes).Run();
}

Breaches FolderCircles(const std::vector<SourceFile>& sources) {
  IncludeGraph includes;
  for (const SourceFile& file : sources) {
    const std::string folder = FolderOf(IncludeName(file.Path));
    for (const std::string& included : file.QuotedIncludes())
      if (FolderOf(included) != folder) includes[folder].insert(FolderOf(included));
  }
  return CircleSearch(includes).Run();
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
