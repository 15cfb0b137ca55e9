// What nearly every test reads.
#pragma once

#include <gtest/gtest.h>

#include <pch/screens.h>
