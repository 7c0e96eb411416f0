#pragma once

// What nearly every file of the rooms with widgets reads, for jumbo builds alone: each file still
// includes what it uses.
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
#include <QTimer>
#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>
