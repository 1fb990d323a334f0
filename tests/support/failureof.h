#pragma once

#include "platform/runtimefailure.h"

#include <functional>

namespace zt::test {

// The number of the run-time failure the body raised, or 0 when it raised none.
inline int failureOf(const std::function<void()>& body) {
    try {
        body();
    } catch (const RuntimeFailure& failure) {
        return failure.number();
    }
    return 0;
}

} // namespace zt::test
