#include <gtest/gtest.h>

#include "tests/support/OtherProcess.h"

int main(int argc, char** argv) {
    const int status = korvane::test::PlayRole(argc, argv);
    if (status >= 0)
        return status;
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
