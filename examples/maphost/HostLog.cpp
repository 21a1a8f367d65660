#include "examples/maphost/HostLog.h"

namespace maphost {

void HostLog::Write(const std::string& line) {
  mBox.Text(mBox.Text().empty() ? line : mBox.Text() + "\n" + line);
}

std::int32_t HostCallBack::RegisterNotify() {
  mLog.Write("Call-back: registered");
  return 0;
}

void HostCallBack::Notify(const std::string& event, bool changed) {
  mLog.Write("Call-back: " + event + (changed ? ", changed" : ", not changed"));
  mRedraw();
}

}  // namespace maphost
