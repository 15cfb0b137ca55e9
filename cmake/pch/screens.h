// What nearly every screen reads.
#pragma once

#include <pch/rules.h>

#include <ui/acts.h>
#include <ui/controls.h>
#include <ui/desk.h>
#include <ui/game.h>
#include <ui/screen.h>
