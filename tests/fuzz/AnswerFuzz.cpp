// Throws arbitrary bytes at what takes the answers of file dialogs apart. Built with libFuzzer, preset "fuzz".
#include <cstdint>
#include <cstdlib>
#include <string>

#include "forms/Requests.h"
#include "service/modDialog.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const std::vector<std::string> parts = orx::modDialog::SplitAnswer(text);
  // Nothing is lost: the parts with NULs between them are the answer.
  Require(!parts.empty());
  std::string joined = parts.front();
  for (std::size_t i = 1; i < parts.size(); ++i) (joined += '\0') += parts[i];
  Require(joined == text);

  orx::OpenFileRequest request;
  request.Filter = text;
  request.Buffer = text;
  for (const orx::FileFilter& filter : orx::FiltersOf(request))
    for (const std::string& pattern : filter.Patterns) Require(!pattern.empty() && !pattern.starts_with(' '));
  Require(text.starts_with(orx::InitialName(request)));
  // An answer is accepted in capitals as in any other letters.
  Require(orx::modDialog::IsAccepted(orx::modDialog::FileKind::Data, 1, text + ".VKR"));
  return 0;
}
