#pragma once

#include <functional>

// Work to do when the benchmarks are over, while the QApplication still stands:
// a benchmark that keeps Qt objects alive across runs (a page engine, say) ends
// them here.
void atBenchEnd(std::function<void()> work);
