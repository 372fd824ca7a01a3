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

/// Puts the work of a benchmark "<work>|<party>" into the table, behind those before.
inline void NoteWork(const std::string& name) {
    const std::string title = name.substr(0, name.find('|'));
    if (RegisteredWorks().empty() || RegisteredWorks().back() != title)
        RegisteredWorks().push_back(title);
}

/// Adds a benchmark "<work>|<party>" that repeats `work`.
template <class Work>
void Register(const std::string& name, Work work) {
    NoteWork(name);
    benchmark::RegisterBenchmark(name.c_str(),
                                 [held = std::make_shared<Work>(std::move(work))](benchmark::State& state) {
                                     for (auto _ : state)
                                         (*held)();
                                 });
}

void RegisterBlits();
void RegisterTexts();
void RegisterFrames();
/// These two show windows on the screen, which is open meanwhile.
void RegisterControlFrames();
void RegisterHeadUnitFrames();

}  // namespace korvane::bench
