#include "bench_main.h"

// The program around the benchmarks of one file, for all that take no arguments of their own.
int main(int argc, char** argv) {
    bornika::banc::AllerHorsEcran();
    const QApplication application(argc, argv);
    return bornika::banc::Mesurer(argc, argv);
}
