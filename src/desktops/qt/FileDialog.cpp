#include "desktops/qt/FileDialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "desktops/qt/PlatformDialog.h"
#include "desktops/qt/Text.h"
#include "forms/Requests.h"

namespace orx::qt {
namespace {

/// The toolkit's own dialog, which also accepts names that do not exist yet if the user agrees.
class CreatingFileDialog final : public QFileDialog {
 public:
  explicit CreatingFileDialog(bool asks) : mAsks(asks) {}

 protected:
  void accept() override {
    const QStringList paths = selectedFiles();
    if (const QString reason = Refusal(paths); !reason.isEmpty()) {
      QMessageBox::warning(this, windowTitle(), reason);
      return;
    }
    if (!mAsks || !IsNew(paths)) return QFileDialog::accept();
    // The toolkit's own check accepts files that exist only.
    if (AgreesToCreate(paths.front())) done(Accepted);
  }

 private:
  static bool IsNew(const QStringList& paths) { return paths.size() == 1 && !QFileInfo::exists(paths.front()); }

  /// Why these files cannot be given to the caller, who gets one folder with names in it; empty when they can.
  QString Refusal(const QStringList& paths) const {
    if (paths.isEmpty()) return {};
    const QString folder = QFileInfo(paths.front()).absolutePath();
    for (const QString& path : paths)
      if (QFileInfo(path).absolutePath() != folder)
        return tr("These files are in different folders. Choose files of one folder at a time.");
    if (paths.size() > 1 && fileMode() != ExistingFiles) return tr("Only one file can be opened here.");
    if (IsNew(paths) && !QFileInfo(folder).isDir()) return tr("The folder %1 does not exist.").arg(folder);
    return {};
  }

  bool AgreesToCreate(const QString& name) {
    const QString text = tr("%1 does not exist. Do you want to create it?").arg(QFileInfo(name).fileName());
    return QMessageBox::question(this, windowTitle(), text) == QMessageBox::Yes;
  }

  bool mAsks;
};

/// The name of an entry of the folder, in the letter case in which it exists; empty when there is none.
QString EntryOf(const QDir& folder, const QString& name) {
  if (folder.exists(name)) return name;
  for (const QString& entry : folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
    if (entry.compare(name, Qt::CaseInsensitive) == 0) return entry;
  return {};
}

/// The path of a folder in the letter case in which it exists; empty when it does not.
QString ExistingFolder(const QString& path) {
  const QFileInfo wanted(path);
  if (wanted.isDir()) return path;
  const QString parent = wanted.path() == path ? QString() : ExistingFolder(wanted.path());
  const QString entry = parent.isEmpty() ? QString() : EntryOf(parent, wanted.fileName());
  const QString found = QDir(parent).filePath(entry);
  return !entry.isEmpty() && QFileInfo(found).isDir() ? found : QString();
}

/// Opens the dialog in the folder of a file, which may have been recorded in another letter case or on another
/// platform, and on its name.
void OpenOn(QFileDialog& dialog, const QString& path) {
  const QString folder = path.contains('/') ? ExistingFolder(QFileInfo(dialog.directory(), path).path()) : QString();
  if (!folder.isEmpty()) dialog.setDirectory(folder);
  const QString name = path.section(path.contains('/') ? '/' : '\\', -1);
  const QString entry = EntryOf(dialog.directory(), name);
  dialog.selectFile(entry.isEmpty() ? name : entry);
}

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
  if (!name.isEmpty()) OpenOn(dialog, name);
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
