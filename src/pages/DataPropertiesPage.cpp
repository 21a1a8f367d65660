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

void DataPropertiesPage::ReadClient() {
  HostObject* const data = DataObject();
  Values read;
  read.File = QueryKind<IData>(data)->FileName();
  if (const auto* const classes = QueryKind<IClassification>(data)) {
    read.Method = classes->ClassifyMethod();
    read.Minimum = classes->MinValue();
    read.Maximum = classes->MaxValue();
    read.Count = classes->NumberOfClasses();
    read.Format = classes->ValueFormat();
  }
  mRead = read;
  mChosenFile.reset();
}

void DataPropertiesPage::ShowValues() {
  const std::string file = mRead ? mChosenFile.value_or(mRead->File) : std::string();
  txtFile.Text(file);
  txtFile.ToolTipText(file);
  txtMethod.Text(MethodText());
  txtRange.Text(RangeText());
  txtCount.Text(mRead ? std::to_string(mRead->Count) : std::string());
  txtFormat.Text(mRead ? mRead->Format : std::string());
  ShowButtons();
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
  if (!mRead) return {};
  switch (mRead->Method) {
    case classifymethod::kEqualIntervals:
      return Translated(Language(), "Equal intervals");
    case classifymethod::kAutomatic:
      return Translated(Language(), "Automatic");
    case classifymethod::kEqualSteps:
      return Translated(Language(), "Equal steps");
    case classifymethod::kUserDefined:
      return Translated(Language(), "User defined");
    default:
      return std::to_string(mRead->Method);
  }
}

std::string DataPropertiesPage::RangeText() const {
  if (!mRead) return {};
  if (mRead->Minimum == kUnknownRangeEnd && mRead->Maximum == kUnknownRangeEnd)
    return Translated(Language(), "not known");
  const numbers::Separators separators = Surface.OwnerForm().OwnerDesktop().Separators();
  const auto text = [&](double value) { return numbers::FormatNumber(value, mRead->Format, separators); };
  return text(mRead->Minimum) + kRangeSign + text(mRead->Maximum);
}

void DataPropertiesPage::WriteClient() {
  Write(mRead->File, mChosenFile.value_or(mRead->File),
        [&](const std::string& file) { QueryKind<IData>(DataObject())->FileName(file); });
  mChosenFile.reset();
}

void DataPropertiesPage::cmdBrowse_Click() {
  BrowseRequest request{mChosenFile.value_or(mRead->File)};
  BrowseRequested.Raise(request);
  if (request.Cancel) return;
  mChosenFile = request.FileName;
  WhileBusy([this] { ShowValues(); });
}

void DataPropertiesPage::cmdClassify_Click() {
  auto& data = *QueryKind<IData>(DataObject());
  ClassifyRequest request{DataObject(), data.MinimumOfData(), data.MaximumOfData(), kMayChangeClassCount};
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
  const std::optional<std::string> chosen = mChosenFile;
  ReadClient();
  mChosenFile = chosen;
  WhileBusy([this] { ShowValues(); });
}

}  // namespace orx::pages
