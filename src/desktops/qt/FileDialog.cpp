#include "desktops/qt/FileDialog.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

#include "desktops/qt/PlatformDialog.h"
#include "desktops/qt/Text.h"
#include "forms/OpenFileRequest.h"

namespace orx::qt {
namespace {

/// The toolkit's own dialog, which also accepts names that do not exist yet if the user agrees.
class CreatingFileDialog final : public QFileDialog {
 public:
  explicit CreatingFileDialog(bool asks) : mAsks(asks) {}

 protected:
  void accept() override {
    const QStringList names = selectedFiles();
    const bool isNew = names.size() == 1 && !QFileInfo::exists(names.front());
    if (mAsks && isNew && !AgreesToCreate(names.front())) return;
    QFileDialog::accept();
  }

 private:
  bool AgreesToCreate(const QString& name) {
    const QString text = tr("%1 does not exist. Do you want to create it?").arg(QFileInfo(name).fileName());
    return QMessageBox::question(this, windowTitle(), text) == QMessageBox::Yes;
  }

  bool mAsks;
};

QStringList NameFilters(const OpenFileRequest& request) {
  QStringList names;
  for (const FileFilter& filter : FiltersOf(request)) {
    QStringList patterns;
    for (const std::string& pattern : filter.Patterns) patterns << ToQt(pattern);
    names << ToQt(filter.Text) + " (" + patterns.join(' ') + ")";
  }
  return names;
}

void SetUp(QFileDialog& dialog, const OpenFileRequest& request) {
  dialog.setWindowTitle(ToQt(request.Title));
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(request.Flags & kAllowMultiselect ? QFileDialog::ExistingFiles : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  const QStringList filters = NameFilters(request);
  dialog.setNameFilters(filters);
  if (request.FilterIndex >= 1 && request.FilterIndex <= filters.size())
    dialog.selectNameFilter(filters[request.FilterIndex - 1]);
  dialog.setDirectory(ToQt(request.InitialFolder));
  const QString name = ToQt(InitialName(request));
  if (!name.isEmpty()) dialog.selectFile(name);
}

/// Counted from 1; 0 when none is selected. The toolkit names a filter with or without its patterns.
std::int32_t SelectedFilter(const QFileDialog& dialog, const OpenFileRequest& request) {
  const QString selected = dialog.selectedNameFilter();
  const QStringList names = NameFilters(request);
  const std::vector<FileFilter> filters = FiltersOf(request);
  for (std::size_t i = 0; i < filters.size(); ++i)
    if (selected == names[static_cast<int>(i)] || selected == ToQt(filters[i].Text))
      return static_cast<std::int32_t>(i) + 1;
  return 0;
}

void TakeAnswer(const QFileDialog& dialog, OpenFileRequest& request) {
  std::vector<std::string> names;
  for (const QString& path : dialog.selectedFiles()) names.push_back(FromQt(QFileInfo(path).fileName()));
  const std::string folder = FromQt(QFileInfo(dialog.selectedFiles().front()).absolutePath());
  PutAnswer(request, folder, names);
  request.LastFolder = folder;
  request.FilterIndex = SelectedFilter(dialog, request);
}

}  // namespace

bool RunFileDialog(OpenFileRequest& request, const std::function<void()>& running) {
  CreatingFileDialog dialog((request.Flags & kCreatePrompt) != 0);
  SetUp(dialog, request);
  const bool accepted = RunPlatformDialog(dialog, request.OwnerHandle, running);
  if (!accepted || dialog.selectedFiles().isEmpty()) return false;
  TakeAnswer(dialog, request);
  return true;
}

QFileDialog* OpenFileDialog() {
  return qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
}

}  // namespace orx::qt
