#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>

namespace bornika::banc {

/// Whatever is shown is painted into memory. To be called before there is an application.
inline void AllerHorsEcran() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

/// Runs the benchmarks of this program. Returns its exit status.
inline int Mesurer(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

}  // namespace bornika::banc
