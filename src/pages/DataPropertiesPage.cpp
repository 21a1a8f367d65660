#include "pages/DataPropertiesPage.h"

#include "forms/Form.h"
#include "hostobjects/ErrorTrap.h"
#include "hostobjects/IFileCheck.h"
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
  Follow(cmdBrowse, {&mFile});
  Follow(txtMethod, {&mClassMethod});
  Follow(txtRange, {&mClassMinimum, &mClassMaximum, &mClassFormat});
  Follow(txtCount, {&mClassCount});
  Follow(txtFormat, {&mClassFormat});
}

HostObject* DataPropertiesPage::DataObject() const {
  if (As<IData>(Client())) return Client();
  auto* const layer = As<ILayer>(Client());
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
  txtCount.Text(mClassCount.IsRead() ? std::to_string(mCount) : std::string());
  txtFormat.Text(mClassFormat.IsRead() ? mValueFormat : std::string());
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
  if (!mClassMethod.IsRead()) return {};
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
  if (!mClassMinimum.IsRead() || !mClassMaximum.IsRead() || !mClassFormat.IsRead()) return {};
  if (mMinimum == kUnknownRangeEnd && mMaximum == kUnknownRangeEnd) return Translated(Language(), "not known");
  const numbers::Separators separators = Surface.OwnerForm().OwnerDesktop().Separators();
  const auto text = [&](double value) { return numbers::FormatNumber(value, mValueFormat, separators); };
  return text(mMinimum) + kRangeSign + text(mMaximum);
}

void DataPropertiesPage::cmdBrowse_Click() {
  BrowseRequest request{txtFile.Text()};
  if (!Ask([&] { request.Check = As<IFileCheck>(DataObject()); })) return;
  BrowseRequested.Raise(request);
  const bool isTaken = Ask([&] {
    if (request.Refusal)
      throw RunTimeError(kErrorFileFormat, request.Refusal->empty() ? pagetexts::kNoData : *request.Refusal);
  });
  if (isTaken && !request.Cancel) ShowFile(request.FileName);
}

void DataPropertiesPage::cmdClassify_Click() {
  ClassifyRequest request{nullptr, kUnknownRangeEnd, kUnknownRangeEnd, kMayChangeClassCount};
  const bool isThere = Ask([&] {
    request.Data = &Required(DataObject());
    Required(As<IData>(request.Data));
    // A range that the data do not tell is not known.
    ErrorTrap trap;
    trap.Step([&] { request.Minimum = Required(As<IData>(request.Data)).MinimumOfData(); });
    trap.Step([&] { request.Maximum = Required(As<IData>(request.Data)).MaximumOfData(); });
  });
  if (!isThere) return;
  ClassifyRequested.Raise(request);
  DataChanged(request.Changed);
}

void DataPropertiesPage::RequestChange(const Event<DataRequest&>& event) {
  DataRequest request;
  if (!Ask([&] { request.Data = &Required(DataObject()); })) return;
  event.Raise(request);
  DataChanged(request.Changed);
}

void DataPropertiesPage::DataChanged(bool changed) {
  if (!changed) return;
  IsDirty(true);
  // A chosen file waits for a save all the same.
  const std::optional<std::string> chosen = mFile.Differs() ? std::optional(txtFile.Text()) : std::nullopt;
  RefreshContents();
  if (chosen && mFile.IsRead()) ShowFile(*chosen);
}

std::vector<std::string> DataPropertiesPage::Refused() const {
  if (!mFile.Fault() || mFile.IsLocked()) return {};
  // A reason need not name the file.
  return {Line(mFile.Name() + " \"" + txtFile.Text() + '"', mFile)};
}

}  // namespace orx::pages
