// Property pages: each edits one aspect of a host object inside a dialog of the library.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "forms/Event.h"
#include "forms/Geometry.h"
#include "hostobjects/HostObject.h"

namespace orx {

class Container;
class IFileCheck;
class ILanguage;

/// The choice of a symbol: the page fills in the present one, the dialog the one chosen.
struct CharacterRequest {
  std::string FontName;
  /// The code of the character in its font, from 0 to 255.
  std::int32_t Character = 0;
  /// In degrees.
  double Rotation = 0;
  bool Changed = false;
};

/// The choice of a data file: the page fills in the present one and its own check, the dialog the one chosen.
struct BrowseRequest {
  /// UTF-8; unchanged if no file was chosen.
  std::string FileName;
  /// False when a file was chosen that can be opened.
  bool Cancel = true;
  /// Checks the file unless the host has set a check for the whole process; null for none. Used, not owned.
  IFileCheck* Check = nullptr;
  /// Why the chosen file cannot be opened, empty where nobody says why; none when no file was refused. The page tells
  /// the user.
  std::optional<std::string> Refusal = {};
};

/// The change of a data object's classification. The range is that of the data, kUnknownRangeEnd when not known.
struct ClassifyRequest {
  HostObject* Data = nullptr;
  double Minimum = 0;
  double Maximum = 0;
  std::int32_t Flags = 0;
  bool Changed = false;
};

/// Another change of a data object: special values, relief shading, isolines.
struct DataRequest {
  HostObject* Data = nullptr;
  bool Changed = false;
};

/// The change of a map's extent that keeps its ratio of width to height.
struct GeoreferenceRequest {
  HostObject* Map = nullptr;
  /// True when the extent was changed.
  bool Changed = false;
};

/// A page edits its client in fields of its own and writes to it only in SaveChanges and ApplyChanges. What a page
/// throws ends the handler that called it and reaches the service.
class PropertyPage {
 public:
  virtual ~PropertyPage() = default;

  /// The host object being edited, null for none; used, not owned. It is read in RefreshContents.
  virtual HostObject* Client() const = 0;
  virtual void Client(HostObject* value) = 0;
  /// The language, null for none; used, not owned.
  virtual ILanguage* Language() const = 0;
  virtual void Language(ILanguage* value) = 0;
  /// Whether the client was changed since it was handed over, or since the flag was set to false.
  virtual bool IsDirty() const = 0;
  virtual void IsDirty(bool value) = 0;
  /// Which entry the page shows first; only the legends page uses it.
  virtual std::int32_t StartUpIndex() const { return mStartUpIndex; }
  virtual void StartUpIndex(std::int32_t value) { mStartUpIndex = value; }
  /// Loads the client's values into the fields.
  virtual void RefreshContents() = 0;
  /// Writes the fields to the client, for OK.
  virtual void SaveChanges() = 0;
  /// Drops the edits that were not written, for Cancel.
  virtual void DiscardChanges() = 0;
  /// Writes the fields to the client, for Apply.
  virtual void ApplyChanges() = 0;
  /// Whether the page's tab is the selected one; set by dialogs with several pages.
  virtual bool Selected() const { return mSelected; }
  virtual void Selected(bool value) { mSelected = value; }

  /// What the page asks its dialog for. A request that the dialog does not answer has no handler, and the page then
  /// has no button for it.
  Event<CharacterRequest&> CharacterRequested;
  Event<const std::string&> NameChanged;
  Event<BrowseRequest&> BrowseRequested;
  Event<ClassifyRequest&> ClassifyRequested;
  Event<DataRequest&> OptionsRequested;
  Event<DataRequest&> ShadeRequested;
  Event<DataRequest&> IsolineRequested;
  Event<> DataStyleRequested;
  /// With the language for the window for colour schemes; null for none.
  Event<ILanguage*> ColorsRequested;
  Event<GeoreferenceRequest&> GeoreferenceRequested;

 private:
  std::int32_t mStartUpIndex = 0;
  bool mSelected = false;
};

/// The aspects of host objects that dialogs have pages for.
enum class PageKind { Properties, LabelProperties, Coordinates, Legends, DataProperties };

/// The name of a kind of page: "Properties", "LabelProperties", "DataProperties", ...
const char* PageKindName(PageKind kind);

/// Where a page goes: its controls stand in a panel of that name and place (twips) in the parent.
struct PageSite {
  Container& Parent;
  std::string Name;
  Rect Place;
};

/// Makes the pages for dialogs: one page for each form instance.
class IPageFactory {
 public:
  virtual ~IPageFactory() = default;
  /// Makes a page with its controls; null when the factory has no page of that kind.
  virtual std::unique_ptr<PropertyPage> CreatePage(PageKind kind, const PageSite& site) = 0;
};

/// Makes a page, and throws RunTimeError with the kind's name when the factory has none.
std::unique_ptr<PropertyPage> RequirePage(IPageFactory& factory, PageKind kind, const PageSite& site);

}  // namespace orx
