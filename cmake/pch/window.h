// What nearly every file of the window reads.
#pragma once

#include <QtWidgets>

#include <pch/screens.h>
