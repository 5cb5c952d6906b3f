#pragma once
// A screen that reaches for the state of the whole run.
#include "app/Stare.h"
