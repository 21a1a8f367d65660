// The demo's log: results of calls, and what the call-back hears while a dialog is open.
#pragma once

#include <functional>
#include <string>

#include "forms/TextBox.h"
#include "hostobjects/IDialogCallBack.h"

namespace maphost {

/// Writes lines into a text box, the newest at the end.
class HostLog {
 public:
  explicit HostLog(orx::TextBox& box) : mBox(box) {}
  void Write(const std::string& line);

 private:
  orx::TextBox& mBox;
};

/// Logs each notification and has the map redrawn.
class HostCallBack final : public orx::IDialogCallBack {
 public:
  HostCallBack(HostLog& log, std::function<void()> redraw) : mLog(log), mRedraw(std::move(redraw)) {}

  void ApplyNotify(bool changed) override { Notify("Apply", changed); }
  void CancelNotify(bool changed) override { Notify("Cancel", changed); }
  void OKNotify(bool changed) override { Notify("OK", changed); }
  std::int32_t RegisterNotify() override;

 private:
  void Notify(const std::string& event, bool changed);

  HostLog& mLog;
  std::function<void()> mRedraw;
};

}  // namespace maphost
