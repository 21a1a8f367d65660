#include "pages/DataPropertiesPage.h"

#include "forms/Form.h"
#include "hostobjects/IMap.h"
#include "numbers/Numbers.h"

namespace orx::pages {
namespace {

constexpr const char* kRangeSign = " \xE2\x80\x93 ";

}  // namespace

DataPropertiesPage::DataPropertiesPage(const PageSite& site) : PageBase(site) {
  cmdBrowse.Click = [this] { cmdBrowse_Click(); };
  cmdClassify.Click = [this] { cmdClassify_Click(); };
  cmdOptions.Click = [this] { RequestChange(OptionsRequested); };
  cmdShade.Click = [this] { RequestChange(ShadeRequested); };
  cmdIsolines.Click = [this] { RequestChange(IsolineRequested); };
  cmdDataStyle.Click = [this] { DataStyleRequested.Raise(); };
  cmdColors.Click = [this] { ColorsRequested.Raise(Language()); };
}

HostObject* DataPropertiesPage::DataObject() const {
  if (QueryKind<IData>(Client())) return Client();
  auto* const layer = QueryKind<ILayer>(Client());
  return layer ? layer->Data() : nullptr;
}

void DataPropertiesPage::ShowValues() {
  PageBase::ShowValues();
  ShowFile(txtFile.Text());
  ShowClasses();
  ShowButtons();
}

void DataPropertiesPage::ShowFile(const std::string& file) {
  txtFile.Text(file);
  txtFile.ToolTipText(file);
}

void DataPropertiesPage::ShowClasses() {
  txtMethod.Text(MethodText());
  txtRange.Text(RangeText());
  txtCount.Text(HasRead() ? std::to_string(mCount) : std::string());
  txtFormat.Text(HasRead() ? mValueFormat : std::string());
}

void DataPropertiesPage::ShowButtons() {
  cmdBrowse.Visible(BrowseRequested.HasHandler());
  cmdClassify.Visible(ClassifyRequested.HasHandler());
  cmdOptions.Visible(OptionsRequested.HasHandler());
  cmdShade.Visible(ShadeRequested.HasHandler());
  cmdIsolines.Visible(IsolineRequested.HasHandler());
  cmdColors.Visible(ColorsRequested.HasHandler());
  cmdDataStyle.Visible(DataStyleRequested.HasHandler());
}

std::string DataPropertiesPage::MethodText() const {
  if (!HasRead()) return {};
  switch (mMethod) {
    case classifymethod::kEqualIntervals:
      return Translated(Language(), "Equal intervals");
    case classifymethod::kAutomatic:
      return Translated(Language(), "Automatic");
    case classifymethod::kEqualSteps:
      return Translated(Language(), "Equal steps");
    case classifymethod::kUserDefined:
      return Translated(Language(), "User defined");
    default:
      return std::to_string(mMethod);
  }
}

std::string DataPropertiesPage::RangeText() const {
  if (!HasRead()) return {};
  if (mMinimum == kUnknownRangeEnd && mMaximum == kUnknownRangeEnd) return Translated(Language(), "not known");
  const numbers::Separators separators = Surface.OwnerForm().OwnerDesktop().Separators();
  const auto text = [&](double value) { return numbers::FormatNumber(value, mValueFormat, separators); };
  return text(mMinimum) + kRangeSign + text(mMaximum);
}

void DataPropertiesPage::cmdBrowse_Click() {
  BrowseRequest request{txtFile.Text()};
  BrowseRequested.Raise(request);
  if (request.Cancel) return;
  ShowFile(request.FileName);
}

void DataPropertiesPage::cmdClassify_Click() {
  HostObject* const object = DataObject();
  IData* const data = QueryKind<IData>(object);
  if (!data) return Surface.OwnerForm().OwnerDesktop().Beep();
  ClassifyRequest request{object, data->MinimumOfData(), data->MaximumOfData(), kMayChangeClassCount};
  ClassifyRequested.Raise(request);
  DataChanged(request.Changed);
}

void DataPropertiesPage::RequestChange(const Event<DataRequest&>& event) {
  DataRequest request{DataObject()};
  event.Raise(request);
  DataChanged(request.Changed);
}

void DataPropertiesPage::DataChanged(bool changed) {
  if (!changed) return;
  IsDirty(true);
  // A chosen file waits for a save all the same.
  const std::optional<std::string> chosen = mFile.Differs() ? std::optional(txtFile.Text()) : std::nullopt;
  ReadClient();
  WhileBusy([this] { ShowValues(); });
  if (chosen) ShowFile(*chosen);
}

}  // namespace orx::pages
