#pragma once

// What nearly every file of the rooms with widgets reads, for jumbo builds alone: each file still
// includes what it uses.
#include <QApplication>
#include <QtWidgets>
#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>
