// The list of a dialog's settings: what happens to each of them happens in its order.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "forms/Event.h"
#include "forms/Setting.h"

namespace orx {

/// Runs one step, the reading or the writing of one setting, and decides what becomes of the errors that it throws.
using StepRule = std::function<void(Setting& setting, const std::function<void()>& step)>;

/// The rule of lists which tell the user: what a step throws, of any type, is kept as the fault of its setting, and the
/// others go on.
void KeepFault(Setting& setting, const std::function<void()>& step) noexcept;

/// Settings join the list as they are made, so the order of their declaration is the order in which they are read,
/// shown, checked and written. What is written, and what an error of the host does, is the same for all of a list.
class Settings {
 public:
  /// Without a step rule errors travel, and the settings behind the failed one are not reached.
  explicit Settings(WriteRule write, StepRule step = {}) : mWrite(write), mStep(std::move(step)) {}
  Settings(const Settings&) = delete;
  Settings& operator=(const Settings&) = delete;

  /// The settings in the order of writing. A setting adds itself.
  void Add(Setting& setting) { mSettings.push_back(&setting); }
  const std::vector<Setting*>& All() const { return mSettings; }
  /// Has the settings read in an order of its own; those that it does not name are not read.
  void ReadInOrder(std::initializer_list<Setting*> order) { mReadOrder = order; }

  /// Fetches all, then shows all: an error that travels leaves the fields as they were.
  void Read();
  /// The two halves of Read, and dropping what was fetched.
  void Fetch();
  void Show();
  void Forget();
  /// Checks entries that are still being typed, up to the first one that is refused. True when none was. As when
  /// writing, locked settings are left out.
  bool Check();
  /// Writes what the write rule says. Throws InvalidEntry at a setting that has no value, with those before it written.
  void Write();
  /// Reads and shows one setting, or writes one, by the same rules.
  void Read(Setting& setting);
  void Write(Setting& setting);

  /// Raised when a setting was written. What the handler throws travels.
  Event<Setting&> Written;
  /// Translates the messages of checked fields; none by default.
  std::function<std::string(const std::string&)> Translate;

 private:
  void Run(Setting& setting, const std::function<void()>& step) const;

  WriteRule mWrite;
  StepRule mStep;
  std::vector<Setting*> mSettings;
  std::vector<Setting*> mReadOrder;
};

/// A step of a dialog's own among the writes of its settings.
class WriteStep final : public Setting {
 public:
  /// `act` gives true when it has written what counts as a change.
  WriteStep(Settings& list, std::function<bool()> act) : Setting(list), mAct(std::move(act)) {}
  bool Write(WriteRule) override { return mAct(); }

 private:
  std::function<bool()> mAct;
};

}  // namespace orx
