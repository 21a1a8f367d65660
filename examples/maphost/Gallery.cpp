#include "examples/maphost/Gallery.h"

#include <iostream>
#include <stdexcept>

#include "maplibrary/files/FileAccess.h"
#include "pickers/frmProgress.h"
#include "text/Paths.h"

namespace maphost {
namespace {

/// Takes a picture of whatever opens, and closes it.
class Photographer final : public orx::DesktopHook {
 public:
  Photographer(NativeDesktop& desktop, std::filesystem::path folder) : mDesktop(desktop), mFolder(std::move(folder)) {}

  /// What stands behind the name of each form in the name of its picture.
  void Suffix(const std::string& value) { mSuffix = value; }

  void Take(orx::Form& form) {
    const std::string file = orx::Utf8(mFolder / (form.Name() + mSuffix + ".png"));
    if (!mDesktop.SavePicture(form, file)) throw std::runtime_error("Cannot write " + file);
    std::cout << file << '\n';
  }

  void ModalRunning(const orx::Modal& modal) override {
    if (!modal.ShownForm) return;
    Take(*modal.ShownForm);
    modal.ShownForm->UserClose();
  }

 private:
  NativeDesktop& mDesktop;
  std::filesystem::path mFolder;
  std::string mSuffix;
};

}  // namespace

void WriteGallery(NativeDesktop& desktop, orx::maplibrary::Map& map, const Languages& languages,
                  const std::filesystem::path& folder) {
  std::filesystem::create_directories(folder);
  Photographer photographer(desktop, folder);
  desktop.Hook(&photographer);
  const auto window = std::make_shared<HostWindow>(desktop, map, languages);
  window->Show(orx::ShowMode::Modeless);
  for (int language = 0; language < languages.Count(); ++language) {
    const std::string suffix = language == 0 ? std::string() : "-" + std::to_string(language);
    photographer.Suffix(suffix);
    window->cboLanguage.UserPick(language);
    desktop.ProcessPendingEvents();
    photographer.Take(*window);
    for (const Dialog& dialog : HostWindow::Dialogs()) {
      if (!dialog.PictureSuffix) continue;
      photographer.Suffix(*dialog.PictureSuffix + suffix);
      dynamic_cast<orx::Button&>(*window->Find(dialog.Button)).UserPress();
    }
    photographer.Suffix(suffix);
    // The host keeps the progress window open as it works.
    const auto progress = std::make_shared<orx::frmProgress>(desktop);
    progress->Language(languages.Language(language));
    progress->prgBar.Value(60);
    progress->Show(orx::ShowMode::Modeless, {window.get(), 0});
    desktop.ProcessPendingEvents();
    photographer.Take(*progress);
    progress->Unload();
  }
  window->UserClose();
  desktop.Hook(nullptr);
}

}  // namespace maphost
