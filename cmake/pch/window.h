// What nearly every file of the window reads.
#pragma once

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QToolTip>

#include <pch/screens.h>
