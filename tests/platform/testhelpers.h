#pragma once

#include "platform/runtimefailure.h"

#include <QString>

#include <functional>

namespace zt::test {

inline QString q(const char* text) {
    return QString::fromLatin1(text);
}

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
