// The message box, as forms ask for it.
#pragma once

#include <string>

namespace orx {

/// The picture beside the text.
enum class MessageIcon { None, Critical, Question, Exclamation, Information };

/// A message with one OK button.
struct Message {
  std::string Text;
  std::string Title;
  MessageIcon Icon = MessageIcon::None;
  bool operator==(const Message&) const = default;
};

}  // namespace orx
