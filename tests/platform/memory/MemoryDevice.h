#pragma once

#include <functional>
#include <gtest/gtest.h>

#include "platform/SharedMemory.h"
#include "platform/Simulation.h"

#include "tests/platform/DeviceFolder.h"

namespace korvane {

/// A scratch device whose memory goes with it, and one of its regions.
class MemoryDevice : public testing::Test {
  public:
    static unsigned char* Map(std::size_t size, const std::function<void(void*)>& fill = nullptr) {
        return static_cast<unsigned char*>(MapSharedMemory(L"state", size, fill));
    }

  protected:
    ~MemoryDevice() override {
        // Another device may have been in use since.
        SetDeviceRoot(device.Path());
        RemoveSharedMemory();
    }

    DeviceFolder device;
};

}  // namespace korvane
