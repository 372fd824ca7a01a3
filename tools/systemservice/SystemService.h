#pragma once

#include "sysinfo/ShareMemLink.h"

namespace korvane::tools {

/// The system-information service as programs use it that write to the record. It is loaded with the object
/// and let go with it.
class SystemService {
  public:
    SystemService();
    SystemService(const SystemService&) = delete;
    SystemService& operator=(const SystemService&) = delete;
    ~SystemService();

    /// False when the device has no service, or one that lacks an entry point.
    bool IsComplete() const { return complete_; }
    /// The live record; null without a service.
    const _LQSysInfo* Record();

    /// A field of the record, or a number that the service keeps under another name. False, and `fallback`,
    /// without a service and where the service refuses.
    bool SetValue(const wchar_t* name, int value);
    int Value(const wchar_t* name, int fallback);

  private:
    CLQShareMemLink link_;
    bool complete_;
};

}  // namespace korvane::tools
