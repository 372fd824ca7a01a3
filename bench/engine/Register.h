#pragma once

#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace korvane::bench {

/// The works that have been registered, in their order.
inline std::vector<std::string>& RegisteredWorks() {
    static std::vector<std::string> works;
    return works;
}

/// Adds a benchmark "<work>|<party>" that repeats `work`.
template <class Work>
void Register(const std::string& name, Work work) {
    const std::string title = name.substr(0, name.find('|'));
    if (RegisteredWorks().empty() || RegisteredWorks().back() != title)
        RegisteredWorks().push_back(title);
    benchmark::RegisterBenchmark(name.c_str(),
                                 [held = std::make_shared<Work>(std::move(work))](benchmark::State& state) {
                                     for (auto _ : state)
                                         (*held)();
                                 });
}

void RegisterBlits();
void RegisterTexts();
void RegisterFrames();

}  // namespace korvane::bench
