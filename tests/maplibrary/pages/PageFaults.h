// The fixture for hosts that fail in the middle of a page's work: the properties of each page, and edits of all of
// them.
#pragma once

#include <algorithm>
#include <map>

#include "tests/maplibrary/pages/PagesTest.h"
#include "tests/support/RecordedData.h"

namespace orx::test {

/// A property of a page: its member of the host, the field that edits it, and the name of that field in messages.
struct Edited {
  PageKind Kind;
  std::string Member;
  std::string Field;
  std::string Name;
};

inline const std::vector<Edited>& EditedProperties() {
  static const std::vector<Edited> kProperties{
      {PageKind::Properties, "Name", "txtName", "Name"},
      {PageKind::Properties, "Visible", "chkVisible", "Visible"},
      {PageKind::Properties, "SymbolFont", "cboFont", "Font"},
      {PageKind::Properties, "SymbolCharacter", "txtCharacter", "Character"},
      {PageKind::Properties, "SymbolRotation", "txtRotation", "Rotation"},
      {PageKind::Properties, "SymbolSize", "txtSize", "Size"},
      {PageKind::LabelProperties, "ShowLabels", "chkShowLabels", "Show labels"},
      {PageKind::LabelProperties, "Content", "cboContent", "Content"},
      {PageKind::LabelProperties, "Position", "cboPosition", "Position"},
      {PageKind::LabelProperties, "LabelRotation", "txtRotation", "Rotation"},
      {PageKind::LabelProperties, "LabelFont", "cboFont", "Font"},
      {PageKind::LabelProperties, "LabelColor", "txtColor", "Hex"},
      {PageKind::Coordinates, "Left", "txtLeft", "Left"},
      {PageKind::Coordinates, "Right", "txtRight", "Right"},
      {PageKind::Coordinates, "Bottom", "txtBottom", "Bottom"},
      {PageKind::Coordinates, "Top", "txtTop", "Top"},
      {PageKind::Legends, "Title", "txtTitle", "1: Height, Title"},
      {PageKind::Legends, "Visible", "chkVisible", "1: Height, Visible"},
      {PageKind::Legends, "Corner", "cboCorner", "1: Height, Corner"},
      {PageKind::Legends, "Framed", "chkFramed", "1: Height, With a frame"},
      {PageKind::Legends, "TextSize", "txtTextSize", "1: Height, Text size"}};
  return kProperties;
}

/// Gives a field another value than the host holds.
inline void Edit(Control& field) {
  static const std::map<std::string, std::string> kTexts{
      {"txtName", "Relief"},   {"txtCharacter", "B"},  {"txtRotation", "10"}, {"txtSize", "20"},
      {"txtColor", "#00FF00"}, {"txtLeft", "-90"},     {"txtRight", "5"},     {"txtBottom", "30"},
      {"txtTop", "40"},        {"txtTitle", "Height"}, {"txtTextSize", "10"}, {"cboFont", "Verdana"}};
  const auto text = kTexts.find(field.Name());
  if (auto* const check = dynamic_cast<CheckBox*>(&field))
    check->Value(CheckedIf(!check->IsChecked()));
  else if (auto* const box = dynamic_cast<TextBox*>(&field); box && text != kTexts.end())
    box->Text(text->second);
  else if (auto* const combo = dynamic_cast<ComboBox*>(&field))
    text != kTexts.end() ? combo->Text(text->second) : combo->ListIndex(combo->ListIndex() == 0 ? 1 : 0);
}

/// What has no words of its own is named all the same.
inline std::string ReasonOf(const std::string& member, bool isNumber) {
  return isNumber ? "Unknown error" : member + " failed";
}

class PageFaults : public PagesTest {
 protected:
  /// The objects of a host, as they are at first.
  struct Hosts {
    Hosts() { Legends.Legends.emplace_back(Legends.Log, "Elevation"); }
    RecordedLayer Layer;
    RecordedLegends Legends;
  };

  Record& LogOf(PageKind kind) { return kind == PageKind::Legends ? hosts->Legends.Log : hosts->Layer.Log; }
  /// A page for new objects.
  std::shared_ptr<PageForm> MakeFor(PageKind kind) {
    hosts = std::make_unique<Hosts>();
    auto made = MakePage(kind);
    made->Page->Client(kind == PageKind::Legends ? &hosts->Legends : static_cast<HostObject*>(&hosts->Layer));
    return made;
  }
  static std::vector<Edited> PropertiesOf(PageKind kind) {
    std::vector<Edited> properties;
    for (const Edited& property : EditedProperties())
      if (property.Kind == kind) properties.push_back(property);
    return properties;
  }
  void EditAll(PageKind kind) {
    for (const Edited& property : PropertiesOf(kind)) Edit(*form->Find(property.Field));
  }
  static bool Wrote(const Record& log, const std::string& member) {
    return std::ranges::any_of(log.Calls, [&](const std::string& call) { return call.starts_with(member + "("); });
  }
  /// The boxes that `act` shows.
  template <class Act>
  std::vector<Message> BoxesIn(Act act) {
    std::vector<Message> boxes;
    script.Noted = &boxes;
    act();
    script.Noted = nullptr;
    return boxes;
  }
  static Message NotSaved(const std::string& lines, const std::string& title = "Page") {
    return {"Not everything could be saved:\r\n" + lines, title, MessageIcon::Exclamation};
  }

  std::unique_ptr<Hosts> hosts;
};

}  // namespace orx::test
