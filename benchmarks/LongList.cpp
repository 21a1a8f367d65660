// The list selection dialog with 100,000 entries, of which one or several can be chosen: opening it and finding the
// last entry by its letter, against a bare native list with the same entries.
#include <benchmark/benchmark.h>

#include <QDialog>
#include <QListWidget>
#include <QTimer>

#include "desktops/headless/HeadlessDesktop.h"
#include "desktops/qt/QtDesktop.h"
#include "pages/PageFactory.h"
#include "pickers/frmListSelection.h"
#include "service/CCommonMapDialogs.h"

namespace orx::bench {
namespace {

constexpr int kEntries = 100000;

TextArray ManyEntries() {
  TextArray entries{{}, 1};
  for (int i = 1; i < kEntries; ++i) entries.Items.push_back("Layer of the large map " + std::to_string(i));
  entries.Items.emplace_back("Zenith");
  return entries;
}

/// Opens the dialog, types the letter of the last entry if wanted, and closes it.
class ListOpener final : public DesktopHook {
 public:
  ListOpener(Desktop& desktop, bool types) : mDesktop(desktop), mDialogs(desktop, mPages), mTypes(types) {
    desktop.Hook(this);
  }
  ~ListOpener() override { mDesktop.Hook(nullptr); }
  ListOpener(const ListOpener&) = delete;
  ListOpener& operator=(const ListOpener&) = delete;

  void Open(const TextArray& entries, bool several) {
    std::vector<std::int32_t> chosen;
    mDialogs.ShowListSelection(entries, several, 0, "Entries", false, {}, chosen);
  }

 private:
  void ModalRunning(const Modal& modal) override {
    auto& form = dynamic_cast<frmListSelection&>(*modal.ShownForm);
    ListBox& list = form.lstMultiSelect.Visible() ? form.lstMultiSelect : form.lstSingleSelect;
    if (mTypes) {
      list.UserCharacter(U'z');
      mDesktop.ProcessPendingEvents();
    }
    form.UserClose();
  }

  Desktop& mDesktop;
  pages::PageFactory mPages;
  CCommonMapDialogs mDialogs;
  bool mTypes;
};

template <class AnyDesktop>
void OpenList(benchmark::State& state, bool several, bool types) {
  const TextArray entries = ManyEntries();
  AnyDesktop desktop;
  ListOpener opener(desktop, types);
  while (state.KeepRunning()) opener.Open(entries, several);
}

void OpenNative(benchmark::State& state, bool several, bool types) {
  qt::QtDesktop desktop;
  const TextArray entries = ManyEntries();
  while (state.KeepRunning()) {
    QDialog dialog;
    dialog.resize(360, 317);
    QListWidget list(&dialog);
    list.setUniformItemSizes(true);
    list.setSelectionMode(several ? QAbstractItemView::MultiSelection : QAbstractItemView::SingleSelection);
    list.setGeometry(8, 8, 344, 268);
    for (const std::string& entry : entries.Items) list.addItem(QString::fromStdString(entry));
    QTimer::singleShot(0, &dialog, [&] {
      if (types) {
        list.keyboardSearch("z");
        desktop.ProcessPendingEvents();
      }
      dialog.reject();
    });
    dialog.exec();
  }
}

void RegisterLists(const std::string& name, bool several, bool types) {
  const auto row = [&](const std::string& column, void (*run)(benchmark::State&, bool, bool)) {
    benchmark::RegisterBenchmark((name + "/" + column).c_str(), [=](benchmark::State& state) {
      run(state, several, types);
    })->Unit(benchmark::kNanosecond);
  };
  row("ours", OpenList<qt::QtDesktop>);
  row("headless", OpenList<headless::HeadlessDesktop>);
  row("bare", OpenNative);
}

const bool kListsRegistered = [] {
  RegisterLists("one of 100,000 entries", false, false);
  RegisterLists("several of 100,000", true, false);
  RegisterLists("the last by its letter", true, true);
  return true;
}();

}  // namespace
}  // namespace orx::bench
