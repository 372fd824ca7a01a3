// A program that does nothing but use the system-information service: it counts, for ever, under a name that
// the service keeps.
//
// Usage: serviceuser DEVICE_ROOT NAME

#include <cstdio>
#include <string>

#include "platform/Simulation.h"

#include "tools/systemservice/SystemService.h"

int main(int argc, char** argv) {
    if (argc != 3)
        return 2;
    korvane::SetDeviceRoot(argv[1]);
    const std::string name = argv[2];
    const std::wstring wideName(name.begin(), name.end());
    korvane::tools::SystemService service;
    int count = service.Value(wideName.c_str(), 0);
    if (!service.SetValue(wideName.c_str(), count + 1))
        return 1;
    std::puts("serviceuser: ready");
    std::fflush(stdout);
    while (service.SetValue(wideName.c_str(), ++count)) {
    }
    return 1;
}
