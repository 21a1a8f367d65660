#include "dialogframe/FileChoice.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <initializer_list>
#include <string_view>

#include "forms/Desktop.h"
#include "forms/ProcessWide.h"
#include "forms/Requests.h"
#include "hostobjects/ErrorTrap.h"
#include "text/AsciiCase.h"
#include "text/CharacterCount.h"
#include "text/Paths.h"

namespace orx::modDialog {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view kNul("\0", 1);
constexpr std::string_view kTwoNuls("\0\0", 2);

/// The longest answer and the longest file name, in characters.
constexpr int kBufferLength = 8192;
constexpr int kFileTitleLength = 512;

/// Hide read-only, several files, create prompt, explorer style, no dereferenced links, long names.
constexpr std::uint32_t kLayerFlags = 0x382204;
/// The same for one file.
constexpr std::uint32_t kDataFlags = 0x382004;

constexpr std::int32_t kFirstDataFilter = 5;
constexpr std::int32_t kFirstLayerFilter = 1;

struct Filter {
  std::string_view Text;
  std::string_view Patterns;
};

constexpr Filter kLayerFilters[] = {
    {"Vector (*.mpl,*.mpt,*.shp)", "*.mpl;*.mpt;*.shp"},
    {"Image (*.bmp,*.jpg,*.gif, *.ecw, *.sid, *.imt)", "*.bmp;*.jpg;*.gif;*.ecw; *.sid; *.imt"},
    {"Grid (*.dem,*.bil,*.bip,*.bsq,*.flt,*.lan,*.gis,*.asc,*.grt)",
     "*.dem;*.bil;*.bip;*.bsq;*.flt;*.lan;*.gis;*.asc;*.grt"},
    {"List (*.lst)", "*.lst"},
};

/// The last entry leaves out "*.map" on purpose.
constexpr Filter kDataFilters[] = {
    {"Velkor (*.vkr)", "*.vkr"},
    {"Quarel (*.his,*.map)", "*.his;*.map"},
    {"Grid (*.bil,*.bip,*.bsq)", "*.bil;*.bip;*.bsq"},
    {"Incremental (*.inc)", "*.inc"},
    {"All Files (*.*)", "*.vkr;*.his;*.bil;*.bip;*.bsq;*.inc"},
};

/// What is accepted, and what the user is told otherwise. Vector layers accept more than their filter shows, and the
/// message about images names fewer types than are accepted.
struct Rule {
  std::initializer_list<std::string_view> Extensions;
  const char* Refusal;
};

const Rule kDataRule = {{".VKR", ".MAP", ".BIL", ".BIP", ".BSQ", ".INC", ".HIS"},
                        "File has to be a Data file (*.vkr, *.map, *.his, *.bil, *.bip, *.bsq, *.inc)."};

const Rule kLayerRules[] = {
    {{".MPL", ".MPT", ".SHP", ".BNA", ".DXF", ".MIF", ".MOS"},
     "File has to be a Vector layer (*.mpl, *.mpt, *.shp,\r\n*.bna, *.dxf, *.mif, *.mos)."},
    {{".BMP", ".JPG", ".GIF", ".ECW", ".SID", ".IMT"}, "File has to be an Image layer (*.bmp, *.jpg, *.gif, *.imt)."},
    {{".DEM", ".BIL", ".BIP", ".BSQ", ".FLT", ".LAN", ".GIS", ".ASC", ".GRT"},
     "File has to be a Grid layer (*.dem, *.bil, *.bip, *.bsq, *.flt, *.lan, *.gis, *.asc, *.grt)."},
    {{".LST"}, "File has to be a List File (*.lst)."},
};

ProcessWide<RememberedChoices>& SharedChoices() {
  static ProcessWide<RememberedChoices> choices;
  return choices;
}

/// Of the dialog that this thread has shown, which another thread's dialog does not change.
thread_local std::int32_t theLastResult = 0;

/// The remembered choice of one kind.
struct Choice {
  std::string& Folder;
  std::int32_t& FilterIndex;
};

Choice ChoiceOf(RememberedChoices& choices, FileKind kind) {
  if (kind == FileKind::Data) return {choices.DataFolder, choices.DataFilterIndex};
  return {choices.LayerFolder, choices.LayerFilterIndex};
}

/// The rule for a kind and the filter that the user left selected, or null if there is none.
const Rule* RuleOf(FileKind kind, std::int32_t filter) {
  if (kind == FileKind::Data) return &kDataRule;
  const bool isKnown = filter >= 1 && filter <= static_cast<std::int32_t>(std::size(kLayerRules));
  return isKnown ? &kLayerRules[filter - 1] : nullptr;
}

void SetFirstChoices(RememberedChoices& choices) {
  ErrorTrap trap;
  for (std::string* const folder : {&choices.DataFolder, &choices.LayerFolder})
    if (folder->empty()) trap.Step([&] { *folder = Utf8(std::filesystem::current_path()); });
  if (choices.DataFilterIndex == 0) choices.DataFilterIndex = kFirstDataFilter;
  if (choices.LayerFilterIndex == 0) choices.LayerFilterIndex = kFirstLayerFilter;
}

template <std::size_t Count>
std::string TextOf(const Filter (&filters)[Count]) {
  std::string text;
  for (const Filter& filter : filters) ((((text += filter.Text) += kNul) += filter.Patterns) += kNul);
  return text += kTwoNuls;
}

OpenFileRequest RequestFor(const FileChoice& choice) {
  const bool isData = choice.Kind == FileKind::Data;
  OpenFileRequest request;
  request.OwnerHandle = choice.OwnerHandle;
  request.Title = isData ? "Open Data" : "Add Layers";
  request.Flags = isData ? kDataFlags : kLayerFlags;
  request.Filter = isData ? TextOf(kDataFilters) : TextOf(kLayerFilters);
  RememberedChoices remembered = Remembered();
  request.FilterIndex = ChoiceOf(remembered, choice.Kind).FilterIndex;
  request.InitialFolder = ChoiceOf(remembered, choice.Kind).Folder;
  request.FileTitle.assign(kFileTitleLength, ' ');
  return request;
}

/// The name, padded with blanks. A name longer than the whole buffer gives an empty one.
std::string BufferFor(const std::string& fileName) {
  const int length = CharacterCount(fileName);
  if (length > kBufferLength) return {};
  return fileName + std::string(static_cast<std::size_t>(kBufferLength - length), ' ').append(kNul);
}

std::string NameIn(const std::string& buffer) {
  const std::size_t both = buffer.find(kTwoNuls);
  return buffer.substr(0, both != std::string::npos ? both : buffer.find(kNul));
}

void Refuse(const FileChoice& choice, const Rule& rule) {
  const bool isData = choice.Kind == FileKind::Data;
  choice.Screen.ShowMessage({std::string(rule.Refusal) + "\r\nOperation cancelled.",
                             isData ? "" : "File format not supported", MessageIcon::Exclamation});
}

}  // namespace

bool IsAccepted(FileKind kind, std::int32_t filter, const std::string& answer) {
  const Rule* const rule = RuleOf(kind, filter);
  if (!rule) return true;
  // One matching name among several is enough, and the extension may occur anywhere in it.
  const std::string text = AsciiUpperCase(answer);
  return std::ranges::any_of(rule->Extensions,
                             [&](std::string_view extension) { return text.find(extension) != std::string::npos; });
}

bool RunOpenFileDialog(const FileChoice& choice, bool, std::string& fileName) noexcept {
  ErrorTrap trap;
  bool isActive = false;
  trap.Step([&] { isActive = IsActive(choice.Language); });
  SharedChoices().Change(SetFirstChoices);
  OpenFileRequest request = RequestFor(choice);
  if (isActive) trap.Step([&] { request.Title = choice.Language->TranslateText(request.Title); });
  request.Buffer = BufferFor(fileName);
  theLastResult = 0;
  trap.Step([&] { theLastResult = choice.Screen.OpenFiles(request) ? 1 : 0; });
  trap.Step([&] { choice.Screen.ProcessPendingEvents(); });
  if (theLastResult == 0) return false;
  fileName = NameIn(request.Buffer);
  SharedChoices().Change([&](RememberedChoices& choices) {
    ChoiceOf(choices, choice.Kind).FilterIndex = request.FilterIndex;
    ChoiceOf(choices, choice.Kind).Folder = request.LastFolder;
  });
  if (IsAccepted(choice.Kind, request.FilterIndex, request.Buffer)) return true;
  trap.Step([&] { Refuse(choice, *RuleOf(choice.Kind, request.FilterIndex)); });
  return false;
}

std::vector<std::string> SplitAnswer(const std::string& answer) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  while (start <= answer.size()) {
    std::size_t end = answer.find('\0', start);
    // A quoted part ends at the quote that is followed by a NUL or by the end.
    if (start < answer.size() && answer[start] == '"') {
      std::size_t quote = answer.find('"', start + 1);
      while (quote != std::string::npos && quote + 1 < answer.size() && answer[quote + 1] != '\0')
        quote = answer.find('"', quote + 1);
      if (quote != std::string::npos) end = quote + 1 < answer.size() ? quote + 1 : std::string::npos;
    }
    if (end == std::string::npos) end = answer.size();
    parts.push_back(answer.substr(start, end - start));
    start = end + 1;
  }
  return parts;
}

bool ChooseFiles(const FileChoice& choice, bool multiselect, std::vector<std::string>& files) noexcept {
  ErrorTrap trap;
  bool chosen = false;
  trap.Step([&] {
    std::string fileName = files.empty() ? std::string() : files.front();
    if (!RunOpenFileDialog(choice, multiselect, fileName)) return;
    const std::vector<std::string> parts = SplitAnswer(fileName);
    std::vector<std::string> paths;
    for (std::size_t i = 1; i < parts.size(); ++i)
      paths.push_back(parts.front() + SeparatorOf(parts.front()) + parts[i]);
    if (paths.empty()) paths.push_back(fileName);
    files = std::move(paths);
    chosen = true;
  });
  return chosen;
}

std::int32_t LastSystemResult() {
  return theLastResult;
}

RememberedChoices Remembered() {
  return SharedChoices().Get();
}

void ResetRememberedChoices() {
  SharedChoices().Set({});
  theLastResult = 0;
}

}  // namespace orx::modDialog
