#pragma once

// What nearly every test reads, for jumbo builds alone: each file still includes what it uses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtWidgets>
#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>
