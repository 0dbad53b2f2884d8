#pragma once

#include "pch_core.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QtWidgets>
