#include "forms/Requests.h"

#include <algorithm>

#include "forms/TextBox.h"
#include "text/CharacterCount.h"
#include "text/Trimmed.h"

namespace orx {
namespace {

constexpr char kNul = '\0';

std::vector<std::string> PatternsOf(const std::string& text) {
  std::vector<std::string> patterns;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find(';', start), text.size());
    const std::string pattern(Trimmed(text.substr(start, end - start), kSpaces));
    if (!pattern.empty()) patterns.push_back(pattern);
    start = end + 1;
  }
  return patterns;
}

}  // namespace

std::vector<FileFilter> FiltersOf(const OpenFileRequest& request) {
  std::vector<FileFilter> filters;
  const std::string& all = request.Filter;
  for (std::size_t start = 0; start < all.size() && all[start] != kNul;) {
    const std::size_t middle = std::min(all.find(kNul, start), all.size() - 1);
    const std::size_t end = std::min(all.find(kNul, middle + 1), all.size());
    filters.push_back({all.substr(start, middle - start), PatternsOf(all.substr(middle + 1, end - middle - 1))});
    start = end + 1;
  }
  return filters;
}

std::string InitialName(const OpenFileRequest& request) {
  const std::string text = request.Buffer.substr(0, request.Buffer.find(kNul));
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

char SeparatorOf(const std::string& folder) {
  return folder.starts_with('/') ? '/' : '\\';
}

void PutAnswer(OpenFileRequest& request, const std::string& folder, const std::vector<std::string>& names) {
  std::string answer = folder;
  if (names.size() == 1) {
    if (!folder.ends_with(SeparatorOf(folder))) answer += SeparatorOf(folder);
    answer += names.front();
  } else {
    for (const std::string& name : names) (answer += kNul) += name;
  }
  (answer += kNul) += kNul;
  if (CharacterCount(answer) > CharacterCount(request.Buffer))
    throw AnswerRefused("The names of these files are too long together. Choose fewer files at a time.");
  request.Buffer = std::move(answer);
}

}  // namespace orx
