#pragma once

#include "pch_core.h"

// Not the whole of QtWidgets: its precompiled form is twice as large, and each compilation maps it.
#include <QAbstractTableModel>
#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>
