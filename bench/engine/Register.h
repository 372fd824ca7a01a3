#pragma once

#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <utility>

namespace korvane::bench {

/// Adds a benchmark "<work>|<party>" that repeats `work`.
template <class Work>
void Register(const std::string& name, Work work) {
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
