// A request for a message box, and its answer.
#pragma once

#include <string>

namespace orx {

/// The picture beside the text.
enum class MessageIcon { None, Critical, Question, Exclamation, Information };

/// The buttons to answer with. Enter presses the first one.
enum class MessageButtons { OK, YesNo };

/// The button that was pressed. A question has no close box; where Escape closes it, the answer is No.
enum class MessageAnswer { OK, Yes, No };

/// A message with its buttons, one OK unless told.
struct Message {
  std::string Text;
  std::string Title;
  MessageIcon Icon = MessageIcon::None;
  MessageButtons Buttons = MessageButtons::OK;
  bool operator==(const Message&) const = default;

  /// The answer that does nothing beyond closing the box.
  MessageAnswer Harmless() const { return Buttons == MessageButtons::OK ? MessageAnswer::OK : MessageAnswer::No; }
};

}  // namespace orx
