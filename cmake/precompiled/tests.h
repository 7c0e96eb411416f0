#pragma once

// What nearly every test reads, for jumbo builds alone: each file still includes what it uses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>
