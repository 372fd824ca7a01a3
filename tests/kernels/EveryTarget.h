#pragma once

#include <cstdint>
#include <gtest/gtest.h>
#include <string>

#include "engine/draw/kernels/Targets.h"

/// A test that runs once on each instruction set that this machine has.
class EveryTarget : public testing::TestWithParam<std::int64_t> {
  protected:
    void SetUp() override { korvane::kernels::ForceTarget(GetParam()); }
    void TearDown() override { korvane::kernels::ForceTarget(0); }
};

inline std::string NameOfTarget(const testing::TestParamInfo<std::int64_t>& info) {
    return korvane::kernels::TargetName(info.param);
}

#define KORVANE_ON_EVERY_TARGET(suite)                                                               \
    INSTANTIATE_TEST_SUITE_P(Target, suite, testing::ValuesIn(korvane::kernels::AvailableTargets()), \
                             NameOfTarget)
