#include "pages/LegendsPage.h"

namespace orx::pages {

LegendsPage::LegendsPage(const PageSite& site) : PageBase(site) {
  FillList(cboCorner, {"Top left", "Top right", "Bottom left", "Bottom right"});
  Watch(mTextSize);
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
  ILegends* const legends = QueryKind<ILegends>(Client());
  return legends && legends->LegendCount() > 0;
}

void LegendsPage::ReadClient() {
  ILegends& legends = *QueryKind<ILegends>(Client());
  std::vector<Values> read;
  for (std::int32_t i = 0; i < legends.LegendCount(); ++i) {
    const ILegend& legend = legends.Legend(i);
    read.push_back({legend.Title(), legend.Visible(), legend.Corner(), legend.Framed(), legend.TextSize()});
  }
  mRead = mEdited = std::move(read);
}

void LegendsPage::ForgetClient() {
  mRead.clear();
  mEdited.clear();
}

void LegendsPage::ShowValues() {
  if (!mEdited.empty() && std::exchange(mStartsUp, false)) mShown = static_cast<std::size_t>(StartUpIndex());
  if (mShown >= mEdited.size()) mShown = 0;
  cboLegend.Clear();
  for (std::size_t i = 0; i < mEdited.size(); ++i) cboLegend.AddItem(Entry(i));
  if (!mEdited.empty()) cboLegend.ListIndex(static_cast<int>(mShown));
  ShowLegend();
}

void LegendsPage::ShowLegend() {
  const Values values = mEdited.empty() ? Values{} : mEdited[mShown];
  txtTitle.Text(values.Title);
  chkVisible.Value(CheckedIf(values.Visible));
  if (mEdited.empty() || !cboCorner.SelectData(static_cast<std::int32_t>(values.Corner))) cboCorner.ListIndex(-1);
  chkFramed.Value(CheckedIf(values.Framed));
  if (mEdited.empty()) {
    mTextSize.Clear();
  } else {
    mTextSize.Value(values.TextSize);
  }
}

std::string LegendsPage::Entry(std::size_t legend) const {
  return std::to_string(legend + 1) + ": " + mEdited[legend].Title;
}

void LegendsPage::cboLegend_Click() {
  if (IsBusy()) return;
  if (!mTextSize.Check()) return WhileBusy([this] { cboLegend.ListIndex(static_cast<int>(mShown)); });
  KeepEdits();
  mShown = static_cast<std::size_t>(cboLegend.ListIndex());
  WhileBusy([this] { ShowLegend(); });
}

void LegendsPage::KeepEdits() {
  if (mEdited.empty()) return;
  Values& edited = mEdited[mShown];
  edited.Title = txtTitle.Text();
  edited.Visible = chkVisible.IsChecked();
  edited.Corner = static_cast<LegendCorner>(cboCorner.SelectedData(static_cast<std::int32_t>(edited.Corner)));
  edited.Framed = chkFramed.IsChecked();
  edited.TextSize = mTextSize.Value();
  cboLegend.List(static_cast<int>(mShown), Entry(mShown));
}

void LegendsPage::WriteClient() {
  KeepEdits();
  ILegends& legends = *QueryKind<ILegends>(Client());
  for (std::size_t i = 0; i < mRead.size(); ++i) {
    ILegend& legend = legends.Legend(static_cast<std::int32_t>(i));
    Values& read = mRead[i];
    const Values& edited = mEdited[i];
    Write(read.Title, edited.Title, [&](const std::string& title) { legend.Title(title); });
    Write(read.Visible, edited.Visible, [&](bool visible) { legend.Visible(visible); });
    Write(read.Corner, edited.Corner, [&](LegendCorner corner) { legend.Corner(corner); });
    Write(read.Framed, edited.Framed, [&](bool framed) { legend.Framed(framed); });
    Write(read.TextSize, edited.TextSize, [&](double points) { legend.TextSize(points); });
  }
}

}  // namespace orx::pages
