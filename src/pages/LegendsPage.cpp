#include "pages/LegendsPage.h"

namespace orx::pages {

LegendsPage::LegendsPage(const PageSite& site) : PageBase(site) {
  FillList(cboCorner, {"Top left", "Top right", "Bottom left", "Bottom right"});
  mFields.Translate = List().Translate;
  cboLegend.Click = [this] { cboLegend_Click(); };
  txtTitle.LostFocus = [this] { KeepEdits(); };
}

void LegendsPage::StartUpIndex(std::int32_t value) {
  PageBase::StartUpIndex(value);
  mStartsUp = true;
}

void LegendsPage::Client(HostObject* value) {
  mStartsUp = mStartsUp || value != Client();
  PageBase::Client(value);
}

bool LegendsPage::IsSupported() const {
  ILegends* const legends = As<ILegends>(Client());
  return legends && legends->LegendCount() > 0;
}

void LegendsPage::ReadClient() {
  std::vector<std::unique_ptr<Legend>> read;
  const std::int32_t count = Required(As<ILegends>(Client())).LegendCount();
  for (std::int32_t i = 0; i < count; ++i) {
    const auto find = [this, i] { return &Required(As<ILegends>(Client())).Legend(i); };
    Legend& legend = *read.emplace_back(std::make_unique<Legend>(Asked<ILegend>(find)));
    Adopt(legend.List);
    legend.List.Read();
  }
  mLegends = std::move(read);
}

void LegendsPage::ShowValues() {
  if (!mLegends.empty() && std::exchange(mStartsUp, false)) mShown = static_cast<std::size_t>(StartUpIndex());
  if (mShown >= mLegends.size()) mShown = 0;
  cboLegend.Clear();
  for (std::size_t i = 0; i < mLegends.size(); ++i) cboLegend.AddItem(Entry(i));
  if (!mLegends.empty()) cboLegend.ListIndex(static_cast<int>(mShown));
  ShowLegend();
}

void LegendsPage::ShowLegend() {
  mFields.Read();
  if (!ShownLegend()) return;
  // A field stands for the host's property in the same place of the order.
  const std::vector<Setting*>& properties = mLegends[mShown]->List.All();
  for (std::size_t i = 0; i < properties.size(); ++i)
    if (properties[i]->IsLocked()) mFields.All()[i]->Lock(properties[i]->Fault());
}

std::string LegendsPage::Entry(std::size_t legend) const {
  return std::to_string(legend + 1) + ": " + mLegends[legend]->Title;
}

void LegendsPage::cboLegend_Click() {
  if (IsBusy()) return;
  if (!mTextSize.Check()) return WhileBusy([this] { cboLegend.ListIndex(static_cast<int>(mShown)); });
  KeepEdits();
  mShown = static_cast<std::size_t>(cboLegend.ListIndex());
  WhileBusy([this] { ShowLegend(); });
  EnableControls();
}

void LegendsPage::KeepEdits() {
  if (mLegends.empty()) return;
  mFields.Write();
  cboLegend.List(static_cast<int>(mShown), Entry(mShown));
}

std::vector<std::string> LegendsPage::Refused() const {
  std::vector<std::string> lines;
  for (std::size_t legend = 0; legend < mLegends.size(); ++legend) {
    const std::vector<Setting*>& properties = mLegends[legend]->List.All();
    for (std::size_t i = 0; i < properties.size(); ++i)
      if (properties[i]->Fault() && !properties[i]->IsLocked())
        lines.push_back(Line(Entry(legend) + ", " + mFields.All()[i]->Name(), *properties[i]));
  }
  return lines;
}

void LegendsPage::WriteClient() {
  KeepEdits();
  for (const auto& legend : mLegends) legend->List.Write();
}

}  // namespace orx::pages
