// A setting of a host's object as its list sees it: read, shown, checked and written in its turn.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace orx {

class Control;
class Settings;

/// Which settings a list writes.
enum class WriteRule {
  /// All of them.
  Always,
  /// Those that the host holds otherwise at the time of writing; it is asked before each.
  WhenTheHostDiffers,
  /// Those that differ from what was read, or written since.
  WhenEdited
};

/// Thrown by a setting whose field holds no value that its property can take: a text that is no number, or a number
/// that does not fit. It is no error of the host's and passes every step rule.
struct InvalidEntry {
  /// The control with the entry; its form owns it.
  Control* Field;
};

/// One setting. Almost all are a SettingOf; members that make no sense without a field do nothing here.
class Setting {
 public:
  /// Joins a list, at its end. List and setting stand in the same form, or in the same scope.
  explicit Setting(Settings& list);
  virtual ~Setting() = default;
  Setting(const Setting&) = delete;
  Setting& operator=(const Setting&) = delete;

  /// The name for messages, and the control; empty and null without one.
  std::string Name() const;
  virtual Control* Field() const { return nullptr; }
  /// All controls that the value is edited with; the field is one of them.
  virtual std::vector<Control*> Controls() const { return {}; }

  /// Why the host failed to give or to take the value, in the words of ErrorText; none when it did not fail. Kept by
  /// lists with the rule KeepFault, and forgotten with the next try.
  const std::optional<std::string>& Fault() const { return mFault; }
  void Fault(std::optional<std::string> reason) { mFault = std::move(reason); }
  /// True for a setting that could not be read. Its control shows nobody's value, so that it is neither checked nor
  /// written until it can be read again.
  bool IsLocked() const { return mFault && !IsRead(); }
  /// Locks a setting for the fault of another one, on whose value it rests.
  void Lock(std::optional<std::string> reason);

  /// Reads the host's value, without showing it yet. What the host throws travels.
  virtual void Fetch() {}
  /// Drops what was fetched, so that Show shows that there is nothing.
  virtual void Forget() {}
  /// Shows what was fetched last; the setting is not edited then.
  virtual void Show() {}
  /// True when the value shown last could be read.
  virtual bool IsRead() const { return false; }
  /// True when the user has edited the setting since it was shown.
  virtual bool IsEdited() const { return false; }
  /// True when the setting stands for another value than it has read or written last.
  virtual bool Differs() const { return false; }
  /// Checks an entry that is still being typed. False when it was refused, with a message.
  virtual bool Check() { return true; }
  /// Throws InvalidEntry where there is no value to write.
  virtual void RequireEntry() const {}
  /// Writes the value as the rule says; true when it was written. What the host throws travels.
  virtual bool Write(WriteRule rule) = 0;

 private:
  std::optional<std::string> mFault;
};

}  // namespace orx
